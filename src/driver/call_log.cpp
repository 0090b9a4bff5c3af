// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/call_log.h"

#include "util/text.h"

namespace kelvra::driver {

LogFrame FrameFor(LogForm form, std::string_view name, std::string_view arguments) {
    const std::string call(name);
    const std::string list(arguments);
    const std::string general = call + "( " + list + " ) STARTING";
    const std::string finished = call + " -> FINISHED";
    const auto withoutLast = [&] { return list.substr(0, list.rfind(',')); };
    switch (form) {
        case LogForm::General:
            return {general, finished};
        case LogForm::BlankAfterName:
            return {call + " ( " + list + " ) STARTING", call + "  -> FINISHED"};
        case LogForm::NameAlone:
            return {call, finished};
        case LogForm::ArgumentsAgain:
            return {general, call + "( " + list + " ) FINISHED"};
        case LogForm::TypeNormal:
            return {call + "( " + withoutLast() + ", 0) STARTING", finished};
        case LogForm::TypeNoise:
            return {call + "( " + withoutLast() + ", 1 ) STARTING", finished};
    }
    return {};
}

}  // namespace kelvra::driver
