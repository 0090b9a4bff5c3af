// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>

#include "desktop/common.h"
#include "desktop/running_desktop.h"
#include "support/fake_driver.h"
#include "ui/result_columns.h"

namespace kelvra::desktop {

class DialogsTest : public QObject {
    Q_OBJECT

    // What the status column says whenever the table is painted.
    struct Painted : QObject {
        explicit Painted(QTableWidget& watched) : table(watched) {
            table.viewport()->installEventFilter(this);
        }
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() != QEvent::Paint) return false;
            QStringList now;
            for (const int row : {0, 1}) now << table.item(row, ui::StatusColumn)->text();
            texts << now.join('|');
            return false;
        }
        QTableWidget& table;
        QStringList texts;
    };

    template <class Dialog>
    static QList<Dialog*> Visible(const QWidget& parent) {
        QList<Dialog*> shown;
        for (auto* dialog : parent.findChildren<Dialog*>())
            if (dialog->isVisible()) shown << dialog;
        return shown;
    }

    QUrl opened_;

    struct Passes : measure::PassListener {
        void PassMeasured() override { ++count; }
        int count = 0;
    };

public slots:
    void NoteUrl(const QUrl& url) { opened_ = url; }

private slots:
    void MessagesWaitForTheWindowAndForEachOther() {
        QtDialogs dialogs;
        QWidget window;
        dialogs.Message("", "one", platform::MessageIcon::Information);
        window.show();
        dialogs.SetParent(window);
        for (const char* text : {"two", "one", "two"})
            dialogs.Message("", text, platform::MessageIcon::Information);
        for (const char* text : {"one", "two"}) {
            const auto shown = Visible<QMessageBox>(window);
            QCOMPARE(shown.size(), 1);
            QCOMPARE(shown.first()->text(), text);
            QTest::mouseClick(shown.first()->button(QMessageBox::Ok), Qt::LeftButton);
        }
        QCOMPARE(Visible<QMessageBox>(window).size(), 0);
    }

    void AContinuationRunsOnceItsBoxIsConfirmedAndEvenWhenTheTextIsShownAlready() {
        QtDialogs dialogs;
        QWidget window;
        window.show();
        dialogs.SetParent(window);
        int confirmed = 0;
        for (int box = 0; box < 2; ++box)
            dialogs.Confirm("", "one", platform::MessageIcon::Information, [&] { ++confirmed; });
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            const int before = confirmed;
            QTest::keyClick(Visible<QMessageBox>(window).first(), key);
            QCOMPARE(confirmed, before + 1);
        }
        QCOMPARE(Visible<QMessageBox>(window).size(), 0);
    }

    void ZeroingBeginsWithItsBoxAndEndsWithStopOrTheExit() {
        for (const bool exits : {false, true}) {
            RunningDesktop running;
            auto& kelvra = running.kelvra;
            test::FakeDriver driver;
            driver.devices = {{"A", "PS-101", "1"}};
            driver.complete = [](int) { return false; };
            test::FakeDriver::PutInto(kelvra.library.deviceList,
                                      test::FakeDriver::DeviceListFunctions());
            test::FakeDriver::PutInto(kelvra.library.instrument,
                                      test::FakeDriver::InstrumentFunctions());
            kelvra.discovery.Search();
            kelvra.forms.setupForm.SensorZero.Press();
            const auto boxes = Visible<QMessageBox>(running.Main());
            QCOMPARE(boxes.size(), 1);
            bool zeroing = false;
            When(
                running.Main(),
                [&] {
                    return kelvra.forms.mdiMain.lblMeasAwait.caption->starts_with(
                        "Zeroing sensor 1");
                },
                [&] {
                    zeroing = Visible<QMessageBox>(running.Main()).isEmpty();
                    exits ? kelvra.Exit() : running.Click("StopIt");
                });
            QTest::mouseClick(boxes.first()->button(QMessageBox::Ok), Qt::LeftButton);
            QVERIFY(zeroing);
            QVERIFY(!kelvra.state.commandRuns);
            QCOMPARE(Visible<QMessageBox>(running.Main()).size(), exits ? 0 : 1);
        }
    }

    void APromptAnswersWithItsTextOrWithNothing() {
        QtDialogs dialogs;
        QWidget window;
        window.show();
        dialogs.SetParent(window);
        const struct {
            Qt::Key key{};
            std::optional<std::string> answer;
        } cases[] = {{Qt::Key_Return, "proposed"}, {Qt::Key_Escape, std::nullopt}};
        for (const auto& c : cases) {
            std::optional<std::string> answer = "none yet";
            dialogs.Prompt("INPUT:", "proposed", [&](auto text) { answer = std::move(text); });
            QTest::keyClick(Visible<QInputDialog>(window).first(), c.key);
            QVERIFY(answer == c.answer);
        }
    }

    void HelpOpensTheGuideBesideTheProgram() {
        RunningDesktop running;
        const QString page = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                             "/../share/doc/kelvra/help/7151.html");
        QVERIFY(QFile::exists(page));
        QDesktopServices::setUrlHandler("file", this, "NoteUrl");
        running.kelvra.forms.setupForm.SensContAVTime.PressKey("F1");
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(opened_, QUrl::fromLocalFile(page));
        QVERIFY(Visible<QMessageBox>(running.Main()).isEmpty());
    }

    void HelpThatCannotBeShownIsNamed() {
        const QString here = QCoreApplication::applicationFilePath();
        const struct {
            QString compiled, path;
            bool opensCompiled;
            QString message;
        } cases[] = {
            {"/none.chm", here, false, "No program could be started"},
            {here, "/none.html", true, "No program could be started"},
            {here, "/none.html", false, "The page of help is missing"},
        };
        for (const auto& c : cases) {
            QtDialogs dialogs;
            QWidget window;
            window.show();
            dialogs.SetParent(window);
            dialogs.OpenHelp({c.compiled.toStdString(), 0, c.opensCompiled, c.path.toStdString()});
            const auto shown = Visible<QMessageBox>(window);
            QCOMPARE(shown.size(), 1);
            QVERIFY2(shown.first()->text().startsWith(c.message),
                     qPrintable(shown.first()->text()));
            QVERIFY(shown.first()->text().endsWith(c.opensCompiled ? c.compiled : c.path));
        }
    }

    void PassesGoOnWhileAFileIsChosen() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& kelvra = running.kelvra;
        Passes passes;
        kelvra.news.pass.Add(passes);
        const QString path = data.filePath("chosen.ini");
        bool open = false;
        When(
            running.Main(), [&] { return passes.count >= 1; },
            [&] {
                kelvra.forms.mdiMain.Save_Sensor_Settings.Press();
                open = Visible<QFileDialog>(running.Main()).size() == 1;
                passes.count = 0;
            });
        When(
            running.Main(), [&] { return open && passes.count >= 3; },
            [&] {
                auto* dialog = Visible<QFileDialog>(running.Main()).first();
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
                QTest::keyClick(dialog, Qt::Key_Return);
                kelvra.cycle.Stop();
            });
        QTimer::singleShot(10000, &running.Main(), [&] { kelvra.cycle.Stop(); });
        running.Click("StartIt");
        QVERIFY(open);
        QVERIFY(QFile::exists(path));
        QVERIFY(Visible<QFileDialog>(running.Main()).isEmpty());
    }

    void ARecordingGoesIntoTheFileAndTheFormThatWereChosen() {
        RunningDesktop running;
        const QTemporaryDir folder;
        running.kelvra.forms.mdiMain.FileSaveData.Press();
        running.desktop.Painter().Flush();
        const auto windows = QApplication::topLevelWidgets();
        const auto dialog = std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
            return window->windowTitle() == "Record Time Interval";
        });
        QVERIFY(dialog != windows.end() && (*dialog)->isVisible());
        QTest::keyClick((*dialog)->findChild<QLineEdit*>("TimeIntervalBox"), Qt::Key_Return);
        auto* question = Visible<QFileDialog>(running.Main()).value(0);
        QVERIFY(question != nullptr);
        QCOMPARE(question->selectedNameFilter(), "CSV Files (*.csv)");
        const QString form = question->nameFilters().last();
        question->setDirectory(folder.path());
        question->selectNameFilter(form);
        emit question->filterSelected(form);  // as a person's choice does
        question->findChild<QLineEdit*>("fileNameEdit")->setText("run");
        QTest::keyClick(question, Qt::Key_Return);
        running.desktop.Painter().Flush();
        QFile file(folder.filePath("run.analysis.csv"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(),
                 "Time,SensSim1 (W),SensSim1 (dBm),SensSim2 (W),SensSim2 (dBm)\r\n");
        QVERIFY(!(*dialog)->isVisible());
        QVERIFY(running.Find<QPushButton>("OpenRecordFolder").isVisible());
        QVERIFY(running.Find<QLabel>("lblRecord").text().endsWith("run.analysis.csv"));
    }

    void AnswersAfterTheExitReachNobody() {
        RunningDesktop running;
        int answers = 0;
        platform::Dialogs& dialogs = running.kelvra.host.dialogs;
        dialogs.Prompt("INPUT:", "", [&](const auto&) { ++answers; });
        dialogs.AskFile({}, [&](const auto&) { ++answers; });
        for (const char* text : {"one", "two"})
            dialogs.Confirm("", text, platform::MessageIcon::None, [&] { ++answers; });
        QCOMPARE(Visible<QDialog>(running.Main()).size(), 3);
        const QPointer<QDialog> prompt = running.Main().findChild<QInputDialog*>();
        running.kelvra.Exit();
        QCOMPARE(Visible<QDialog>(running.Main()).size(), 0);
        prompt->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(answers, 0);
        QVERIFY(prompt == nullptr);
    }

    void TheStateOfATransferIsPaintedAtOnce() {
        RunningDesktop running;
        Painted painted(running.Results());
        auto& marks = running.kelvra.windows.marks;
        marks.TransferBegins(0);
        marks.TransferEnds(0);
        marks.TransferBegins(1);
        QCOMPARE(painted.texts, (QStringList{"CONF|", "|", "|CONF"}));
    }

    void TheFrameIsInTheMiddleOfTheScreenThatIsThere() {
        RunningDesktop running;
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const auto& place = running.kelvra.forms.mdiMain.place.Get();
        QCOMPARE(2 * place.left + place.width, Twips(screen.width()));
    }
};

std::unique_ptr<QObject> DialogsTests() {
    return std::make_unique<DialogsTest>();
}

}  // namespace kelvra::desktop

#include "dialogs_test.moc"
