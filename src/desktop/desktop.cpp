// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include "desktop/table_menu.h"

namespace kelvra::desktop {

namespace {
constexpr const char* ResultWindow = "StatusForm";
constexpr const char* SetupWindow = "SetupForm";
}  // namespace

Desktop::Desktop(app::Kelvra& kelvra, QtEvents& events, QtDialogs& dialogs,
                 const std::string& dataFolder)
    : events_(events),
      setup_(kelvra.forms.setupForm),
      preferences_(dataFolder),
      mirror_(kelvra.forms.changes),
      main_(kelvra.forms.mdiMain, mirror_),
      results_(kelvra.forms.statusForm, mirror_, main_.Area()),
      view_(preferences_, {main_.Widget(), main_.WindowMenu(), results_, main_.Formulas(),
                           [this] { Recolour(); }}) {
    GiveResultMenu(results_.Table(), kelvra.forms.mdiMain.Show_Settings);
    GiveFormulaMenu(main_.Formulas(), kelvra.forms.mdiMain.EditUndo);
    if (const QRect place = preferences_.Place(ResultWindow); place.isValid())
        results_.Window().PlaceAsBefore(place);
    main_.MirrorFrame(preferences_.Frame());
    AddDialog(setup_, [this]() -> DialogWindow& { return MakeSetupDialog(); });
    AddDialog(kelvra.forms.copyForm, [this, &form = kelvra.forms.copyForm]() -> DialogWindow& {
        return copyWindow_.emplace(form, mirror_, main_.Area()).Window();
    });
    AddDialog(
        kelvra.forms.sensInfoForm, [ this, &form = kelvra.forms.sensInfoForm ]() -> auto& {
            return infoWindow_.emplace(form, mirror_, main_.Area()).Window();
        });
    kelvra.forms.mdiMain.Show_Settings.click.Connect([this] {
        if (setupDialog_) setupDialog_->Window().Raise();
    });
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

// Dialogs are made when they are first shown: many runs never show them.
void Desktop::AddDialog(controls::Window& record, std::function<DialogWindow&()> make) {
    mirror_.Add(record, std::make_unique<DialogWindowAdapter>(record, std::move(make)));
}

DialogWindow& Desktop::MakeSetupDialog() {
    setupDialog_.emplace(setup_, mirror_, main_.Area(), main_.EditEntries());
    setupDialog_->Window().ShowAsBefore(preferences_.Place(SetupWindow));
    return setupDialog_->Window();
}

void Desktop::KeepLook() {
    if (setupDialog_) preferences_.SetPlace(SetupWindow, setupDialog_->Window().Place());
    preferences_.SetFrame(main_.Widget().Geometry());
    if (!results_.Table().Fitted() && results_.Window().PlacedByPerson())
        preferences_.SetPlace(ResultWindow, results_.Window().geometry());
}

}  // namespace kelvra::desktop
