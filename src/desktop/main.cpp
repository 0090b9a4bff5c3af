// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "desktop/desktop.h"
#include "desktop/program_style.h"
#include "options/options.h"
#include "options/surroundings.h"
#include "platform/native.h"

namespace {

using namespace kelvra;

constexpr int NoDisplay = 3;
constexpr int NoDataFolder = 4;

void Complain(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fwrite("\n", 1, 1, stderr);
}

// The toolkit ends the program when it can't reach the display or lacks its plugin, and says which;
// our message comes after that. Used only until the application has been created.
void OnStartingToolkit(QtMsgType type, const QMessageLogContext&, const QString& message) {
    Complain(message.toStdString());
    if (type != QtFatalMsg) return;
    Complain(
        "kelvra: the display can't be reached, or the toolkit's plugin for it is missing; "
        "kelvra-console measures without a display.");
    std::_Exit(NoDisplay);
}

bool DisplayIsNamed() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return true;
    return false;
}

// The system asks the program to end: the exit routine runs. A session manager asks the program to
// save first, which does not always mean an end; the end itself comes as a request to close the
// window.
void ExitWhenAsked(QApplication& application, app::Kelvra& kelvra) {
    platform::WatchForTermination();
    auto* notifier =
        new QSocketNotifier(platform::TerminationDescriptor(), QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, [notifier, &kelvra] {
        notifier->setEnabled(false);
        kelvra.Exit();
    });
    QObject::connect(&application, &QGuiApplication::commitDataRequest,
                     [&kelvra](QSessionManager&) { kelvra.SaveSettings(); });
}

// The toolkit ends the process at once when the display goes away. Only this pointer leads back to
// the program then.
app::Kelvra* cutOff = nullptr;

void ExitWhenCutOff() {
    if (cutOff != nullptr) cutOff->Exit();
}

int Run(QApplication& application, const options::Options& chosen) {
    options::Surroundings surroundings(chosen, chosen.words);
    const std::string folder = surroundings.Computer().ProgramFolder();
    std::error_code folderError = surroundings.DataFolderError();
    if (!folderError && !surroundings.Files().Writable(folder))
        folderError = std::make_error_code(std::errc::permission_denied);
    if (folderError) {
        Complain("kelvra: the data folder " + folder + " can't be used: " + folderError.message());
        return NoDataFolder;
    }
    desktop::QtEvents events(surroundings.Clock(), surroundings.OwnClock());
    desktop::QtDialogs dialogs;
    platform::Host host = surroundings.HostWith(events, dialogs);
    app::Kelvra kelvra(host);
    ExitWhenAsked(application, kelvra);
    kelvra.Start();
    const desktop::Desktop desktop(kelvra, events, dialogs, folder);
    cutOff = &kelvra;
    std::atexit(ExitWhenCutOff);
    const int status = events.HasQuit() ? 0 : QApplication::exec();
    cutOff = nullptr;
    if (!kelvra.store.SaveFailure().empty()) Complain("kelvra: " + kelvra.store.SaveFailure());
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    const options::Parsed parsed =
        options::Parse(argc, argv, {"kelvra", "Kelvra operates several USB power sensors.", ""});
    if (!parsed.options) return options::Report(parsed);
    if (!DisplayIsNamed()) {
        Complain("kelvra: there is no display; kelvra-console measures without one.");
        return NoDisplay;
    }
    qInstallMessageHandler(OnStartingToolkit);
    int toolkitArgc = 1;  // the toolkit gets no options: the command line is Kelvra's
    QApplication application(toolkitArgc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setStyle(new desktop::ProgramStyle);
    QApplication::setApplicationName("Kelvra");
    QApplication::setDesktopFileName("kelvra");
    return Run(application, *parsed.options);
}
