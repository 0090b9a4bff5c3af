// SPDX-License-Identifier: GPL-3.0-or-later
// How numbers are written in the data that the displays copy and save. Where the locale has a
// decimal comma, the user is asked once a run whether the numbers get it; then semicolons separate
// the values.
#pragma once

#include <functional>
#include <string>

#include "platform/host.h"
#include "util/number_text.h"

namespace kelvra::ui {

class DataForm {
public:
    explicit DataForm(platform::Host& host);

    // Calls `goOn` when it is known how numbers are written; not if the user cancels.
    void Ask(std::function<void()> goOn);

    // A value that is not finite is empty.
    std::string Number(double value) const;
    const char* Separator() const { return form_.decimal == "," ? ";" : ","; }
    static constexpr const char* LineEnd = "\r\n";

private:
    platform::Host& host_;
    util::NumberForm form_;
    bool asked_;
};

}  // namespace kelvra::ui
