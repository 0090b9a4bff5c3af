// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

namespace kelvra::desktop {

Desktop::Desktop(app::Kelvra& kelvra, QtEvents& events, QtDialogs& dialogs,
                 const std::string& dataFolder)
    : events_(events),
      preferences_(dataFolder),
      mirror_(kelvra.forms.changes),
      main_(kelvra.forms.mdiMain, mirror_),
      results_(kelvra.forms.statusForm, mirror_, main_.Area()),
      zoom_(preferences_, main_.WindowMenu(), {&results_.Table(), &main_.Formulas()}) {
    main_.MirrorFrame();
    dialogs.SetParent(main_.Widget());
    events_.onRepaint = [this] { mirror_.PaintNow(); };
    events_.onQuit = [&dialogs] { dialogs.Drop(); };
}

}  // namespace kelvra::desktop
