// SPDX-License-Identifier: GPL-3.0-or-later
// Listeners of one kind, as an interface that each of them implements. They are added while the
// program is wired and must outlive this list.
#pragma once

#include <vector>

namespace kelvra::util {

template <class Interface>
class Listeners {
public:
    void Add(Interface& listener) { listeners_.push_back(&listener); }

    // Calls this function of each listener, in the order in which they were added.
    template <class... Parameters, class... Arguments>
    void Tell(void (Interface::*news)(Parameters...), const Arguments&... arguments) const {
        for (Interface* listener : listeners_) (listener->*news)(arguments...);
    }

private:
    std::vector<Interface*> listeners_;
};

}  // namespace kelvra::util
