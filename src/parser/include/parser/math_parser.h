// SPDX-License-Identifier: GPL-3.0-or-later
// One formula with its variables: store it, bind values to the variables, evaluate as often as
// wanted. Any bytes of any length may come as a formula. Knows nothing of sensors; what a
// variable's name means is the owner's business.
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
    // The random numbers feed "rnd" and must outlive the parser; the number form is that of numbers
    // in ErrorDescription.
    explicit MathParser(util::Random& random, util::NumberForm form = {});

    // Names in the table are views into the parser.
    MathParser(const MathParser&) = delete;
    MathParser& operator=(const MathParser&) = delete;

    // Compiles a formula in place of the one before, whose variables and values are lost; false
    // with a message in ErrorDescription. Costs the same for a formula stored again, so an owner
    // that evaluates one formula many times stores it once.
    bool StoreExpression(std::string_view text);

    // The formula without blanks at its ends.
    const std::string& Expression() const { return expression_; }

    // Variables are numbered from 1 by their first appearance. Another number has no name, the
    // value 0, and can't be set. VarTop is 101 after a formula has failed for too many of them.
    int VarTop() const { return table_.variableCount; }
    std::string_view VarName(int i) const;  // until the next StoreExpression
    double VarValue(int i) const { return IsVariable(i) ? table_.variables[i].value : 0; }
    void VarValue(int i, double value) {
        if (IsVariable(i)) table_.variables[i].value = value;
    }

    // Why the last failure was; it stays until a formula is stored.
    const std::string& ErrorDescription() const { return errorDescription_; }

    // Whether the last evaluation failed (or there was none, and the formula is not compiled).
    bool Failed() const { return failed_; }

    // The value of the formula; 0 when it can't be compiled or computed. A result that is not
    // finite is a failure. Allocates nothing unless it fails.
    double Eval();

    // The same with all variables x; fails for a formula of two variables or more.
    double Eval1(double x);

    // The Riemann zeta function; not a number where the formula language's zeta fails.
    static double Zeta(double s);

    // The expression table with the values of the last evaluation, slots 0 (never used) to the last
    // entry; after a failed StoreExpression the entries made before the failure. Valid until the
    // next StoreExpression.
    std::span<const ExpressionEntry> Entries();

    // Lists the table without changing it.
    void Dump(const LineSink& sink) { DumpTable(Entries(), sink); }

private:
    bool Compile();
    bool IsVariable(int i) const { return i >= 1 && i < static_cast<int>(table_.variables.size()); }
    double Run();
    std::string FailureText(const EvaluationPlan::Failure& failure) const;

    util::Random& random_;
    util::NumberForm form_;
    std::string expression_;
    std::string errorDescription_;
    ExpressionTable table_;
    EvaluationPlan plan_;
    bool stored_ = false;
    bool failed_ = true;
};

}  // namespace kelvra::parser
