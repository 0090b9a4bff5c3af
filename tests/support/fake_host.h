// SPDX-License-Identifier: GPL-3.0-or-later
// The computer and the person as a test wants them: a clock that the test moves, events that happen
// round by round, dialogs that are noted, libraries made of the test's own functions.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/host.h"
#include "platform/timer_list.h"

namespace kelvra::test {

using Text = const std::string&;

// The test's clock, with a change to summer time if the test wants one.
class FakeClock final : public platform::SetClock {
public:
    using SetClock::SetClock;
    std::optional<platform::Duration> summerFrom;  // on the monotonic clock

    platform::LocalTime At(platform::Duration monotonic) override {
        if (!summerFrom || monotonic < *summerFrom) return SetClock::At(monotonic);
        platform::LocalTime time = SetClock::At(monotonic + std::chrono::hours(1));
        time.utcOffset = 60;
        return time;
    }
};

class FakeEvents final : public platform::Events {
public:
    explicit FakeEvents(platform::SetClock& clock) : clock_(clock) {}

    // What the person does in round 1, 2, ... of a run; the timers come after it.
    std::function<void(int round)> onRound;
    std::chrono::milliseconds roundTime{0};  // what every round takes
    int mostRounds = 200'000;
    int rounds = 0;
    bool quit = false;

    void DoEvents(std::chrono::milliseconds patience) override {
        clock_.Advance(patience + roundTime);
        if (++rounds > mostRounds) throw std::runtime_error("the events run without end");
        if (quit) return;
        if (onRound) onRound(rounds);
        if (!quit) timers_.RunDue(clock_.Monotonic());
    }
    void Repaint() override { ++repaints; }
    int repaints = 0;
    TimerId StartTimer(std::chrono::milliseconds interval, std::function<void()> handler) override {
        return timers_.Start(clock_.Monotonic(), interval, std::move(handler));
    }
    void StopTimer(TimerId timer) override { timers_.Stop(timer); }
    void Quit() override { quit = true; }
    // For the next program: nothing is left of the one before.
    void Renew() {
        timers_ = {};
        quit = false;
    }

private:
    platform::SetClock& clock_;
    platform::TimerList timers_;
};

class FakeDialogs final : public platform::Dialogs {
public:
    struct Shown {
        std::string title, text;
        bool operator==(const Shown&) const = default;
    };
    std::vector<Shown> messages;
    std::function<void()> onMessage;        // while a message box stands
    std::optional<std::string> fileAnswer;  // nothing: the person cancels
    platform::FileQuestion fileQuestion;    // the last one
    int filterAnswer = 1;
    std::function<void(FileAnswer)> onFileQuestion;  // keeps the answer for later

    void Message(Text title, Text text, platform::MessageIcon) override {
        messages.push_back({title, text});
        if (onMessage) onMessage();
    }
    std::function<void(std::function<void()>)> onConfirm;  // keeps the continuation for later
    void Confirm(Text title, Text text, platform::MessageIcon icon,
                 std::function<void()> confirmed) override {
        Message(title, text, icon);
        onConfirm ? onConfirm(std::move(confirmed)) : confirmed();
    }
    std::vector<std::string> copied;
    void CopyText(Text text) override { copied.push_back(text); }
    void LastMessage(Text text) override { Message({}, text, platform::MessageIcon::None); }
    void Prompt(Text, Text, Answer answer) override { answer(std::nullopt); }
    void AskFile(const platform::FileQuestion& question, FileAnswer answer) override {
        fileQuestion = question;
        if (onFileQuestion)
            onFileQuestion(std::move(answer));
        else if (fileAnswer)
            answer(platform::ChosenFile{*fileAnswer, filterAnswer});
        else
            answer(std::nullopt);
    }
    std::vector<int> helpTopics;
    platform::HelpPage helpPage;  // the last one
    void OpenHelp(const platform::HelpPage& page) override {
        helpTopics.push_back(page.topic);
        helpPage = page;
    }
    std::vector<std::string> opened;
    void OpenAddress(Text address) override { opened.push_back(address); }
    void OpenFolder(Text path) override { opened.push_back(path); }
    platform::ScreenSize Screen() override { return {28800, 16200}; }
};

using FunctionTable = std::map<std::string, void*>;

struct FakeLibrary final : platform::Library {
    explicit FakeLibrary(FunctionTable table) : functions(std::move(table)) {}
    void* Find(const char* name) override {
        return functions.contains(name) ? functions.at(name) : nullptr;
    }
    FunctionTable functions;
};

class FakeComputer final : public platform::Computer {
public:
    std::string folder;
    std::string commandLine;
    platform::ProgramVersion version{"Kelvra", 1, 0, 0};
    std::optional<platform::LocalTime> programDate;
    util::NumberForm numbers{".", ","};
    std::map<std::string, FunctionTable> libraries;  // by plain name; others are not found
    std::vector<std::string> registry;               // "key|name|value"
    std::error_code registryError;                   // of a write
    bool compiledHelp = false;

    std::string ProgramFolder() override { return folder; }
    std::string SystemFolder() override { return Join(folder, "System32"); }
    std::string WindowsFolder() override { return Join(folder, "Windows"); }
    platform::SystemDescription system{"Linux 6.1", "x86_64", "Debian 12", "C"};
    platform::SystemDescription Describe() override { return system; }
    std::optional<platform::WindowsVersion> windows;
    std::optional<platform::WindowsVersion> Windows() override { return windows; }
    std::string GuideFolder() override { return "guide"; }
    bool OpensCompiledHelp() override { return compiledHelp; }
    std::string DrivePath(Text path) override {
        std::string below = path.substr(std::min<std::size_t>(path.size(), 3));
        std::replace(below.begin(), below.end(), '\\', '/');
        return Join(folder, below);
    }
    std::string Join(Text parent, Text name) override { return parent + "/" + name; }
    std::string CommandLine() override { return commandLine; }
    platform::ProgramVersion Version() override { return version; }
    std::optional<platform::LocalTime> ProgramFileDate() override { return programDate; }
    const util::NumberForm& Numbers() override { return numbers; }
    std::string DateText(const platform::LocalTime&) override { return "date"; }
    std::string TimeText(const platform::LocalTime& time) override {
        return std::to_string(time.hour) + ":" + std::to_string(time.minute);
    }
    platform::LoadedLibrary LoadDriverLibrary(Text name) override {
        const std::string file = "lib" + name + ".so";
        if (!libraries.contains(name)) return {nullptr, file, "no such file"};
        return {std::make_unique<FakeLibrary>(libraries.at(name)), file, "", "/drivers/" + file};
    }
    std::map<std::string, std::string> names;  // in the registry, by their names there
    std::error_code WriteRegistry(Text key, Text name, Text value) override {
        if (registryError) return registryError;
        registry.push_back(key + "|" + name + "|" + value);
        names.insert_or_assign(name, value);
        return registryError;
    }
    std::optional<std::string> ReadRegistry(Text, Text name) override {
        const auto found = names.find(name);
        return found == names.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<std::string> OwnRegistry() override { return folder + "/registry.ini"; }
};

struct FakeHost {
    explicit FakeHost(platform::Files& files)
        : host{events, dialogs, clock, files, computer, random} {}

    FakeClock clock{platform::LocalTime{2005, 3, 7, 12, 0, 0, 0}};
    FakeEvents events{clock};
    FakeDialogs dialogs;
    FakeComputer computer;
    util::Random random{1};
    platform::Host host;
};

}  // namespace kelvra::test
