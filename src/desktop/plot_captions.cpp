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
    const QRectF room = scale.Place().adjusted(Inset, Inset, -Inset, -Inset);
    const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
    const auto inside = [](double start, double length, double from, double to) {
        return std::max(from, std::min(start, to - length));
    };
    return {
        {inside(scale.PixelX(label.x) - size.width() / 2, size.width(), room.left(), room.right()),
         inside(scale.PixelY(label.y) - size.height(), size.height(), room.top(), room.bottom())},
        size};
}

bool Shows(const PlotScale& scale, double x) {
    return scale.Axes().x.min <= x && x <= scale.Axes().x.max;
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
        if (label.text.empty() || !Shows(scale, label.x)) continue;
        const QString text = Shown(label.text);
        all.push_back({PlaceOf(label, text, scale, metrics), text});
    }
    std::stable_sort(all.begin(), all.end(), [](const Caption& a, const Caption& b) {
        return a.place.center().x() < b.place.center().x();
    });
    std::size_t every = 1;
    while (Overlap(all, every)) ++every;
    std::vector<Caption> some;
    for (std::size_t i = 0; i < all.size(); i += every)
        if (scale.Place().contains(all[i].place)) some.push_back(all[i]);
    return some;
}

}  // namespace kelvra::desktop
