// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_tickers.h"

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace kelvra::desktop {

namespace {

constexpr double Minute = 60, Hour = 60 * Minute, Day = 24 * Hour;
constexpr double Steps[] = {
    0.001,      0.002,      0.005,       0.01,        0.02,        0.05, 0.1,      0.2,
    0.5,        1,          2,           5,           10,          15,   30,       Minute,
    2 * Minute, 5 * Minute, 10 * Minute, 15 * Minute, 30 * Minute, Hour, 2 * Hour, 3 * Hour,
    6 * Hour,   12 * Hour,  Day,         2 * Day,     7 * Day,
};

// No zone: the axis is local time already.
QDateTime TimeAt(double seconds) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::round(seconds * 1000)), Qt::UTC);
}

}  // namespace

double TimeTicker::getTickStep(const QCPRange& range) {
    const double wanted = range.size() / mTickCount;
    const auto* step = std::lower_bound(std::begin(Steps), std::end(Steps), wanted);
    return step == std::end(Steps) ? std::ceil(wanted / Day) * Day : *step;
}

QVector<QString> TimeTicker::createLabelVector(const QVector<double>& ticks, const QLocale&, QChar,
                                               int) {
    const double step = ticks.size() > 1 ? ticks[1] - ticks[0] : 1;
    const char* form = step < 0.999 ? "HH:mm:ss.zzz" : step < Minute ? "HH:mm:ss" : "HH:mm";
    QVector<QString> labels;
    QDate before;
    for (const double tick : ticks) {
        const QDateTime time = TimeAt(tick);
        QString label = time.toString(form);
        if (time.date() != before) label += "\n" + time.date().toString(Qt::ISODate);
        before = time.date();
        labels << label;
    }
    return labels;
}

QString PrefixTicker::getTickLabel(double tick, const QLocale& locale, QChar, int) {
    constexpr const char* prefixes[] = {"f", "p", "n", "\u00B5", "m", "", "k", "M", "G"};
    constexpr int unit = 5, perPrefix = 3, digits = 4;
    if (tick == 0) return "0";
    const double power = std::floor(std::log10(std::abs(tick)) / perPrefix + 1e-9);
    const int prefix =
        std::clamp(static_cast<int>(power) + unit, 0, static_cast<int>(std::size(prefixes)) - 1);
    const double shown = tick / std::pow(10, perPrefix * (prefix - unit));
    return (locale.toString(shown, 'g', digits) + " " + prefixes[prefix]).trimmed();
}

}  // namespace kelvra::desktop
