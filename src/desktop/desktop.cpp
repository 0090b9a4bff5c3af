// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include "desktop/table_menu.h"

namespace kelvra::desktop {

namespace {
constexpr const char* ResultWindow = "StatusForm";
}  // namespace

Desktop::Desktop(app::Kelvra& kelvra, QtEvents& events, QtDialogs& dialogs,
                 const std::string& dataFolder)
    : events_(events),
      preferences_(dataFolder),
      mirror_(kelvra.forms.changes),
      main_(kelvra.forms.mdiMain, mirror_),
      results_(kelvra.forms.statusForm, mirror_, main_.Area()),
      view_(preferences_, {main_.Widget(), main_.WindowMenu(), results_, main_.Formulas(),
                           [this] { Recolour(); }}) {
    GiveResultMenu(results_.Table(), kelvra.forms.mdiMain.Show_Settings, false);
    GiveFormulaMenu(main_.Formulas(), kelvra.forms.mdiMain.EditUndo);
    if (const QRect place = preferences_.Place(ResultWindow); place.isValid())
        results_.Window().PlaceAsBefore(place);
    main_.MirrorFrame(preferences_.Frame());
    dialogs.SetParent(main_.Widget());
    events_.onRepaint = [this] { mirror_.PaintNow(); };
    events_.onQuit = [&dialogs] { dialogs.Drop(); };
}

Desktop::~Desktop() {
    events_.onRepaint = events_.onQuit = nullptr;
    KeepLook();
}

void Desktop::Recolour() {
    main_.Area().setBackground(PaintColour(Part::Surface, controls::Blue));
    if (shown_ != CurrentScheme()) mirror_.ShowAll();
    shown_ = CurrentScheme();
}

void Desktop::KeepLook() {
    preferences_.SetFrame(main_.Widget().Geometry());
    if (!results_.Table().Fitted() && results_.Window().PlacedByPerson())
        preferences_.SetPlace(ResultWindow, results_.Window().geometry());
}

}  // namespace kelvra::desktop
