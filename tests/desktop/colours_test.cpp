// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QtTest>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/plot_look.h"
#include "desktop/schemes.h"

namespace kelvra::desktop {

class ColoursTest : public QObject {
    Q_OBJECT

    static double ContrastOf(const Pair& pair) {
        const QColor back = PaintColour(pair.backPart, pair.back);
        if (pair.stale) return Contrast(StaleTextOn(back), back);
        return Contrast(pair.text ? PaintColour(Part::Text, *pair.text) : TextOn(back), back);
    }

    static double ContrastOf(const PlotMark& mark) {
        return Contrast(PlotColour(mark.part), PlotColour(PlotPart::Ground));
    }

    static QColor Series(int look) { return PlotColour(PartOf({"", look, false, {}, {}, {}})); }

    // In CIE Lab (D65), of the colour as the view's matrix changes it.
    static std::array<double, 3> LabOf(const double (&view)[3][3], const QColor& colour) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        const double own[] = {linear(colour.redF()), linear(colour.greenF()),
                              linear(colour.blueF())};
        double seen[3];
        for (int i = 0; i < 3; ++i)
            seen[i] = std::clamp(view[i][0] * own[0] + view[i][1] * own[1] + view[i][2] * own[2],
                                 0.0, 1.0);
        const auto share = [&](double r, double g, double b, double white) {
            const double t = (r * seen[0] + g * seen[1] + b * seen[2]) / white;
            return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116;
        };
        const double x = share(0.4124, 0.3576, 0.1805, 0.9505);
        const double y = share(0.2126, 0.7152, 0.0722, 1);
        const double z = share(0.0193, 0.1192, 0.9505, 1.089);
        return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
    }

    // The row of a table: what it is, and its contrast in each scheme.
    template <class Coloured>
    static QString RowOf(const Coloured& coloured) {
        QString row = QString("| ") + coloured.what;
        for (const Scheme scheme : Schemes) {
            UseScheme(scheme);
            row += " | " + QString::number(ContrastOf(coloured), 'f', 1);
        }
        return row + " |\n";
    }

private slots:
    void cleanup() { UseScheme(Scheme::Classic); }

    void ContrastIsThatOfKnownColours() {
        QCOMPARE(Contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(Contrast(Qt::red, Qt::red), 1.0);
        QCOMPARE(qRound(100 * Contrast(QColor(0x777777), Qt::white)), 448);
    }

    void CalmAndDarkTextsCanBeReadByEveryone() {
        for (const Scheme scheme : {Scheme::Calm, Scheme::Dark}) {
            UseScheme(scheme);
            for (const Pair& pair : Pairs()) QVERIFY2(ContrastOf(pair) >= 4.5, pair.what);
            const QColor strip = PaintColour(Part::Surface, controls::DarkBlue);
            for (const OwnColour own : {OwnColour::Focus, OwnColour::Fault, OwnColour::Selection})
                QVERIFY(Contrast(PaintColour(own), strip) >= 3);
        }
    }

    void LinesOfAGraphAreSeenInEveryScheme() {
        for (const Scheme scheme : Schemes) {
            UseScheme(scheme);
            for (const PlotMark& mark : PlotMarks()) QVERIFY2(ContrastOf(mark) >= 3, mark.what);
        }
    }

    // Simulated with the matrices of Machado, Oliveira and Fernandes (2009), severity 1.
    void SensorsAreToldApartByThoseWhoSeeFewerColours() {
        constexpr double views[][3][3] = {
            {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
            {{0.1523, 1.0526, -0.2049}, {0.1145, 0.7863, 0.0992}, {-0.0039, -0.0481, 1.0520}},
            {{0.3673, 0.8606, -0.2280}, {0.2801, 0.6725, 0.0474}, {-0.0118, 0.0429, 0.9689}},
            {{1.2555, -0.0767, -0.1788}, {-0.0784, 0.9308, 0.1476}, {0.0047, 0.6914, 0.3039}}};
        for (const Scheme scheme : Schemes) {
            UseScheme(scheme);
            for (const auto& view : views)
                for (int a = 0; a < 8; ++a)
                    for (int b = a + 1; b < 8; ++b) {
                        const auto first = LabOf(view, Series(a)), second = LabOf(view, Series(b));
                        const double far = std::hypot(first[0] - second[0], first[1] - second[1],
                                                      first[2] - second[2]);
                        QVERIFY2(far >= 20, qPrintable(QString("%1: %2 and %3, %4")
                                                           .arg(NameOf(scheme))
                                                           .arg(a + 1)
                                                           .arg(b + 1)
                                                           .arg(far)));
                    }
        }
    }

    void TheDocumentHasTheseFigures() {
        QFile file(KELVRA_DOCS "/colours.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString document = QString::fromUtf8(file.readAll());
        for (const Pair& pair : Pairs())
            QVERIFY2(document.contains(RowOf(pair)), qPrintable(RowOf(pair)));
        for (const PlotMark& mark : PlotMarks())
            QVERIFY2(document.contains(RowOf(mark)), qPrintable(RowOf(mark)));
    }
};

std::unique_ptr<QObject> ColoursTests() {
    return std::make_unique<ColoursTest>();
}

}  // namespace kelvra::desktop

#include "colours_test.moc"
