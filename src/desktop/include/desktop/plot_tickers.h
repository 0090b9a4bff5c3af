// SPDX-License-Identifier: GPL-3.0-or-later
// Where an axis has its numbers, and how they are written: times of the day, and numbers with the
// prefixes of the SI.
#pragma once

#include <qcustomplot.h>

namespace kelvra::desktop {

// The axis counts seconds since 1970-01-01 00:00 on the same clock. Steps are those of clocks and
// calendars. The first label, and each that begins another day, has the date in a second line.
class TimeTicker final : public QCPAxisTicker {
protected:
    double getTickStep(const QCPRange& range) override;
    QVector<QString> createLabelVector(const QVector<double>& ticks, const QLocale& locale,
                                       QChar format, int precision) override;
};

// "150 \u00B5" for 0.00015.
class PrefixTicker final : public QCPAxisTicker {
protected:
    QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;
};

}  // namespace kelvra::desktop
