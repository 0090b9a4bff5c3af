// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_dialog.h"

#include <utility>
#include <variant>

#include "driver/catalogue.h"
#include "ui/setup_pages.h"
#include "ui/setup_store.h"
#include "util/number_reading.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

using controls::List;
using forms::SetupForm;
using sensors::SensorEntry;

namespace {

constexpr int MostPoints = 1024;
constexpr const char* HelpFile = "KelvraHelp.chm";
constexpr const char* HelpKey = "F1";

// What happens when the user, or filling, changes the field.
controls::Event<>& ChangeOf(controls::TextField& field) {
    return field.change;
}
template <class Field>
controls::Event<>& ChangeOf(Field& field) {
    return field.click;
}

bool Is(const SetupRow& row, const SetupField& field) {
    return row.field == field;
}

// "PS-101;100001" is shown as "PS-101, S/N 100001".
std::string TypeInfo(const std::string& sensorId) {
    std::string info;
    for (const char c : sensorId)
        if (c == ';')
            info += ", S/N ";
        else
            info += c;
    return info;
}

}  // namespace

SetupDialog::SetupDialog(const Parts& parts) : p_(parts), allModes_(parts.form.SensMode.Items()) {
    p_.selection.listeners.Add(*this);
    ConnectFields();
    ConnectScales();
    ConnectHelp(p_.form);
    p_.form.PageSelect.click.Connect(
        [this] { SelectPage(p_.form, p_.form.PageSelect.Selected()); });
    p_.form.resize.Connect([this] { LimitSize(p_.form); });
    p_.form.SensTriggerNow.click.Connect([this] {
        if (SensorEntry* entry = Current()) entry->triggerNowRequest = true;
    });
}

void SetupDialog::ConnectFields() {
    for (const SetupRow& row : SetupRows())
        std::visit(
            [&](auto field) { ChangeOf(p_.form.*field).Connect([this, &row] { Edited(row); }); },
            row.field);
}

void SetupDialog::ConnectScales() {
    for (controls::TextBox* box :
         {&p_.form.txtMinScope, &p_.form.txtMaxScope, &p_.form.txtMinTime, &p_.form.txtMaxTime})
        box->change.Connect([this] { StoreScales(); });
    for (controls::CheckBox* box : {&p_.form.chkAutoScaleScope, &p_.form.chkAutoScaleTime})
        box->click.Connect([this] { StoreScales(); });
    p_.form.SensSelect.dropDown.Connect([this] {
        filling_ = true;
        ShowScaling(p_.form, p_.table.scaling[static_cast<std::size_t>(p_.table.currentSensor)]);
        filling_ = false;
    });
}

// For every control with a help topic.
void SetupDialog::ConnectHelp(controls::Control& control) {
    if (auto* focusable = dynamic_cast<controls::Focusable*>(&control);
        focusable != nullptr && control.access.helpTopic != 0)
        focusable->keyDown.Connect([this, topic = control.access.helpTopic](const auto& key) {
            platform::Computer& computer = p_.host.computer;
            if (key == HelpKey)
                p_.host.dialogs.OpenHelp(computer.Join(computer.ProgramFolder(), HelpFile), topic);
        });
    for (controls::Control* child : control.Children()) ConnectHelp(*child);
}

// Null if there is no sensor.
SensorEntry* SetupDialog::Current() {
    if (p_.table.Slots() == 0) return nullptr;
    SensorEntry& entry = p_.table[p_.table.currentSensor];
    return entry.present ? &entry : nullptr;
}

void SetupDialog::CurrentSensorChanged() {
    const SensorEntry* entry = Current();
    const bool same = entry != nullptr && shownFor_ == entry->resourceName;
    ShowCurrent(same ? Typing::Stays : Typing::IsReplaced);
}

void SetupDialog::ShowCurrent(Typing typing) {
    const SensorEntry* entry = Current();
    if (entry == nullptr) return;
    filling_ = true;
    shownFor_ = entry->resourceName;
    p_.form.SensTypeInfo.caption = TypeInfo(entry->sensorId);
    ShowScaling(p_.form, p_.table.scaling[static_cast<std::size_t>(p_.table.currentSensor)]);
    FillModes(*entry);
    ShowSettings(p_.form, entry->settings, typing);
    ShowModeFrames(p_.form, entry->settings.Mode);
    filling_ = false;
    p_.enabling.Refresh();
}

// A model that is not known has all modes.
void SetupDialog::FillModes(const SensorEntry& entry) {
    std::vector<List::Item> modes;
    for (const driver::ModeEntry& mode :
         driver::ModesOf(driver::CapabilitiesOf(sensors::TypeOf(entry))))
        modes.push_back({mode.text, mode.mode});
    if (modes.empty()) modes = allModes_;
    if (p_.form.SensMode.Items() != modes) p_.form.SensMode.Fill(std::move(modes));
}

void SetupDialog::Edited(const SetupRow& row) {
    if (filling_ || Current() == nullptr) return;
    if (Is(row, &SetupForm::SensSlotCount) && !CountIsRight()) return;
    if (Is(row, &SetupForm::ScopePoints)) PointsChanged();
    Store();
    AfterStore(row);
}

// A count of 0 or less becomes 1, which is an edit of its own.
bool SetupDialog::CountIsRight() {
    const bool right = util::ReadNumber(p_.form.SensSlotCount.Text()) > 0;
    if (!right) p_.form.SensSlotCount.SetText("1");
    return right;
}

void SetupDialog::Store() {
    SensorEntry& entry = *Current();
    StoreSettings(p_.form, entry.settings, p_.host.computer.Numbers());
    entry.settingsChanged = true;
    p_.enabling.Refresh();
    if (onEdit) onEdit();
}

void SetupDialog::AfterStore(const SetupRow& row) {
    if (Is(row, &SetupForm::SensMode)) ModeChosen();
    if (Is(row, &SetupForm::SensSlotCount)) SlotCountChanged();
    if (Is(row, &SetupForm::SensTrigger)) ShowTriggerButton(p_.form, Current()->settings);
}

void SetupDialog::ModeChosen() {
    sensors::ChangeMode(p_.table, p_.table.currentSensor);
    ShowModeFrames(p_.form, Current()->settings.Mode);
    p_.modes.Find();
}

void SetupDialog::SlotCountChanged() {
    sensors::PrepareWorkArrays(p_.table, p_.table.currentSensor);
    filling_ = true;
    ShowSlotNumbers(p_.form, Current()->settings);
    filling_ = false;
}

void SetupDialog::PointsChanged() {
    SensorEntry& entry = *Current();
    const bool tooMany = util::ReadNumber(p_.form.ScopePoints.Text()) > MostPoints;
    entry.pointsError = tooMany ? "Scope points number\r\ncannot exceed 1024." : "";
    p_.errorStrip.Refresh();
    if (!tooMany || !p_.table.simulationMode) return;
    filling_ = true;
    p_.form.ScopePoints.SetText(util::TrimmedNumberText(std::int64_t{MostPoints}));
    filling_ = false;
    entry.pointsError.clear();
}

void SetupDialog::StoreScales() {
    if (filling_ || Current() == nullptr) return;
    sensors::DisplayScaling& scaling =
        p_.table.scaling[static_cast<std::size_t>(p_.table.currentSensor)];
    scaling.autoScaleScope = p_.form.chkAutoScaleScope.Checked();
    scaling.autoScaleTime = p_.form.chkAutoScaleTime.Checked();
    scaling.minScope = util::ReadNumber(p_.form.txtMinScope.Text());
    scaling.maxScope = util::ReadNumber(p_.form.txtMaxScope.Text());
    scaling.minTime = util::ReadNumber(p_.form.txtMinTime.Text());
    scaling.maxTime = util::ReadNumber(p_.form.txtMaxTime.Text());
}

bool SetupDialog::TraceScaleShown() const {
    return p_.form.ScopeFrame.visible;
}

bool SetupDialog::TimeSlotScaleShown() const {
    return p_.form.TimeSlotFrame.visible;
}

}  // namespace kelvra::ui
