// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_captions.h"

#include <algorithm>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr double Gap = 6;    // logical pixels between two captions
constexpr double Inset = 2;  // to the graph's edge

QRectF PlaceOf(const controls::Graph::Text& label, const QString& text, const PlotScale& scale,
               const QFontMetricsF& metrics) {
    const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
    const double lowest = scale.Place().bottom() - Inset - size.height();
    const double top = std::min(scale.PixelY(label.y) - size.height(), lowest);
    return {{scale.PixelX(label.x) - size.width() / 2, std::max(top, scale.Place().top() + Inset)},
            size};
}

bool Overlap(const std::vector<Caption>& captions, std::size_t every) {
    for (std::size_t i = every; i < captions.size(); i += every)
        if (captions[i].place.left() < captions[i - every].place.right() + Gap) return true;
    return false;
}

}  // namespace

std::vector<Caption> LayOutCaptions(const std::vector<controls::Graph::Text>& labels,
                                    const PlotScale& scale, const QFontMetricsF& metrics) {
    std::vector<Caption> all;
    for (const controls::Graph::Text& label : labels) {
        const QString text = Shown(label.text);
        const QRectF place = PlaceOf(label, text, scale, metrics);
        if (!text.isEmpty() && scale.Place().contains(place)) all.push_back({place, text});
    }
    std::stable_sort(all.begin(), all.end(), [](const Caption& a, const Caption& b) {
        return a.place.center().x() < b.place.center().x();
    });
    std::size_t every = 1;
    while (Overlap(all, every)) ++every;
    std::vector<Caption> some;
    for (std::size_t i = 0; i < all.size(); i += every) some.push_back(all[i]);
    return some;
}

}  // namespace kelvra::desktop
