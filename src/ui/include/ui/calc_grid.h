// SPDX-License-Identifier: GPL-3.0-or-later
// The calculation grid: two of the user's formulas over the latest readings, computed once a pass.
// Cells below the heading are editable: a front end lets the user type into them, or sends clicks,
// which ask for the new text. The grid's remark and the cells' tooltips say what is wrong with a
// formula. The formula language itself is in parser/.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "forms/main_window.h"
#include "measure/listener.h"
#include "parser/math_parser.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/edit_history.h"
#include "ui/reading_age.h"

namespace kelvra::ui {

class CalcGrid final : public measure::PassListener {
public:
    CalcGrid(forms::MDIMain& window, sensors::SensorTable& table, EditHistory& history,
             platform::Host& host);

    // Heading and the two default rows.
    void LayOut();

    // Writes the result of both rows: the value as "0.000" (0.000 for a formula that fails), or
    // "---" when a variable names no sensor with a scalar reading. Skips a row without a name.
    void Compute();
    void PassMeasured() override { Compute(); }
    // Marks the results that need a reading which is no longer live. Call about twice a second.
    void ShowAge(const ReadingAge& age);
    // Undo and redo of an edit.
    void Make(const FormulaChange& change);

private:
    static constexpr int FormulaRows = 2;

    // A row's evaluator, created when the row is first computed or edited, and the formula it
    // holds.
    struct Evaluator {
        std::unique_ptr<parser::MathParser> parser;
        std::string formula;
        std::string mistake;  // in the formula, whatever the readings are
        std::string fault;    // why the row fails, as shown
        std::string absent;   // the reading that is not there, as shown
    };

    void ComputeRow(int row);
    Evaluator& EvaluatorOf(int row);
    // The name of the first variable without a reading; empty if all have one.
    std::string_view BindReadings(parser::MathParser& parser);

    // The user's acts.
    void AskText(int row, int column);
    void EditText(int row, int column, std::string_view text);
    void SetText(int row, int column, std::string_view text);

    void RemarkOnTyping(int column, std::string_view text);
    void ShowRemark();
    // Without waiting for the next pass.
    void CheckRow(int row);
    // Shows why the row fails, or which reading is absent.
    void Explain(int row, std::string_view fault, std::string_view absent);

    controls::Grid& grid_;
    sensors::SensorTable& table_;
    EditHistory& history_;
    platform::Host& host_;
    Evaluator evaluators_[FormulaRows];
    bool typing_ = false;
};

// What a variable's name refers to: "X2W" is the second slot in W, "X1dB" the first in dBm.
struct ReadingName {
    int slot = -1;  // -1: the name has neither of these forms
    bool inDbm = false;
};
ReadingName ParseReadingName(std::string_view name);

}  // namespace kelvra::ui
