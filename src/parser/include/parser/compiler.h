// SPDX-License-Identifier: GPL-3.0-or-later
// Turns the text of a formula into an expression table: characters into tokens, tokens into entries
// and operands. evaluation_order settles the order of evaluation, literals parses values.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "parser/expression_table.h"
#include "parser/function_table.h"

namespace kelvra::parser {

// Fills one table from one text, once. Empties the table first and reuses its buffers. After a
// failure the table holds what was compiled so far.
class Compiler {
public:
    // The text has no spaces at its ends and must outlive the compiler.
    Compiler(std::string_view text, ExpressionTable& table);

    // False after an error, with a message in Error().
    bool Compile();

    const std::string& Error() const { return error_; }
    // The character at fault, from 0; the text's length for its end, -1 for no place.
    std::int32_t ErrorPlace() const { return errorPlace_; }

private:
    bool TakeCharacter(char c);
    bool Dispatch(char c);
    bool OpenBracket();
    bool CloseBracket();
    bool TakeSign(char c);
    bool TakeOperator(char c);
    bool TakeSeparator();
    bool TakeBar();
    bool TakeComparison(char c);
    bool TakeProductName(char c);
    bool Finish();

    // The token is the end of the table's names, from tokenStart_ on.
    std::string_view Token() const { return std::string_view(table_.names).substr(tokenStart_); }
    void Append(char c) {
        if (Token().empty()) tokenPlace_ = Place();
        table_.names += c;
    }
    void DropToken() { tokenStart_ = table_.names.size(); }

    bool AppendEntry(std::string_view fun, const Function& function);
    bool CloseOperand();
    bool SetOperand(Argument& argument);
    bool AddVariable(std::string_view name, Argument& argument);
    std::int32_t Place() const { return position_ - 1; }
    bool Fail(std::string message, std::int32_t place);
    // Adds the position to the message.
    bool FailAt(std::string message, std::int32_t place);
    bool FailAt(std::string message) { return FailAt(std::move(message), Place()); }

    std::string_view text_;
    ExpressionTable& table_;
    std::string error_;
    std::int32_t errorPlace_ = -1;
    std::int32_t position_ = 0;  // of the current character, from 1; UTF-8 counts as characters
    std::int32_t depth_ = 0;
    std::size_t tokenStart_ = 0;
    std::int32_t tokenPlace_ = 0;       // of its first character, from 0
    std::string comparison_;            // consecutive comparison signs
    std::string_view pendingFunction_;  // a two-argument name that awaits its ";"
    const Function* pendingRow_ = nullptr;
    bool operatorSeen_ = false;  // this character ends the operand before it
};

// Number of "|" in the text.
std::size_t CountAbsBars(std::string_view text);

}  // namespace kelvra::parser
