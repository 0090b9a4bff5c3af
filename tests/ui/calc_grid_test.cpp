// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

constexpr int Name = 0, Formula = 1, Outcome = 2;

class CalcGridTest : public testing::Test, public test::WholeKelvra {
protected:
    CalcGridTest() { StartWith(1); }
    controls::Grid& Cells() { return program->forms.mdiMain.CalcGrid; }
    void Undo() { program->forms.mdiMain.EditUndo.Press(); }
    std::string Remark() { return Cells().remark.Get().text; }
};

TEST_F(CalcGridTest, TypingIsCheckedAtItsPlace) {
    const struct {
        int column;
        std::string typed, remark;
        int place;
    } cases[] = {
        {Formula, "X9W+X1dB", "X1W ... X9W: watts, X1dB", -1},
        {Formula, "1+*2", "missing argument", 2},
        {Formula, "X1W+ Y1W", "There is no reading Y1W", 5},
        {Formula, "X0dB", "There is no reading X0dB", 0},
        {Formula, "", "X1W ... X9W: watts", -1},
        {Name, "1+*2", "", -1},
    };
    for (const auto& c : cases) {
        Cells().EditCell(1, c.column, c.typed);
        EXPECT_EQ(Remark().empty(), c.remark.empty()) << c.typed;
        EXPECT_TRUE(Remark().starts_with(c.remark)) << c.typed << Remark();
        EXPECT_EQ(Cells().remark->place, c.place) << c.typed;
        Cells().LeaveCell();
        EXPECT_EQ(Remark(), "") << c.typed;
    }
}

TEST_F(CalcGridTest, ARowThatFailsSaysWhyWhereItIsSeen) {
    const struct {
        std::string formula;
        bool measures;
        std::string fault, tooltip;  // of the outcome, if it is no fault
    } cases[] = {
        {"1+", true, "", "Value of the formula, computed once a pass"},
        {"1+*2", false, "missing argument", ""},
        {"Y1W", false, "There is no reading Y1W", ""},
        {"Y1W", true, "There is no reading Y1W", ""},
        {"X2W", true, "", "There is no reading for X2W."},
        {"1/0", false, "", "Value of the formula, computed once a pass"},
        {"1/0", true, "Evaluation error <1 / 0> at pos: 2", ""},
        {"X1W", true, "", "Value of the formula, computed once a pass"},
    };
    Cells().TypeCell(1, Formula, "0");
    for (const auto& c : cases) {
        Cells().TypeCell(2, Formula, c.formula);
        if (c.measures) Measure(1);
        const bool fails = !c.fault.empty();
        for (const int column : {Formula, Outcome})
            EXPECT_EQ(Cells().At(2, column).faulty, fails) << c.formula;
        if (fails) {
            EXPECT_EQ(Cells().At(2, Formula).tooltip, c.fault);
        }
        EXPECT_EQ(Remark(), fails ? "SWR: " + c.fault : "") << c.formula;
        EXPECT_EQ(Cells().At(2, Outcome).tooltip, fails ? c.fault : c.tooltip) << c.formula;
    }
    Cells().TypeCell(2, Formula, "(");
    Cells().TypeCell(2, Name, "R");
    EXPECT_EQ(Remark(), "R: Not enough closing brackets");
    Cells().TypeCell(2, Name, "");  // is not computed
    EXPECT_EQ(Remark(), "");
    Undo();
    EXPECT_EQ(Remark(), "R: Not enough closing brackets");
}

TEST_F(CalcGridTest, AnEditOfACellIsUndoneAndRedone) {
    const controls::MenuItem& redo = program->forms.mdiMain.EditRedo;
    Cells().ClickCell(1, Name);  // the prompt is cancelled
    Cells().TypeCell(1, Formula, "1");
    Cells().TypeCell(1, Formula, "1");  // changes nothing
    EXPECT_EQ(program->forms.mdiMain.EditUndo.caption.Get(), "Undo: formula");
    for (int i = 0; i < 3; ++i) Undo();
    EXPECT_EQ(Cells().At(1, Name).Text(), "DIFF");
    EXPECT_EQ(Cells().At(1, Formula).Text(), "ABS(X1dB-X2dB)");
    EXPECT_EQ(redo.caption.Get(), "Redo: name of a formula");
}

}  // namespace kelvra::ui
