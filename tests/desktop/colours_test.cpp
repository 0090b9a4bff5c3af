// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QtTest>

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
