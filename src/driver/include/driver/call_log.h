// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of every driver call in the debug log: a line before the call, one after it. Nothing is
// formatted while logging is off.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "driver/debug_log.h"
#include "driver/operations.h"
#include "util/number_text.h"

namespace kelvra::driver {

// How the two lines of a call are written; the arguments are numbers with their sign place.
enum class LogForm {
    General,         // name( a, b ) STARTING         name -> FINISHED
    BlankAfterName,  // name ( a, b ) STARTING        name  -> FINISHED
    NameAlone,       // name                          name -> FINISHED
    ArgumentsAgain,  // name( a, b ) STARTING         name( a, b ) FINISHED
    TypeNormal,      // name( a, b, 0) STARTING       name -> FINISHED   (the last argument is 0)
    TypeNoise,       // name( a, b, 1 ) STARTING      name -> FINISHED   (the last argument is 1)
};

struct LogFrame {
    std::string start;
    std::string finish;
};

// The arguments as the frames have them: " 12,  1".
template <class First, class... Rest>
std::string ArgumentText(First first, Rest... rest) {
    const auto one = [](auto number) {
        if constexpr (std::is_floating_point_v<decltype(number)>)
            return util::NumberText(number);
        else
            return util::NumberText(static_cast<std::int64_t>(number));
    };
    std::string text = one(first);
    ((text += ", " + one(rest)), ...);
    return text;
}

LogFrame FrameFor(LogForm form, std::string_view name, std::string_view arguments);

// Calls the operation between its two lines.
template <class... Parameters, class... Arguments>
Status FramedCall(DebugLog& log, LogForm form, const Operation<Parameters...>& operation,
                  Arguments... arguments) {
    LogFrame frame;
    if (log.enabled) {
        frame = FrameFor(form, operation.name, ArgumentText(arguments...));
        log.Write(frame.start);
    }
    const Status status = operation(static_cast<Parameters>(arguments)...);
    if (log.enabled) log.Write(frame.finish);
    return status;
}

}  // namespace kelvra::driver
