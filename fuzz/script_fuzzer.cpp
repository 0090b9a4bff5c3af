// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a script: the whole program without a driver, on a clock of its own, with files in
// memory. Every script must end the program through its exit routine.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "console/script.h"
#include "memory_files.h"
#include "support/fake_host.h"
#include "util/text.h"

namespace {

using namespace kelvra;

// Enough for a few passes; a script may wait without end.
constexpr int MostRounds = 400;

class MemoryLines final : public platform::LineInput {
public:
    explicit MemoryLines(std::string_view bytes) : bytes_(bytes) {}

    Result Read(std::string& line, platform::Duration) override {
        if (bytes_.empty()) return Result::End;
        const auto split = util::SplitAtFirst(bytes_, '\n');
        line = split.before;
        bytes_ = split.after;
        return Result::Line;
    }

private:
    std::string_view bytes_;
};

// The script, ended after its rounds as a signal would end it.
class BoundedScript final : public console::EventSource {
public:
    explicit BoundedScript(console::Script& script) : script_(script) {}

    bool Step(platform::Duration patience) override { return script_.Step(patience); }
    std::optional<platform::Duration> WakesAt() const override { return script_.WakesAt(); }
    bool EndRequested() const override { return ++rounds_ > MostRounds; }
    void End() override { script_.End(); }

private:
    console::Script& script_;
    mutable int rounds_ = 0;
};

std::FILE* Nowhere() {
    static std::FILE* const NullDevice = std::fopen("/dev/null", "w");
    if (NullDevice == nullptr) std::abort();
    return NullDevice;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::MemoryFiles files;
    platform::SetClock clock({2005, 3, 7, 12, 0, 0, 0});
    test::FakeComputer computer;
    computer.folder = "/folder";
    util::Random random(1);
    console::Output output(Nowhere());
    console::Output errors(Nowhere());
    console::ScriptEvents events(clock, &clock);
    console::ScriptDialogs dialogs(output);
    platform::Host host{events, dialogs, clock, files, computer, random};
    app::Kelvra kelvra(host);
    MemoryLines lines({reinterpret_cast<const char*>(data), size});
    console::Script script({kelvra, lines, dialogs, output, errors, clock, true, true});
    BoundedScript bounded(script);
    events.Connect(bounded);
    kelvra.Start();
    events.Run();
    if (!kelvra.state.exiting || kelvra.state.commandRuns) std::abort();
    return 0;
}
