// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/recorder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

#include "support/whole_kelvra.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
using test::FaultyFiles;

class RecorderTest : public testing::Test, public test::WholeKelvra {
protected:
    void Record(const std::string& file, std::unique_ptr<RecordFormat> format) {
        EXPECT_FALSE(program->recorder.Begin(folder.Path(file), 1, std::move(format)));
    }
    std::vector<std::string> Lines(const std::string& file) const {
        std::istringstream text(folder.Get(file));
        std::vector<std::string> lines;
        for (std::string line; std::getline(text, line);) lines.push_back(line);
        return lines;
    }
};

TEST_F(RecorderTest, AFaultCostsTheLineThatIsBeingWrittenAndIsReportedOnce) {
    const std::string heading = "Date;Time;A (W);A (dBm);B (W);B (dBm); (W); (dBm);\r";
    const std::string line = "date ;12:0 ;1  ;30  ;1  ;30  ;\r";
    const std::string remark = "12:0.200;  <comment___>; 1 line is missing: ";
    for (const auto fault : {FaultyFiles::Fault::Fail, FaultyFiles::Fault::Short})
        for (int operation = 1; operation <= 3; ++operation) {  // open, write, close
            WholeKelvra run;
            run.StartWith(2);
            run.driver.reading = 1;
            const std::string path = run.folder.Path("a.csv");
            ASSERT_FALSE(run.program->recorder.Begin(path, 1, MakeTableFormat(run.fake.computer)));
            int reports = 0;
            bool planned = false;
            run.fake.events.onRound = [&](int) {
                const auto passes = run.program->state.passes;
                if (passes == 1 && !std::exchange(planned, true)) run.files.Plan(operation, fault);
                reports +=
                    passes == 2 && run.Notice().find("can't be written") != std::string::npos;
                if (passes == 4) run.PressStop();
            };
            run.PressStart();
            const bool lost = fault == FaultyFiles::Fault::Fail;
            std::string wanted = heading + "\n" + line + "\n";
            if (lost)
                wanted += remark + "No space left on device\r\n";
            else
                wanted += line + "\n";
            for (int rest = 0; rest < 2; ++rest) wanted += line + "\n";
            EXPECT_EQ(run.folder.Get("a.csv"), wanted) << operation;
            EXPECT_EQ(reports > 0, lost) << operation;
            EXPECT_EQ(run.program->recorder.Latest().missing, lost ? 1 : 0);
        }
}

TEST_F(RecorderTest, AFileThatHasGoneIsNotMadeAnewAndGoesOnWhenItIsBack) {
    StartWith(1);
    Record("a.csv", MakeAnalysisFormat());
    files.freeSpace = std::uint64_t{5} << 20;
    std::string away;
    fake.events.onRound = [&](int) {
        const auto passes = program->state.passes;
        if (passes == 2 && away.empty()) {
            away = folder.Get("a.csv");
            EXPECT_TRUE(program->forms.mdiMain.lblRecord.caption->starts_with(
                "Disk has only 5 MB left; 2 lines in 0:00:0"));
            files.Remove(folder.Path("a.csv"));
        }
        if (passes == 4 && !files.Exists(folder.Path("a.csv"))) folder.Put("a.csv", away);
        if (passes == 5) PressStop();
    };
    PressStart();
    const auto lines = Lines("a.csv");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], "Time,A (W),A (dBm)\r");
    EXPECT_EQ(program->recorder.Latest().missing, 2);
    EXPECT_EQ(Notice().find("can't be written"), std::string::npos);
}

// A night with a change to summer time: one line a second, none missing, none late.
TEST_F(RecorderTest, EightHoursOfLinesKeepTheirSecondsAcrossMidnightAndIntoSummerTime) {
    constexpr int lineCount = 8 * 3600;
    StartWith(1);
    fake.clock.AdvanceTo(std::chrono::hours(10));  // 22:00
    fake.clock.summerFrom = std::chrono::hours(14);
    fake.events.roundTime = milliseconds(20);
    fake.events.mostRounds = 3 * lineCount * 50;
    driver.reading = 1;
    Record("night.csv", MakeAnalysisFormat());
    bool late = false;  // a pass begins late once: the seconds stay where they were
    fake.events.onRound = [&](int) {
        if (program->state.passes == 100 && Notice().starts_with("Delaying") &&
            !std::exchange(late, true))
            fake.clock.Advance(milliseconds(1200));
        if (program->state.passes == lineCount) PressStop();
    };
    PressStart();
    const auto lines = Lines("night.csv");
    ASSERT_EQ(lines.size(), 1U + lineCount);
    const struct {
        int line;
        std::string second;
        std::string offset;
    } cases[] = {
        {1, "2005-03-07T22:00:00", "+00:00"},     {7200, "2005-03-07T23:59:59", "+00:00"},
        {7201, "2005-03-08T00:00:00", "+00:00"},  {14400, "2005-03-08T01:59:59", "+00:00"},
        {14401, "2005-03-08T03:00:00", "+01:00"}, {lineCount, "2005-03-08T06:59:59", "+01:00"}};
    for (const auto& c : cases) {
        const std::string& line = lines[static_cast<std::size_t>(c.line)];
        EXPECT_EQ(line.substr(0, 19), c.second);
        EXPECT_EQ(line.substr(23), c.offset + ",1,30\r");
        EXPECT_NEAR(std::stoi(line.substr(20, 3)), std::stoi(lines[1].substr(20, 3)), 50) << line;
    }
}

TEST(RecordFormats, NumbersNamesAndRemarksAreAsEachFormHasThem) {
    test::FakeComputer german;
    german.numbers = {",", "."};
    const std::vector<RecordedSlot> slots{{" A\r\n", true, true, {{1.5e-5, -18.25}}},
                                          {"say \"x, y\"", true, false, std::nullopt},
                                          {" A", true, true, {{INFINITY, NAN}}},
                                          {"", false, false, std::nullopt}};
    const platform::LocalTime time{2005, 3, 7, 1, 2, 3, 45, -330};
    const auto table = MakeTableFormat(german);
    const auto csv = MakeAnalysisFormat();
    const std::pair<std::string, std::string> cases[] = {
        {table->Heading(slots),
         "Date;Time;A (W);A (dBm);say \"x, y\" (W);say \"x, y\" (dBm);A (W);A (dBm); (W); "
         "(dBm);\r\n"},
        {table->Line(time, slots), "date ;1:2 ;1,5E-05  ;-18,25  ; ; ;Inf  ;NaN  ;\r\n"},
        {table->Remark(time, "gap"), "1:2,045;  <comment___>; gap\r\n"},
        {csv->Heading(slots), "Time,A (W),A (dBm),A [3] (W),A [3] (dBm)\r\n"},
        {csv->Line(time, slots), "2005-03-07T01:02:03.045-05:30,1.5e-05,-18.25,,\r\n"},
        {csv->Remark(time, "gap"), ""},
    };
    for (const auto& [text, wanted] : cases) EXPECT_EQ(text, wanted);
}

}  // namespace kelvra::measure
