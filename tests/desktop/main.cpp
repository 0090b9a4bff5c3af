// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QtTest>
#include <memory>

namespace kelvra::desktop {

// The groups of tests, each made by its own file.
std::unique_ptr<QObject> AboutTests();
std::unique_ptr<QObject> AccessibilityTests();
std::unique_ptr<QObject> ColoursTests();
std::unique_ptr<QObject> ControlsTests();
std::unique_ptr<QObject> DialogsTests();
std::unique_ptr<QObject> DisplaysTests();
std::unique_ptr<QObject> GraphTests();
std::unique_ptr<QObject> GridTests();
std::unique_ptr<QObject> ProgramTests();
std::unique_ptr<QObject> SetupDialogTests();

}  // namespace kelvra::desktop

int main(int argc, char** argv) {
    using namespace kelvra::desktop;
    QApplication application(argc, argv);
    int failures = 0;
    for (const auto& make :
         {AboutTests, AccessibilityTests, ColoursTests, ControlsTests, DialogsTests, DisplaysTests,
          GraphTests, GridTests, ProgramTests, SetupDialogTests})
        failures += QTest::qExec(make().get(), argc, argv);
    return failures == 0 ? 0 : 1;
}
