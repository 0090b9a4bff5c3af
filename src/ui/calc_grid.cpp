// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/calc_grid.h"

#include <cmath>
#include <optional>

#include "util/levels.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {

using controls::Align;

enum Column { NameColumn = 0, FormulaColumn = 1, ResultColumn = 2 };

constexpr int FormulaWidth = 3000;  // twips
constexpr const char* NoReading = "---";

// The reading that the name refers to, if its sensor delivers scalar readings.
std::optional<double> ReadingOf(const sensors::SensorTable& table, const ReadingName& name) {
    if (name.slot < 0 || name.slot >= table.Slots()) return std::nullopt;
    const sensors::SensorEntry& entry = table[name.slot];
    const bool scalar =
        entry.settings.Mode == sensors::ContinuousAverage || entry.settings.Mode == sensors::Burst;
    if (!entry.present || !entry.enabled || !scalar) return std::nullopt;
    return name.inDbm ? util::WToDbm(std::abs(entry.lastReading)) : entry.lastReading;
}

}  // namespace

ReadingName ParseReadingName(std::string_view name) {
    if (name.size() < 3 || name[0] != 'X' || name[1] < '0' || name[1] > '9') return {};
    const std::string_view unit = name.substr(2);
    if (unit != "W" && unit != "dB") return {};
    return {name[1] - '0' - 1, unit == "dB"};
}

CalcGrid::CalcGrid(forms::MDIMain& window, sensors::SensorTable& table, platform::Host& host)
    : grid_(window.CalcGrid), table_(table), host_(host) {
    grid_.click.Connect([this](int row, int column) { AskText(row, column); });
    grid_.typed.Connect(
        [this](int row, int column, const std::string& text) { SetText(row, column, text); });
}

void CalcGrid::LayOut() {
    const struct {
        const char* cells[3];
        Align align;
    } rows[] = {
        {{"Name", "Formular", "RESULT"}, Align::Centre},
        {{"DIFF", "ABS(X1dB-X2dB)", ""}, Align::Left},
        {{"SWR", "(1+sqr(X1W/X2W))/(1-sqr(X1W/X2W))", ""}, Align::Left},
    };
    for (int row = 0; row <= FormulaRows; ++row) {
        for (int column = NameColumn; column <= ResultColumn; ++column) {
            SetGridCell(grid_, row, column, rows[row].cells[column], rows[row].align,
                        row == 0 && column == NameColumn, false);
            grid_.SetEditable(row, column, row > 0);
        }
    }
    grid_.SetWidth(FormulaColumn, FormulaWidth);
}

void CalcGrid::Compute() {
    for (int row = 1; row <= FormulaRows; ++row)
        if (!grid_.At(row, NameColumn).Text().empty()) ComputeRow(row);
}

void CalcGrid::ComputeRow(int row) {
    parser::MathParser& parser = EvaluatorOf(row);
    const std::string missing = BindReadings(parser);
    if (!missing.empty()) {
        SetGridCell(grid_, row, ResultColumn, NoReading, Align::Left, false, false);
        grid_.SetCellTooltip(row, ResultColumn, "There is no reading for " + missing + ".");
        return;
    }
    const double result = parser.Eval();
    SetGridCell(grid_, row, ResultColumn, util::FixedFigure(result, host_.computer.Numbers()),
                Align::Left, false, false);
    grid_.SetCellTooltip(row, ResultColumn,
                         parser.Failed() ? std::string_view(parser.ErrorDescription()) : "");
}

// An unchanged formula is not compiled again.
parser::MathParser& CalcGrid::EvaluatorOf(int row) {
    Evaluator& evaluator = evaluators_[row - 1];
    const std::string& formula = grid_.At(row, FormulaColumn).Text();
    const bool first = evaluator.parser == nullptr;
    if (first)
        evaluator.parser =
            std::make_unique<parser::MathParser>(host_.random, host_.computer.Numbers());
    if (first || evaluator.formula != formula) {
        evaluator.parser->StoreExpression(formula);
        evaluator.formula = formula;
    }
    return *evaluator.parser;
}

std::string CalcGrid::BindReadings(parser::MathParser& parser) {
    for (int i = 1; i <= parser.VarTop(); ++i) {
        const std::string_view name = parser.VarName(i);
        const auto reading = ReadingOf(table_, ParseReadingName(name));
        if (!reading) return std::string(name);
        parser.VarValue(i, *reading);
    }
    return {};
}

// The answer is the cell's new text; a cancelled prompt empties the cell.
void CalcGrid::AskText(int row, int column) {
    if (!grid_.At(row, column).editable) return;
    host_.dialogs.Prompt("INPUT:", grid_.At(row, column).Text(),
                         [this, row, column](const std::optional<std::string>& answer) {
                             SetText(row, column, answer.value_or(""));
                         });
}

void CalcGrid::SetText(int row, int column, std::string_view text) {
    SetGridCell(grid_, row, column, text, Align::Left, false, false);
}

}  // namespace kelvra::ui
