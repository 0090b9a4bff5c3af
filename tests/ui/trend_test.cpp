// SPDX-License-Identifier: GPL-3.0-or-later
// The trend window and its limits, with what a driver, a file or a hurried user can bring.
#include <gtest/gtest.h>

#include <cmath>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::ui {

using controls::Graph;
using namespace std::chrono_literals;

class TrendTest : public testing::Test, public test::WholeKelvra {
protected:
    // A pass takes a second.
    void Begin(int sensors) {
        driver.onCall = [this](std::string_view name) {
            if (name == "psdrv_chans_initiate") fake.clock.Advance(1s);
        };
        StartWith(sensors);
        program->forms.mdiMain.WindowTrend.Press();
        Form().TrendSpan.Choose(0);
    }
    forms::TrendForm& Form() { return program->forms.trendForm; }
    const std::vector<Graph::Series>& Series() { return Form().TrendGraph.AllSeries(); }
    std::string Value(int row, int column) { return Form().TrendValues.At(row, column).Text(); }
    // The stretches of the first sensor's line, by the seconds that each is long.
    std::string Stretches() {
        std::string text;
        int columns = 0;
        for (const double value : Form().TrendGraph.Curve().values) {
            if (std::isfinite(value)) {
                ++columns;
                continue;
            }
            if (columns > 0) text += " " + std::to_string((columns - 1) / 20);
            columns = 0;
        }
        return text;
    }
    void Limit(controls::TextField& box, const char* text) {
        box.Type(text);
        box.PressKey("Enter");
    }
};

TEST_F(TrendTest, FailedFetchesStopsAndPausesOfASensorLeaveGaps) {
    Begin(2);
    int fetches = 0;
    driver.status = [&](std::string_view name, int) {
        if (name != "psdrv_meass_fetchMeasurement") return 0;
        return ++fetches / 2 == 4 ? 7 : 0;
    };
    Measure(12);
    EXPECT_EQ(Stretches(), " 3 6");
    fake.clock.Advance(5s);
    Measure(4);
    EXPECT_EQ(Stretches(), " 3 6 3");
    EXPECT_EQ(Value(1, 1), "0.000");
    // The window has been closed; nothing is lost.
    Form().PersonCloses();
    Measure(5);
    EXPECT_EQ(Stretches(), " 3 6 3");
    program->forms.mdiMain.WindowTrend.Press();
    EXPECT_EQ(Stretches(), " 3 6 3 4");
}

TEST_F(TrendTest, APausedPictureStandsStillAndZoomingShowsWhatWasThen) {
    Begin(1);
    Measure(10);
    Form().TrendPause.Toggle();
    const Graph::Axes axes = Form().TrendGraph.ShownAxes();
    driver.reading = 0.002;
    Measure(10);
    EXPECT_EQ(Form().TrendGraph.ShownAxes(), axes);
    EXPECT_EQ(Value(1, 3), "0.000");
    EXPECT_EQ(Stretches(), " 9");
    Form().TrendZoom.Press();
    EXPECT_TRUE(Form().TrendGraph.Zoom({axes.x.max - 5, axes.x.max}, axes.y));
    EXPECT_NEAR(Form().TrendGraph.Curve().step, 5.0 / 1200, 1e-6);
    EXPECT_EQ(Value(1, 3), "0.000");
    Form().TrendGraph.Zoom({-1e300, 1e300}, axes.y);
    Form().TrendGraph.Zoom({axes.x.max, std::nextafter(axes.x.max, 1e300)}, axes.y);
    Form().TrendZoom.Press();
    EXPECT_EQ(Form().TrendGraph.ShownAxes(), axes);
    Form().TrendPause.Toggle();
    EXPECT_GT(Form().TrendGraph.ShownAxes().x.min, axes.x.min);  // what came meanwhile
    EXPECT_EQ(Value(1, 3), "3.010");
    Form().TrendUnit.Choose(1);
    EXPECT_EQ(Value(1, 3), "2.0000E-03");
    EXPECT_EQ(Form().TrendGraph.yTitle.Get(), "Power (W)");
}

TEST_F(TrendTest, ASensorKeepsItsReadingsInAnySlotAndWhenItHasGone) {
    Begin(2);
    Measure(3);
    program->forms.statusForm.ResultGrid.ClickCell(1, NameColumn);  // A is off
    driver.reading = 0.01;
    Measure(3);
    EXPECT_EQ(program->table[0].logicalName, "B");
    EXPECT_EQ(Value(1, 0) + Value(1, 3), "B10.000");
    EXPECT_EQ(Value(2, 0) + Value(2, 3), "A0.000");
    driver.devices.clear();
    Tick();
    EXPECT_EQ(Value(3, 0) + Value(3, 3), "A0.000");  // below the simulated ones
    EXPECT_EQ(Form().TrendSensor.Count(), 4);
    Form().ClearTrend.Press();
    EXPECT_EQ(Form().TrendSensor.Count(), 2);
    EXPECT_EQ(Series().size(), 0U);
}

TEST_F(TrendTest, AReadingOutsideIsMarkedAndCountedUntilItIsInsideAgain) {
    Begin(2);
    Form().TrendSensor.Choose(1);
    const struct {
        const char* low;
        const char* high;
        double reading;
        bool marked;
        const char* tooltip;
        const char* outside;
    } cases[] = {
        {"-3", "3", 0.001, false, "", "0"},
        {"-3", "3", 0.01, true, "Above the high limit of 3 dBm", "1"},
        {"", "3", 1e-9, false, "", "1"},
        {"-3,5", "", 0, false, "", "1"},  // no number: the low limit stays
        {"-3.5", "", 0, true, "Below the low limit of -3.5 dBm", "2"},
        {"1", "0", 0.001, true, "Below the low limit of 1 dBm", "2"},  // a high limit below it
        {"", "", 0.1, false, "", "2"},
    };
    for (const auto& c : cases) {
        Limit(Form().LowLimit, c.low);
        Limit(Form().HighLimit, c.high);
        driver.reading = c.reading;
        if (c.reading != 0.001 || !c.marked) Measure(1);
        EXPECT_EQ(Cell(1, DbmColumn).faulty, c.marked) << c.low << c.high;
        EXPECT_EQ(Cell(1, DbmColumn).tooltip, c.tooltip);
        EXPECT_EQ(Cell(1, WattColumn).look.back, c.marked ? controls::Rose : controls::White);
        EXPECT_EQ(Cell(0, DbmColumn).look.back, controls::White);
        EXPECT_EQ(Value(2, 5), c.outside) << c.low << c.high;
        EXPECT_EQ(Value(1, 5), "");
    }
    Form().ResetCounts.Press();
    EXPECT_EQ(Value(2, 5), "");
    Limit(Form().HighLimit, "19");  // a limit judges what is shown, and counts nothing
    EXPECT_TRUE(Cell(1, DbmColumn).faulty);
    EXPECT_EQ(Value(2, 5), "0");
    EXPECT_EQ(Form().TrendGraph.Limits().high, 19);
    program->windows.limits.Started();  // the next measurement
    EXPECT_EQ(Cell(1, DbmColumn).look.back, controls::White);
    EXPECT_EQ(Cell(1, DbmColumn).tooltip, "");
    Measure(1);
    EXPECT_TRUE(Cell(1, DbmColumn).faulty);
    driver.devices[1].connected = 0;
    Tick();
    EXPECT_FALSE(Cell(1, DbmColumn).faulty);
}

TEST_F(TrendTest, LimitsComeBackInTheNextRunAndAFailedSaveIsSaid) {
    Begin(1);
    Limit(Form().LowLimit, "-5");
    files.Plan(1, test::FaultyFiles::Fault::Fail);
    Limit(Form().HighLimit, "5");
    EXPECT_TRUE(Notice().starts_with("The limits could not be saved: ")) << Notice();
    EXPECT_EQ(program->windows.limits.Of("PS-101;1").high, 5);  // in this run
    Limit(Form().HighLimit, "5");                               // again
    EXPECT_FALSE(program->forms.mdiMain.ConnectedFrame.visible);
    Start();
    EXPECT_EQ(program->windows.limits.Of("PS-101;1"), (LevelLimits{-5, 5}));
    driver.reading = 0.01;
    Measure(1);  // with the window closed
    EXPECT_EQ(program->windows.limits.Outside("PS-101;1"), 1);
}

}  // namespace kelvra::ui
