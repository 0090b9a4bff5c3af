// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDesktopServices>
#include <QScrollBar>
#include <QTextBlock>

#include "desktop/rich_text_adapter.h"
#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class AboutTest : public QObject {
    Q_OBJECT

    struct Opened : RunningDesktop {
        Opened() {
            kelvra.forms.mdiMain.MHelpAbout.Press();
            Painted();
            QApplication::setActiveWindow(&Box());
        }
        QWidget& Box() {
            for (QWidget* window : QApplication::topLevelWidgets())
                if (window->windowTitle() == "Info") return *window;
            qFatal("There is no About box.");
        }
        template <class Widget>
        Widget& In(const char* name) {
            return *Box().findChild<Widget*>(name);
        }
        void Painted() {
            desktop.Painter().Flush();
            QCoreApplication::processEvents();
        }
        void Press(const char* button) {
            QTest::mouseClick(&In<QPushButton>(button), Qt::LeftButton);
            Painted();
        }
    };

    QUrl opened_;

public slots:
    void NoteUrl(const QUrl& url) { opened_ = url; }

private slots:
    void cleanup() { UseScheme(Scheme::Classic); }

    void PanelsTakeTurnsInOnePlace() {
        Opened opened;
        const QSize size = opened.Box().size();
        const struct {
            const char* button;
            QStringList shown;
        } steps[] = {{"ShowSystemInfo", {"SysInfoValue"}},
                     {"ShowLegalNotes", {"LizText"}},
                     {"ShowDriverInfo", {"DriverInfoValue"}},
                     {"ShowDriverInfo", {}}};
        for (const auto& [button, shown] : steps) {
            opened.Press(button);
            QStringList visible;
            for (const auto* panel : opened.Box().findChildren<QTextEdit*>()) {
                if (!panel->isVisible()) continue;
                visible << panel->objectName();
                QVERIFY(panel->textCursor().atEnd());
                QCOMPARE(panel->verticalScrollBar()->value(), 0);
            }
            QCOMPARE(visible, shown);
            QCOMPARE(opened.Box().size(), size);
        }
        const QString report = opened.In<QTextEdit>("SysInfoValue").toPlainText();
        QVERIFY2(report.contains("VISA IS NOT INSTALLED\n"), qPrintable(report));
        QVERIFY2(report.contains(QString("\n Qt                 ") + qVersion()),
                 qPrintable(report));
        QTest::keyClick(&opened.Box(), Qt::Key_Escape);
        opened.Painted();
        QVERIFY(!opened.Box().isVisible());
    }

    void LinksAreReachedByKeys() {
        Opened opened;
        QDesktopServices::setUrlHandler("mailto", this, "NoteUrl");
        auto& link = opened.In<QPushButton>("SupportMail");
        opened.In<QPushButton>("ProductLink").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(static_cast<QPushButton*>(QApplication::focusWidget()), &link);
        QTest::keyClick(&link, Qt::Key_Return);
        QDesktopServices::unsetUrlHandler("mailto");
        const QByteArray address = opened_.toEncoded();
        QVERIFY2(address.contains("@kelvra.example?SUBJECT=Question%20to%20Kelvra,%20version%20"),
                 address);
    }

    void ARichTextCanBeReadInEveryScheme() {
        const std::string source =
            R"({\colortbl ;\red0\green0\blue0;\red255\green0\blue0;\red0\green255\blue0;})"
            R"({\b\cf1\qr a}{\i\cf2 b}{\ul\cf3\highlight2 c\par}d)";
        for (const Scheme scheme : Schemes) {
            UseScheme(scheme);
            const QColor ground = QApplication::palette().color(QPalette::Base);
            QTextDocument document;
            WriteDocument(document, controls::ReadRtf(source), ground);
            QCOMPARE(document.toPlainText(), "abc\nd");
            QTextCursor cursor(&document);
            for (const char letter : {'a', 'b', 'c'}) {
                cursor.movePosition(QTextCursor::NextCharacter);
                const QTextCharFormat look = cursor.charFormat();
                QCOMPARE(look.fontWeight() == QFont::Bold, letter == 'a');
                QCOMPARE(look.fontItalic(), letter == 'b');
                QCOMPARE(look.fontUnderline(), letter == 'c');
                QCOMPARE(look.hasProperty(QTextFormat::ForegroundBrush), letter != 'a');
                if (letter == 'a') continue;
                const QColor back = letter == 'c' ? look.background().color() : ground;
                QVERIFY(letter != 'c' || back == QColor(Qt::red));
                QVERIFY(Contrast(look.foreground().color(), back) >= 4.5);
            }
            QCOMPARE(document.firstBlock().blockFormat().alignment(), Qt::AlignLeft);
        }
    }
};

std::unique_ptr<QObject> AboutTests() {
    return std::make_unique<AboutTest>();
}

}  // namespace kelvra::desktop

#include "about_test.moc"
