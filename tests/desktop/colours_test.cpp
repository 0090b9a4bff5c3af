// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QtTest>

#include "desktop/schemes.h"

namespace kelvra::desktop {

class ColoursTest : public QObject {
    Q_OBJECT

    static double ContrastOf(const Pair& pair) {
        const QColor back = PaintColour(pair.backPart, pair.back);
        if (pair.stale) return Contrast(StaleTextOn(back), back);
        return Contrast(pair.text ? PaintColour(Part::Text, *pair.text) : TextOn(back), back);
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

    void TheDocumentHasTheseFigures() {
        QFile file(KELVRA_DOCS "/colours.md");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString document = QString::fromUtf8(file.readAll());
        for (const Pair& pair : Pairs()) {
            QString row = QString("| ") + pair.what;
            for (const Scheme scheme : Schemes) {
                UseScheme(scheme);
                row += " | " + QString::number(ContrastOf(pair), 'f', 1);
            }
            QVERIFY2(document.contains(row + " |\n"), qPrintable(row));
        }
    }
};

std::unique_ptr<QObject> ColoursTests() {
    return std::make_unique<ColoursTest>();
}

}  // namespace kelvra::desktop

#include "colours_test.moc"
