// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/compiler.h"

#include <algorithm>
#include <utility>

#include "parser/evaluation_order.h"
#include "parser/literals.h"
#include "util/number_text.h"

namespace kelvra::parser {

namespace {

constexpr int LevelsOfDepth = 10;

// Two or more comparison signs that form no operator: compiles, and fails when it is evaluated.
constexpr Function UnknownComparison{-1, NameList::Operators, 2, 1, "", nullptr, nullptr};

constexpr bool ContinuesCharacter(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::int32_t CountCharacters(std::string_view text) {
    return static_cast<std::int32_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return !ContinuesCharacter(c); }));
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::size_t CountAbsBars(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '|'));
}

Compiler::Compiler(std::string_view text, ExpressionTable& table) : text_(text), table_(table) {
    table_.entries.resize(1);
    table_.variables.resize(1);
    table_.variableCount = 0;
    table_.names.clear();
}

bool Compiler::Compile() {
    if (text_.size() > MaxLength) return Fail("formula too long", -1);
    table_.names.reserve(text_.size() + MaxEntries + 1);  // a sign may add a "0"
    if (CountAbsBars(text_) % 2 != 0)
        return Fail("abs symbols |.| mismatch", CountCharacters(text_.substr(0, text_.rfind('|'))));
    for (const char c : text_) {
        if (!ContinuesCharacter(c)) ++position_;
        if (!TakeCharacter(c)) return false;
    }
    if (depth_ >= 1) return Fail("Not enough closing brackets", position_);
    if (!Finish()) return false;
    SetEvaluationOrder(table_.entries);
    LinkResults(table_.entries);
    return true;
}

bool Compiler::TakeCharacter(char c) {
    operatorSeen_ = false;
    if (!Dispatch(c)) return false;
    if (operatorSeen_) return CloseOperand();
    comparison_.clear();
    return true;
}

bool Compiler::Dispatch(char c) {
    switch (c) {
        case ' ':
            return true;
        case '(':
        case '[':
        case '{':
            return OpenBracket();
        case ')':
        case ']':
        case '}':
            return CloseBracket();
        case '+':
        case '-':
            return TakeSign(c);
        case '*':
        case '/':
        case '%':
        case '\\':
        case '^':
        case '!':
            return TakeOperator(c);
        case ';':
            return TakeSeparator();
        case '|':
            return TakeBar();
        case '=':
        case '<':
        case '>':
            return TakeComparison(c);
        case 'x':
        case 'y':
        case 'z':
        case 'X':
        case 'Y':
        case 'Z':
            return TakeProductName(c);
        default:
            Append(c);
            return true;
    }
}

// After a name, a bracket holds arguments; otherwise it only groups.
bool Compiler::OpenBracket() {
    ++depth_;
    const std::string_view name = Token();
    if (name.empty()) return true;
    const Function* function = FindFunction(name);
    if (function == nullptr || function->list == NameList::Operators)
        return FailAt("Function <" + std::string(name) + "> unknown at pos ", tokenPlace_);
    if (function->list == NameList::OneArgument) {
        if (!AppendEntry(name, *function)) return false;
    } else {
        pendingFunction_ = name;
        pendingRow_ = function;
    }
    DropToken();
    return true;
}

bool Compiler::CloseBracket() {
    if (--depth_ < 0) return FailAt("Too many closing brackets at pos ");
    return true;
}

// A sign without an operand before it means 0 - x.
bool Compiler::TakeSign(char c) {
    const std::string_view token = Token();
    if (token.empty()) {
        Append('0');
    } else if (token.back() == 'E' || token.back() == 'e') {
        Append(c);
        return true;
    }
    return TakeOperator(c);
}

bool Compiler::TakeOperator(char c) {
    const std::string_view name(&c, 1);
    operatorSeen_ = true;
    return AppendEntry(name, *FindFunction(name));
}

bool Compiler::TakeSeparator() {
    if (pendingRow_ == nullptr) return FailAt("syntax error at pos:");
    operatorSeen_ = true;
    return AppendEntry(pendingFunction_, *std::exchange(pendingRow_, nullptr));
}

bool Compiler::TakeBar() {
    if (Token().empty()) {
        ++depth_;
        return AppendEntry("abs", *FindFunction("abs"));
    }
    if (--depth_ < 0) return FailAt("syntax error at pos:");
    return true;
}

// The first sign creates the entry; each further sign renames it.
bool Compiler::TakeComparison(char c) {
    if (comparison_.empty()) {
        operatorSeen_ = true;
        if (!AppendEntry({}, UnknownComparison)) return false;
    }
    comparison_ += c;
    ExpressionEntry& entry = table_.entries.back();
    entry.function = comparison_;
    entry.code = FunctionId(comparison_);
    entry.argumentCount = 2;
    entry.priority = LevelsOfDepth * depth_ + UnknownComparison.level;
    entry.position = position_;
    return true;
}

// 2x means 2 * x. Elsewhere the letter is an ordinary character.
bool Compiler::TakeProductName(char c) {
    const std::string_view token = Token();
    if (!token.empty() && IsDigit(token.back()))
        if (!AppendEntry("*", *FindFunction("*")) || !CloseOperand()) return false;
    Append(c);
    return true;
}

// A lone operand becomes 0 + operand. Then each entry gets its last argument: the first argument of
// the next entry, or the remaining token for the last entry.
bool Compiler::Finish() {
    auto& entries = table_.entries;
    if (table_.LastEntry() == 0) {
        AppendEntry("+", *FindFunction("+"));
        entries.back().priority = 1;
        entries.back().position = 1;
    }
    for (std::size_t k = 1; k < entries.size(); ++k) {
        const Argument next = k + 1 < entries.size() ? entries[k + 1].arguments[0] : Argument{};
        entries[k].arguments[entries[k].argumentCount - 1] = next;
    }
    return Token().empty() ||
           SetOperand(entries.back().arguments[entries.back().argumentCount - 1]);
}

bool Compiler::AppendEntry(std::string_view fun, const Function& function) {
    if (table_.LastEntry() == MaxEntries) return Fail("too many operations", Place());
    ExpressionEntry& entry = table_.entries.emplace_back();
    entry.function = fun;
    entry.code = function.id;
    entry.argumentCount = function.argTop;
    entry.priority = LevelsOfDepth * depth_ + function.level;
    entry.position = position_;
    return true;
}

// The operand of "!" stays: the next operation takes it too, and gets the factorial instead when it
// is linked.
bool Compiler::CloseOperand() {
    ExpressionEntry& entry = table_.entries.back();
    if (!SetOperand(entry.arguments[0])) return false;
    if (entry.function != "!") DropToken();
    return true;
}

bool Compiler::SetOperand(Argument& argument) {
    const std::string_view token = Token();
    if (token.empty()) return Fail("missing argument", Place());
    if (const auto value = ParseConstant(token)) {
        argument.value = *value;
        return true;
    }
    if (!IsLetter(token.front()))
        return Fail("variable name must start with a letter: " + std::string(token), tokenPlace_);
    return AddVariable(token, argument);
}

bool Compiler::AddVariable(std::string_view name, Argument& argument) {
    auto& variables = table_.variables;
    const auto known =
        std::find_if(variables.begin() + 1, variables.end(),
                     [&](const Argument& variable) { return variable.name == name; });
    const auto number = static_cast<std::int32_t>(known - variables.begin());
    if (known == variables.end()) {
        if (++table_.variableCount > MaxVariables) return Fail("too many Vars", tokenPlace_);
        variables.push_back({0, name, 0, tokenPlace_});
    }
    argument.variable = number;
    argument.name = name;
    return true;
}

bool Compiler::Fail(std::string message, std::int32_t place) {
    error_ = std::move(message);
    errorPlace_ = place;
    return false;
}

bool Compiler::FailAt(std::string message, std::int32_t place) {
    return Fail(std::move(message) + util::NumberText(std::int64_t{position_}), place);
}

}  // namespace kelvra::parser
