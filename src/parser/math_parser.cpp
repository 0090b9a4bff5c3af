// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/math_parser.h"

#include <utility>

#include "parser/compiler.h"
#include "parser/special_functions.h"
#include "util/text.h"

namespace kelvra::parser {

MathParser::MathParser(util::Random& random, util::NumberForm form)
    : random_(random), form_(std::move(form)) {
    table_.entries.resize(1);
    table_.variables.resize(1);
}

bool MathParser::StoreExpression(std::string_view text) {
    const std::string_view trimmed = util::TrimSpaces(text);
    expression_.assign(trimmed);
    leadingSpaces_ = static_cast<int>(trimmed.data() - text.data());
    errorPlace_ = -1;
    errorDescription_.clear();
    stored_ = Compile();
    return stored_;
}

bool MathParser::Compile() {
    Compiler compiler(expression_, table_);
    if (!compiler.Compile()) {
        errorDescription_ = compiler.Error();
        errorPlace_ = compiler.ErrorPlace();
        return false;
    }
    plan_.Build(table_.entries);
    return true;
}

std::string_view MathParser::VarName(int i) const {
    return IsVariable(i) ? table_.variables[i].name : std::string_view();
}

double MathParser::Eval() {
    failed_ = true;
    if (!stored_) return 0;
    plan_.Load(table_.variables);
    return Run();
}

double MathParser::Eval1(double x) {
    failed_ = true;
    if (!stored_) return 0;
    if (VarTop() > 1) {
        errorDescription_ = "too many variables";
        return 0;
    }
    plan_.Load(x);
    return Run();
}

double MathParser::Zeta(double s) {
    return parser::Zeta(s);
}

std::span<const ExpressionEntry> MathParser::Entries() {
    if (stored_) plan_.CopyValues(table_.entries);
    return table_.entries;
}

double MathParser::Run() {
    const auto value = plan_.Run(random_);
    failed_ = !value;
    if (!value) errorDescription_ = FailureText(plan_.LastFailure());
    return value.value_or(0);
}

std::string MathParser::FailureText(const EvaluationPlan::Failure& failure) const {
    const ExpressionEntry& entry = table_.entries[failure.entry];
    const std::string a = util::GeneralText(failure.a, form_);
    const std::string b = util::GeneralText(failure.b, form_);
    std::string operation;
    if (entry.argumentCount == 1)
        operation = entry.function + "(" + a + ")";
    else if (IsInList(entry.function, NameList::TwoArguments))
        operation = entry.function + "(" + a + " , " + b + ")";
    else
        operation = a + " " + entry.function + " " + b;
    return "Evaluation error <" + operation +
           "> at pos:" + util::NumberText(std::int64_t{entry.position});
}

}  // namespace kelvra::parser
