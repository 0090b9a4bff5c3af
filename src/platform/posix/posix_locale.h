// SPDX-License-Identifier: GPL-3.0-or-later
// How the user writes numbers, dates and times, as the environment says. The process's own locale
// stays "C", so that the behaviour of library calls does not change.
#pragma once

#include <clocale>
#include <memory>
#include <string>
#include <type_traits>

#include "platform/files.h"
#include "util/number_text.h"

namespace kelvra::platform {

class PosixLocale {
public:
    // By name; the empty name is the environment's locale (LC_ALL, LC_..., LANG). "C" replaces a
    // locale that the system doesn't have.
    explicit PosixLocale(const char* name = "");

    // The one that is in use, by the name of its texts and characters.
    std::string Name() const;
    const util::NumberForm& Numbers() const { return numbers_; }
    std::string DateText(const LocalTime& time) const { return Text("%x", time); }
    std::string TimeText(const LocalTime& time) const { return Text("%X", time); }

private:
    struct Free {
        void operator()(locale_t locale) const { ::freelocale(locale); }
    };

    std::string Text(const char* pattern, const LocalTime& time) const;

    std::unique_ptr<std::remove_pointer_t<locale_t>, Free> locale_;  // null if even "C" is missing
    util::NumberForm numbers_;
};

}  // namespace kelvra::platform
