// SPDX-License-Identifier: GPL-3.0-or-later
// The two lines of a driver call in the debug log, one before the call and one after it. All logged
// calls get their lines here. Nothing is formatted while logging is off.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "driver/debug_log.h"
#include "driver/operations.h"
#include "util/number_text.h"

namespace kelvra::driver {

// The patterns of a call's two lines. {name} is the function's name, {all} the arguments with ", "
// between them, {trimmed} the same without the leading spaces of numbers, {0} the first argument,
// {1} the next, and {result} the result.
struct LogForm {
    std::string_view start;
    std::string_view finish;
};

namespace log_form {

// clang-format off
constexpr LogForm General        {"{name}( {all} ) STARTING",         "{name} -> FINISHED"};
constexpr LogForm SpaceAfterName {"{name} ( {all} ) STARTING",        "{name}  -> FINISHED"};
constexpr LogForm NameAlone      {"{name}",                           "{name} -> FINISHED"};
constexpr LogForm ArgumentsAgain {"{name}( {all} ) STARTING",         "{name}( {all} ) FINISHED"};
constexpr LogForm TypeNormal     {"{name}( {0}, {1}, 0) STARTING",    "{name} -> FINISHED"};
constexpr LogForm TypeNoise      {"{name}( {0}, {1}, 1 ) STARTING",   "{name} -> FINISHED"};
constexpr LogForm Trimmed        {"{name}( {trimmed} ) STARTING",     "{name} -> FINISHED"};
constexpr LogForm TrimmedAgain   {"{name}( {trimmed} ) STARTING",     "{name}( {trimmed} ) FINISHED"};
constexpr LogForm ZeroPolling    {"{name} {all} ) STARTING",  "{name} {0}, {1}, {result} ) FINISHED"};
constexpr LogForm SelfTesting    {"{name}( {all} ) STARTING", "{name}( {0}, {1}, {result} ) FINISHED"};
constexpr LogForm Reset          {"{name}({trimmed}) STARTING",       "{name} -> FINISHED"};
constexpr LogForm Opening        {"{name}({0}, 1, 1,{1}) STARTING",
                                  "{name} FINISHED -> instrumentHandle: {result}"};
constexpr LogForm Adding         {"{name}({trimmed}, 1, 1) STARTING", "{name} FINISHED"};
constexpr LogForm Initiating     {"{name}( {all} ) STARTING", "{name} -> TeskSession FINISHED"};
constexpr LogForm Polling        {"{name}( {all} ) STARTING",         "{name} -> {result} ) FINISHED"};
constexpr LogForm Reading        {"{name}( {0},{1}, {2} ) STARTING",  "{name} -> {result} ) FINISHED"};
constexpr LogForm ArrayReading   {"{name}( {all} ) STARTING",         "{name} -> {result} FINISHED"};
// clang-format on

}  // namespace log_form

// The lines of one call: the constructor writes the first, Finish the second.
class CallFrame {
public:
    template <class... Arguments>
    CallFrame(DebugLog& log, const LogForm& form, const OperationBase& operation,
              const Arguments&... arguments)
        : log_(log), form_(form), name_(operation.name) {
        if (!log.enabled) return;
        arguments_ = {TextOf(arguments)...};
        log.Write(Filled(form.start, {}));
    }

    void Finish() const {
        if (log_.enabled) log_.Write(Filled(form_.finish, {}));
    }
    template <class Result>
    void Finish(const Result& result) const {
        if (log_.enabled) log_.Write(Filled(form_.finish, TextOf(result)));
    }

private:
    template <class Value>
    static std::string TextOf(const Value& value) {
        if constexpr (std::is_floating_point_v<Value>)
            return util::NumberText(value);
        else if constexpr (std::is_integral_v<Value>)
            return util::NumberText(static_cast<std::int64_t>(value));
        else
            return value;
    }
    std::string Filled(std::string_view pattern, const std::string& result) const;
    std::string Field(std::string_view field, const std::string& result) const;

    DebugLog& log_;
    const LogForm& form_;
    const char* const name_;
    std::vector<std::string> arguments_;
};

// Calls the operation and writes both lines.
template <class... Parameters, class... Arguments>
CallResult FramedCall(DebugLog& log, const LogForm& form, const Operation<Parameters...>& operation,
                      Arguments... arguments) {
    const CallFrame frame(log, form, operation, arguments...);
    const CallResult result = operation(static_cast<Parameters>(arguments)...);
    frame.Finish();
    return result;
}

}  // namespace kelvra::driver
