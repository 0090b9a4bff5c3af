// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include "desktop/dialog_views.h"
#include "desktop/qt_text.h"
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
                           [this] { Recolour(); }}),
      displays_({kelvra.forms, mirror_, main_.Area(), dialogs, preferences_,
                 [this](bool beside, bool below) { results_.LeaveRoom(beside, below); }}) {
    GiveResultMenu(results_.Table(), kelvra.forms.mdiMain.Show_Settings);
    GiveFormulaMenu(main_.Formulas(), kelvra.forms.mdiMain.EditUndo);
    if (const QRect place = preferences_.Place(ResultWindow); place.isValid())
        results_.Window().PlaceAsBefore(place);
    main_.MirrorFrame(preferences_.Frame());
    forms::Forms& forms = kelvra.forms;
    AddDialog(forms.setupForm, [this, &forms](WidgetMaker& maker) {
        return MakeSetupDialog(forms.setupForm, maker, main_.EditEntries());
    });
    AddDialog(forms.copyForm,
              [&forms](WidgetMaker& maker) { return MakeCopyWindow(forms.copyForm, maker); });
    AddDialog(forms.timeForm,
              [&forms](WidgetMaker& maker) { return MakeRecordDialog(forms.timeForm, maker); });
    AddDialog(forms.sensInfoForm,
              [&forms](WidgetMaker& maker) { return MakeInfoWindow(forms.sensInfoForm, maker); });
    AddDialog(forms.aboutForm,
              [&forms](WidgetMaker& maker) { return MakeAboutBox(forms.aboutForm, maker); });
    kelvra.windows.aboutBox.frontEnd = FrontEndLibraries();
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
void Desktop::AddDialog(controls::Window& record,
                        const std::function<QWidget*(WidgetMaker& maker)>& makeContent) {
    const auto make = [this, &record, makeContent]() -> DialogWindow& {
        WidgetMaker maker(mirror_);
        dialogs_.push_back(
            std::make_unique<DialogWindow>(record, main_.Area(), makeContent(maker)));
        dialogs_.back()->ShowAsBefore(preferences_.Place(Shown(record.Name())));
        return *dialogs_.back();
    };
    mirror_.Add(record, std::make_unique<DialogWindowAdapter>(record, make));
}

void Desktop::KeepLook() {
    displays_.KeepPlaces();
    for (const auto& dialog : dialogs_)
        preferences_.SetPlace(Shown(dialog->Record().Name()), dialog->Place());
    preferences_.SetFrame(main_.Widget().Geometry());
    if (!results_.Table().Fitted() && results_.Window().PlacedByPerson())
        preferences_.SetPlace(ResultWindow, results_.Window().geometry());
}

}  // namespace kelvra::desktop
