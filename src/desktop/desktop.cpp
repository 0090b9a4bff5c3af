// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

namespace kelvra::desktop {

Desktop::Desktop(app::Kelvra& kelvra, QtDialogs& dialogs, const std::string& dataFolder)
    : preferences_(dataFolder),
      mirror_(kelvra.forms.changes),
      main_(kelvra.forms.mdiMain, mirror_),
      results_(kelvra.forms.statusForm, mirror_, main_.Area()) {
    dialogs.SetParent(&main_.Widget());
    results_.SetZoom(preferences_.TableZoom());
    results_.Table().onZoom = [this](int steps) {
        results_.SetZoom(steps);
        preferences_.SetTableZoom(steps);
    };
}

}  // namespace kelvra::desktop
