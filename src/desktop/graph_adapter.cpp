// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_adapter.h"

#include <utility>

namespace kelvra::desktop {

void GraphAdapter::Update() {
    if (std::exchange(scheme_, CurrentScheme()) != CurrentScheme()) widget_.UpdateLook();
    UpdateCommon(widget_, graph_);
    widget_.update();
}

}  // namespace kelvra::desktop
