// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "support/temp_folder.h"

namespace kelvra::console {
namespace {

void Require(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

void CloseEnd(int& end) {
    if (end >= 0) ::close(std::exchange(end, -1));
}

std::string ReadAll(int end) {
    std::string bytes;
    char buffer[4096];
    for (ssize_t got = 0; (got = ::read(end, buffer, sizeof buffer)) > 0;)
        bytes.append(buffer, static_cast<std::size_t>(got));
    return bytes;
}

// A console program at the other end of three pipes, with a data folder of its own and a clock of
// its own, fed from standard input.
class RunningConsole {
public:
    // Without a driver folder it simulates.
    explicit RunningConsole(const std::string& driverDir = {},
                            const std::vector<std::string>& words = {}) {
        // clang-format off
        std::vector<std::string> arguments{
            KELVRA_CONSOLE, "--data-dir", data.Path(),
            "--driver-dir", driverDir.empty() ? data.Path() : driverDir,
            "--clock", "2005-03-07 12:00:00", "--seed", "1"};
        // clang-format on
        arguments.insert(arguments.end(), words.begin(), words.end());
        std::vector<char*> pointers;
        for (std::string& argument : arguments) pointers.push_back(argument.data());
        pointers.push_back(nullptr);

        for (int* pipe : {input_, output_, errors_})
            Require(::pipe2(pipe, O_CLOEXEC) == 0, "no pipe");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input_[0], STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, output_[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, errors_[1], STDERR_FILENO);
        const int error =
            ::posix_spawn(&process_, KELVRA_CONSOLE, &actions, nullptr, pointers.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        Require(error == 0, "the console does not start");
        CloseEnd(output_[1]);
        CloseEnd(errors_[1]);
    }
    RunningConsole(const RunningConsole&) = delete;
    RunningConsole& operator=(const RunningConsole&) = delete;
    ~RunningConsole() {
        for (int* pipe : {input_, output_, errors_})
            for (int end = 0; end < 2; ++end) CloseEnd(pipe[end]);
        if (process_ > 0) ::waitpid(process_, nullptr, 0);
    }

    void Write(const std::string& bytes) const {
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t written = ::write(input_[1], bytes.data() + done, bytes.size() - done);
            Require(written > 0, "the console takes no input");
            done += static_cast<std::size_t>(written);
        }
    }
    // The next line of output, with its end; waits for it.
    std::string Line() const {
        std::string line;
        for (char byte = 0; byte != '\n' && ::read(output_[0], &byte, 1) == 1;) line += byte;
        return line;
    }
    void Signal(int signal) const { ::kill(process_, signal); }

    struct End {
        int status;
        std::string output, errors, unread;  // unread: what is left in the input pipe
    };
    // Ends the input, and waits for the program.
    End Finish() {
        CloseEnd(input_[1]);
        End end{};
        end.output = ReadAll(output_[0]);
        end.errors = ReadAll(errors_[0]);
        int status = 0;
        ::waitpid(std::exchange(process_, -1), &status, 0);
        end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        end.unread = ReadAll(input_[0]);
        return end;
    }

    test::TempFolder data;

private:
    pid_t process_ = -1;
    int input_[2] = {-1, -1};  // to read, to write
    int output_[2] = {-1, -1};
    int errors_[2] = {-1, -1};
};

RunningConsole::End RunScript(const std::string& script,
                              const std::vector<std::string>& words = {}) {
    RunningConsole console({}, words);
    console.Write(script);
    return console.Finish();
}

TEST(Script, TakesAnyBytesLineByLine) {
    using namespace std::string_literals;
    const std::string longText(100'000, 'x');
    const struct {
        std::string script;
        std::string output;
    } cases[] = {
        {"", ""},
        {"echo a\r\necho b\r\n", "a\nb\n"},
        {"\n\r\n   \n# echo c\n  # echo d\n  echo  e \n", " e \n"},
        {"echo\necho \n", "\n\n"},
        {"echo a\0b\n"s, "a\0b\n"s},
        {"echo \xff\xe2\x82\xac\n", "\ufffd\u20ac\n"},
        {"echo " + longText + "\n", longText + "\n"},
    };
    for (const auto& [script, output] : cases) {
        const auto end = RunScript(script);
        EXPECT_EQ(end.output, output);
        EXPECT_EQ(end.errors, "");
        EXPECT_EQ(end.status, 0);
    }
}

TEST(Script, EndsAtTheFirstCommandThatFails) {
    const struct {
        std::string command;
        std::string why;
    } cases[] = {
        {"fly", "there is no command fly"},
        {"\xff\x01", "there is no command \ufffd\x01"},
        {"click", "the name of a control is missing"},
        {"click Nothing", "there is no control Nothing"},
        {"click StopIt", "StopIt is disabled"},
        {"click SensInfo", "SensInfo is disabled"},       // its frame is
        {"type ScopePoints 5", "ScopePoints is hidden"},  // its page is
        {"type StartIt 5", "not for a button"},
        {"click Frame1", "several windows have a Frame1"},
        {"choose SensSyncMode Never", "the list has no entry Never"},
        {"choose SensSyncMode #3", "the list has no entry #3"},
        {"press StartIt", "the key is missing"},
        {"press MeasSpeedInfo F1", "not for a label"},
        {"click SensSyncMode", "not for a list"},
        {"click line1", "a separator can't be clicked"},
        {"click PageSelect", "an option is named like Option1"},
        {"cell ResultGrid 1 6", "the grid has no such cell"},
        {"cell ResultGrid 1 0 twice", "after the cell comes press or nothing"},
        {"drag Scope 0 1", "there is no control Scope"},
        {"resize Nowhere 1 1", "there is no such window"},
        {"resize MDIMain 1 x", "width and height are whole numbers of twips"},
        {"wait passes 1", "no measurement runs"},
        {"wait ms -1", "wait passes N [MS], wait ms N or wait idle"},
        {"wait passes 1 soon", "wait passes N [MS], wait ms N or wait idle"},
    };
    for (const auto& [command, why] : cases) {
        const auto end = RunScript("# first\n" + command + "\necho not reached\n");
        EXPECT_EQ(end.errors, "error: 2: " + why + "\n");
        EXPECT_EQ(end.output, "") << command;
        EXPECT_EQ(end.status, 1) << command;
    }
}

TEST(Script, PrintAndDumpShowWhatIsOutOfReach) {
    const auto end = RunScript("print ScopePoints\nprint StopIt\ndump SensAvgMode(1)\n");
    EXPECT_EQ(end.output,
              "312\n\n"
              "{\"name\":\"SensAvgMode(1)\",\"kind\":\"option\",\"enabled\":true,\"visible\":true,"
              "\"caption\":\"Fixed Noise: Content\",\"checked\":false}\n");
}

TEST(Script, GoesOnInsideTheHandlerThatRuns) {
    const auto end = RunScript(
        "click StartIt\nwait passes 2\nwait ms 5\nwait passes 1\necho measured\n"
        "click StopIt\nwait idle\nwait idle\nwait ms 0\necho idle\n",
        {"--echo"});
    EXPECT_EQ(
        end.output,
        "> click StartIt\n> wait passes 2\n> wait ms 5\n> wait passes 1\n> echo measured\n"
        "measured\n> click StopIt\n> wait idle\n> wait idle\n> wait ms 0\n> echo idle\nidle\n");
    EXPECT_EQ(end.errors, "");
    EXPECT_EQ(end.status, 0);
}

TEST(Script, AWaitForPassesFailsWhenTheMeasurementEndsBefore) {
    const auto end = RunScript(
        "cell ResultGrid 1 0\ncell ResultGrid 2 0\nclick StartIt\nwait passes 1\necho not "
        "reached\n");
    EXPECT_EQ(end.output, "message: Kelvra | No operational sensor selected\n");
    EXPECT_EQ(end.errors, "error: 4: the measurement ended before the passes were complete\n");
    EXPECT_EQ(end.status, 1);
}

TEST(Script, AWaitForPassesFailsWhenItsTimeIsUp) {
    RunningConsole untriggered(KELVRA_BENCH_FOLDER);
    untriggered.Write("click StartIt\nwait passes 1 60000\necho not reached\n");
    auto end = untriggered.Finish();
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.errors, "error: 2: the time ran out before the passes were complete\n");
    EXPECT_EQ(end.status, 1);
    end = RunScript("click StartIt\nwait passes 2 60000\nclick StopIt\nwait idle\necho idle\n");
    EXPECT_EQ(end.output + end.errors, "idle\n");
}

// What a program that a shell has started says in the end, with its status. It is ended when it
// hangs.
std::string SaidInShell(const test::TempFolder& data, const std::string& setUp,
                        const std::string& rest) {
    const std::string command = "(" + setUp + " timeout -s KILL 60 " + KELVRA_CONSOLE +
                                " --data-dir " + data.Path() + " --driver-dir " +
                                KELVRA_BENCH_FOLDER + " " + rest + "; echo $?) 2>&1 | cat >" +
                                data.Path("said");
    EXPECT_EQ(std::system(command.c_str()), 0);
    return data.Get("said");
}

TEST(Script, AClosedInputIsAnEmptyOneAndAClosedOutputFails) {
    const test::TempFolder data;
    data.Put("echo.kel", "echo a\n");
    EXPECT_EQ(SaidInShell(data, "", "- <&-"), "0\n");
    EXPECT_EQ(SaidInShell(data, "", data.Path("echo.kel") + " >&-"), "1\n");
}

TEST(Script, ALineWithoutAnEndIsRefusedAtItsLimit) {
    const test::TempFolder data;
    EXPECT_EQ(SaidInShell(data, "head -c 20000000 /dev/zero | tr '\\0' x |", "-"),
              "error: 1: the line is longer than 1 MiB\n1\n");
}

TEST(Script, AFileSizeLimitFailsTheSaveAndLeavesNoPart) {
    const test::TempFolder data;
    EXPECT_EQ(
        SaidInShell(data, "ulimit -f 0;", "- </dev/null"),
        "The settings could not be saved: " + data.Path("Kelvra.INI") + ": File too large\n0\n");
    EXPECT_EQ(data.Names(), (std::set<std::string>{"kelvra-save.lock", "kelvra-use.lock", "said"}));
}

TEST(Script, AnInputIsAnsweredBeforeTheNextLineIsThere) {
    RunningConsole console;
    console.Write("echo one\n");
    EXPECT_EQ(console.Line(), "one\n");
    console.Write("click StartIt\nwait passes 1\nprint ConSensors\n");
    EXPECT_EQ(console.Line(), "Simulation Mode\n");
    console.Write("click StopIt\nwait idle\nprint Sta");
    console.Write("rtIt\necho two\n");
    EXPECT_EQ(console.Line(), "\n");
    EXPECT_EQ(console.Line(), "two\n");
    EXPECT_EQ(console.Finish().status, 0);
}

TEST(Script, NothingIsReadAhead) {
    EXPECT_EQ(RunScript("echo a\nclose\necho b\nrest").unread, "echo b\nrest");
    EXPECT_EQ(RunScript("fly\necho b\n").unread, "echo b\n");
}

TEST(Script, TheEndOfTheInputAndATerminationRunTheExitRoutine) {
    for (const bool terminates : {false, true}) {
        RunningConsole console(KELVRA_BENCH_FOLDER);
        console.Write("click StartIt\necho measuring\n");
        if (terminates) console.Write("wait passes 1000000000\n");
        EXPECT_EQ(console.Line(), "measuring\n");
        if (terminates) {
            console.Signal(SIGTERM);
            EXPECT_EQ(console.Line(), "");  // the input is still open
        }
        EXPECT_EQ(console.Finish().status, terminates ? 1 : 0);
        EXPECT_NE(console.data.Get("Kelvra.INI").find("[PS-101;100001_MODE]"), std::string::npos);
    }
}

TEST(Script, AScriptThatCannotBeReadIsWrongUsage) {
    const auto end = RunScript("", {"no such script.kel"});
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.errors,
              "The script no such script.kel can't be read: No such file or directory\n");
}

}  // namespace
}  // namespace kelvra::console
