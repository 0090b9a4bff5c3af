// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <csignal>

#include "console/running_console.h"

namespace kelvra::console {
namespace {

using test::RunningConsole;

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
        {"echo last line without an end", "last line without an end\n"},
        {"echo a\r\necho b\r\n", "a\nb\n"},
        {"\n\r\n   \n# echo c\n  # echo d\n  echo  e \n", " e \n"},
        {"echo\necho \n", "\n\n"},
        {"echo a\0b\n"s, "a\0b\n"s},
        {"echo \xff\xe2\x82\xac\n", "\ufffd\u20ac\n"},
        {"echo " + longText + "\n", longText + "\n"},
    };
    for (const auto& c : cases) {
        const auto end = RunScript(c.script);
        EXPECT_EQ(end.output, c.output);
        EXPECT_EQ(end.errors, "");
        EXPECT_EQ(end.status, 0);
    }
}

TEST(Script, EndsAtTheFirstCommandThatFails) {
    const struct {
        const char* command;
        const char* why;
    } cases[] = {
        {"fly", "there is no command fly"},
        {"\xff\x01", "there is no command \ufffd\x01"},
        {"click", "the name of a control is missing"},
        {"click Nothing", "there is no control Nothing"},
        {"click startit", "there is no control startit"},
        {"click StopIt", "StopIt is disabled"},
        {"click SensInfo", "SensInfo is disabled"},       // its frame is
        {"type ScopePoints 5", "ScopePoints is hidden"},  // its page is
        {"type StartIt 5", "not for a button"},
        {"click Frame1", "several windows have a Frame1"},
        {"choose SensSyncMode Never", "the list has no entry Never"},
        {"choose SensSyncMode #3", "the list has no entry #3"},
        {"choose SensSyncMode #-1", "the list has no entry #-1"},
        {"press StartIt", "the key is missing"},
        {"cell ResultGrid 99999999999 0", "the grid has no such cell"},
        {"cell ResultGrid 1 6", "the grid has no such cell"},
        {"cell ResultGrid 1 0 twice", "what is twice?"},
        {"drag Scope 0 1", "there is no control Scope"},
        {"resize Nowhere 1 1", "there is no such window"},
        {"resize MDIMain 1 x", "width and height are whole numbers of twips"},
        {"close Nowhere", "there is no such window"},
        {"wait passes 1", "no measurement runs"},
        {"wait ms -1", "wait passes N, wait ms N or wait idle"},
        {"wait for me", "wait passes N, wait ms N or wait idle"},
    };
    for (const auto& c : cases) {
        const auto end = RunScript("# first\n" + std::string(c.command) + "\necho not reached\n");
        EXPECT_EQ(end.errors, "error: 2: " + std::string(c.why) + "\n");
        EXPECT_EQ(end.output, "") << c.command;
        EXPECT_EQ(end.status, 1) << c.command;
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

TEST(Script, TheEndOfTheInputRunsTheExitRoutine) {
    RunningConsole console(KELVRA_BENCH_FOLDER);
    console.Write("click StartIt\necho measuring\n");
    EXPECT_EQ(console.Line(), "measuring\n");
    EXPECT_EQ(console.Finish().status, 0);
    EXPECT_NE(console.data.Get("Kelvra.INI").find("[PS-101;100001_MODE]"), std::string::npos);
}

TEST(Script, ATerminationRunsTheExitRoutine) {
    RunningConsole console(KELVRA_BENCH_FOLDER);
    console.Write("click StartIt\necho measuring\nwait passes 1000000000\n");
    EXPECT_EQ(console.Line(), "measuring\n");
    console.Signal(SIGTERM);
    EXPECT_EQ(console.Line(), "");  // the input is still open
    EXPECT_EQ(console.Finish().status, 1);
    EXPECT_NE(console.data.Get("Kelvra.INI").find("[PS-101;100001_MODE]"), std::string::npos);
}

TEST(Script, AScriptThatCannotBeReadIsWrongUsage) {
    const auto end = RunScript("", {"no such script.kel"});
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.errors,
              "The script no such script.kel can't be read: No such file or directory\n");
}

}  // namespace
}  // namespace kelvra::console
