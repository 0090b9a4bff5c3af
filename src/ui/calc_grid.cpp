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
constexpr const char* MayBeTyped =
    "X1W ... X9W: watts, X1dB ... X9dB: dBm, + - * / ^ ( ), abs, sqr, log, ln, max(a;b), ...";
constexpr const char* FormulaTooltip = "Click, F2, Enter or typing edits the formula";
constexpr const char* ResultTooltip = "Value of the formula, computed once a pass";

struct ColumnText {
    const char* heading;
    const char* ofHeading;  // tooltips
    const char* ofCells;
    const char* edit;  // what a step of undo says
};
constexpr ColumnText ColumnTexts[] = {
    {"Name", "What the row computes; a row without a name is not computed",
     "Click, F2, Enter or typing edits the name", "name of a formula"},
    {"Formular", "Formula over the latest readings: X1W is sensor 1 in watts, X1dB in dBm",
     FormulaTooltip, "formula"},
    {"RESULT", "Value of the formula for the latest readings; --- while a sensor has none",
     ResultTooltip, "result of a formula"},
};

// The reading that the name refers to, if its sensor delivers scalar readings.
std::optional<double> ReadingOf(const sensors::SensorTable& table, const ReadingName& name) {
    if (name.slot < 0 || name.slot >= table.Slots()) return std::nullopt;
    const sensors::SensorEntry& entry = table[name.slot];
    const bool scalar =
        entry.settings.Mode == sensors::ContinuousAverage || entry.settings.Mode == sensors::Burst;
    if (!entry.present || !entry.enabled || !scalar) return std::nullopt;
    return name.inDbm ? util::WToDbm(std::abs(entry.lastReading)) : entry.lastReading;
}

// What is wrong with the formula that the parser holds, whatever the readings are.
controls::Grid::Remark MistakeIn(const parser::MathParser& parser, bool compiles) {
    if (!compiles) return {parser.ErrorDescription(), parser.ErrorPlace()};
    for (int i = 1; i <= parser.VarTop(); ++i) {
        const std::string_view name = parser.VarName(i);
        if (ParseReadingName(name).slot < 0)
            return {"There is no reading " + std::string(name), parser.VarPlace(i)};
    }
    return {};
}

}  // namespace

ReadingName ParseReadingName(std::string_view name) {
    if (name.size() < 3 || name[0] != 'X' || name[1] < '0' || name[1] > '9') return {};
    const std::string_view unit = name.substr(2);
    if (unit != "W" && unit != "dB") return {};
    return {name[1] - '0' - 1, unit == "dB"};
}

CalcGrid::CalcGrid(forms::MDIMain& window, sensors::SensorTable& table, EditHistory& history,
                   platform::Host& host)
    : grid_(window.CalcGrid), table_(table), history_(history), host_(host) {
    grid_.click.Connect([this](int row, int column) { AskText(row, column); });
    grid_.typed.Connect(
        [this](int row, int column, const std::string& text) { EditText(row, column, text); });
    grid_.editing.Connect(
        [this](int /*row*/, int column, const std::string& text) { RemarkOnTyping(column, text); });
    grid_.left.Connect([this] {
        typing_ = false;
        ShowRemark();
    });
}

void CalcGrid::LayOut() {
    constexpr const char* formulas[FormulaRows][2] = {
        {"DIFF", "ABS(X1dB-X2dB)"},
        {"SWR", "(1+sqr(X1W/X2W))/(1-sqr(X1W/X2W))"},
    };
    for (int column = NameColumn; column <= ResultColumn; ++column) {
        SetGridCell(grid_, 0, column, ColumnTexts[column].heading, Align::Centre,
                    column == NameColumn, false);
        grid_.SetCellTooltip(0, column, ColumnTexts[column].ofHeading);
        for (int row = 1; row <= FormulaRows; ++row) {
            SetText(row, column, column == ResultColumn ? "" : formulas[row - 1][column]);
            grid_.SetCellTooltip(row, column, ColumnTexts[column].ofCells);
            grid_.SetEditable(row, column, true);
        }
    }
    grid_.SetWidth(FormulaColumn, FormulaWidth);
}

void CalcGrid::Compute() {
    for (int row = 1; row <= FormulaRows; ++row)
        if (!grid_.At(row, NameColumn).Text().empty()) ComputeRow(row);
}

void CalcGrid::ComputeRow(int row) {
    const Evaluator& evaluator = EvaluatorOf(row);
    parser::MathParser& parser = *evaluator.parser;
    const std::string_view absent = BindReadings(parser);
    if (!absent.empty()) {
        SetGridCell(grid_, row, ResultColumn, NoReading, Align::Left, false, false);
        Explain(row, evaluator.mistake, absent);
        return;
    }
    const double result = parser.Eval();
    SetGridCell(grid_, row, ResultColumn, util::FixedFigure(result, host_.computer.Numbers()),
                Align::Left, false, false);
    Explain(row, parser.Failed() ? std::string_view(parser.ErrorDescription()) : "", {});
}

// An unchanged formula is not compiled again.
CalcGrid::Evaluator& CalcGrid::EvaluatorOf(int row) {
    Evaluator& evaluator = evaluators_[row - 1];
    const std::string& formula = grid_.At(row, FormulaColumn).Text();
    const bool first = evaluator.parser == nullptr;
    if (first)
        evaluator.parser =
            std::make_unique<parser::MathParser>(host_.random, host_.computer.Numbers());
    if (first || evaluator.formula != formula) {
        const bool compiles = evaluator.parser->StoreExpression(formula);
        evaluator.formula = formula;
        evaluator.mistake = MistakeIn(*evaluator.parser, compiles).text;
    }
    return evaluator;
}

void CalcGrid::ShowAge(const ReadingAge& age) {
    for (int row = 1; row <= FormulaRows; ++row) {
        const auto& parser = evaluators_[row - 1].parser;
        bool stale = false;
        for (int i = 1; parser != nullptr && i <= parser->VarTop(); ++i)
            stale = stale || age.IsStale(ParseReadingName(parser->VarName(i)).slot);
        grid_.SetStale(row, ResultColumn, stale);
    }
}

std::string_view CalcGrid::BindReadings(parser::MathParser& parser) {
    for (int i = 1; i <= parser.VarTop(); ++i) {
        const std::string_view name = parser.VarName(i);
        const auto reading = ReadingOf(table_, ParseReadingName(name));
        if (!reading) return name;
        parser.VarValue(i, *reading);
    }
    return {};
}

// The answer is the cell's new text; a cancelled prompt empties the cell.
void CalcGrid::AskText(int row, int column) {
    if (!grid_.At(row, column).editable) return;
    host_.dialogs.Prompt("INPUT:", grid_.At(row, column).Text(),
                         [this, row, column](const std::optional<std::string>& answer) {
                             EditText(row, column, answer.value_or(""));
                         });
}

void CalcGrid::EditText(int row, int column, std::string_view text) {
    const FormulaChange change{row, column, grid_.At(row, column).Text(), std::string(text)};
    Make(change);
    history_.Add({"", ColumnTexts[column].edit, change});
}

void CalcGrid::Make(const FormulaChange& change) {
    SetText(change.row, change.column, change.to);
    CheckRow(change.row);
}

void CalcGrid::SetText(int row, int column, std::string_view text) {
    SetGridCell(grid_, row, column, text, Align::Left, false, false);
}

void CalcGrid::RemarkOnTyping(int column, std::string_view text) {
    typing_ = true;
    if (column != FormulaColumn) {
        grid_.remark = {};
        return;
    }
    parser::MathParser parser(host_.random, host_.computer.Numbers());
    const bool compiles = parser.StoreExpression(text);
    controls::Grid::Remark remark = MistakeIn(parser, compiles);
    if (remark.text.empty()) remark.text = MayBeTyped;
    grid_.remark = std::move(remark);
}

void CalcGrid::ShowRemark() {
    if (typing_) return;
    std::string text;
    for (int row = FormulaRows; row >= 1; --row)
        if (const std::string& fault = evaluators_[row - 1].fault; !fault.empty())
            text = grid_.At(row, NameColumn).Text() + ": " + fault;
    grid_.remark = {std::move(text), -1};
}

// A fault that only the readings show stays until the formula is another one.
void CalcGrid::CheckRow(int row) {
    const Evaluator& evaluator = evaluators_[row - 1];
    const bool sameFormula = evaluator.formula == grid_.At(row, FormulaColumn).Text();
    const std::string absent = sameFormula ? evaluator.absent : std::string();
    if (grid_.At(row, NameColumn).Text().empty())
        Explain(row, {}, {});
    else if (!sameFormula || evaluator.fault.empty())
        Explain(row, EvaluatorOf(row).mistake, absent);
    ShowRemark();
}

// Called in each pass, and mostly with what is shown already.
void CalcGrid::Explain(int row, std::string_view fault, std::string_view absent) {
    Evaluator& evaluator = evaluators_[row - 1];
    if (evaluator.fault == fault && evaluator.absent == absent) return;
    evaluator.fault = fault;
    evaluator.absent = absent;
    for (const Column column : {FormulaColumn, ResultColumn})
        grid_.SetFaulty(row, column, !fault.empty());
    grid_.SetCellTooltip(row, FormulaColumn, fault.empty() ? FormulaTooltip : fault);
    const std::string noReading = "There is no reading for " + evaluator.absent + ".";
    grid_.SetCellTooltip(row, ResultColumn,
                         !fault.empty()    ? fault
                         : !absent.empty() ? std::string_view(noReading)
                                           : ResultTooltip);
    ShowRemark();
}

}  // namespace kelvra::ui
