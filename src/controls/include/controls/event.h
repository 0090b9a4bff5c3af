// SPDX-License-Identifier: GPL-3.0-or-later
// A control's event. Listeners connect once, while the windows are wired.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace kelvra::controls {

template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }

    // Runs the handlers in the order in which they were connected.
    void Raise(Arguments... arguments) const {
        for (const Handler& handler : handlers_) handler(arguments...);
    }

private:
    std::vector<Handler> handlers_;
};

}  // namespace kelvra::controls
