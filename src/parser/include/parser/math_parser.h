// SPDX-License-Identifier: GPL-3.0-or-later
// One formula with its variables: store it, bind values to the variables, evaluate it as often as
// needed. A formula may be any bytes of any length. Knows nothing of sensors; the owner gives the
// variables' names their meaning.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "parser/evaluation_plan.h"
#include "parser/expression_table.h"
#include "parser/table_dump.h"
#include "util/number_text.h"
#include "util/random.h"

namespace kelvra::parser {

class MathParser {
public:
    // The random numbers feed "rnd" and must outlive the parser. The number form is for the numbers
    // in ErrorDescription.
    explicit MathParser(util::Random& random, util::NumberForm form = {});

    // Names in the table are views into the parser.
    MathParser(const MathParser&) = delete;
    MathParser& operator=(const MathParser&) = delete;

    // Compiles a formula in place of the former one, whose variables and values are lost. False
    // after an error, with a message in ErrorDescription. Storing the same formula again costs as
    // much, so store a formula once and evaluate it many times.
    bool StoreExpression(std::string_view text);

    // Where the last compile failed: the index, from 0, of the character at fault in the text that
    // was given; its length for its end. UTF-8 counts as characters. -1: no failure, or no place.
    int ErrorPlace() const { return InGivenText(errorPlace_); }

    // The formula without spaces at its ends.
    const std::string& Expression() const { return expression_; }

    // Variables are numbered from 1 by their first appearance. Any other number has no name and the
    // value 0, and can't be set. VarTop is 101 after a formula has failed for too many variables.
    int VarTop() const { return table_.variableCount; }
    std::string_view VarName(int i) const;  // valid until the next StoreExpression
    // Its first character in the text that was given, from 0; -1 if it has no name.
    int VarPlace(int i) const {
        return InGivenText(IsVariable(i) ? table_.variables[i].place : -1);
    }
    double VarValue(int i) const { return IsVariable(i) ? table_.variables[i].value : 0; }
    void VarValue(int i, double value) {
        if (IsVariable(i)) table_.variables[i].value = value;
    }

    // The reason of the last failure; kept until a formula is stored.
    const std::string& ErrorDescription() const { return errorDescription_; }

    // Whether the last evaluation failed. Without an evaluation: whether the formula is not
    // compiled.
    bool Failed() const { return failed_; }

    // The value of the formula; 0 when it can't be compiled or computed. A result that is not
    // finite is a failure. Allocates nothing unless it fails.
    double Eval();

    // The same with x for every variable; fails for a formula of two variables or more.
    double Eval1(double x);

    // The Riemann zeta function; NaN where the formula language's zeta fails.
    static double Zeta(double s);

    // The expression table with the values of the last evaluation, from slot 0 (never used) to the
    // last entry. After a failed StoreExpression, the entries made before the failure. Valid until
    // the next StoreExpression.
    std::span<const ExpressionEntry> Entries();

    // Lists the table without changing it.
    void Dump(const LineSink& sink) { DumpTable(Entries(), sink); }

private:
    bool Compile();
    int InGivenText(int place) const { return place < 0 ? -1 : place + leadingSpaces_; }
    bool IsVariable(int i) const { return i >= 1 && i < static_cast<int>(table_.variables.size()); }
    double Run();
    std::string FailureText(const EvaluationPlan::Failure& failure) const;

    util::Random& random_;
    util::NumberForm form_;
    std::string expression_;
    int leadingSpaces_ = 0;
    std::string errorDescription_;
    int errorPlace_ = -1;  // in expression_
    ExpressionTable table_;
    EvaluationPlan plan_;
    bool stored_ = false;
    bool failed_ = true;
};

}  // namespace kelvra::parser
