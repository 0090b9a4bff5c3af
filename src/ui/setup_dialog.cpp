// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_dialog.h"

#include <cmath>
#include <type_traits>
#include <utility>
#include <variant>

#include "driver/catalogue.h"
#include "ui/help.h"
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

// While it lives, events of the controls are not the user's.
class Filling {
public:
    explicit Filling(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~Filling() { flag_ = before_; }
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;

private:
    bool& flag_;
    bool before_;
};

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
    p_.edits.listeners.Add(*this);
    ConnectFields();
    ConnectScales();
    ConnectHelp(p_.form, p_.host);
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
            [&](auto field) {
                auto& control = p_.form.*field;
                ChangeOf(control).Connect([this, &row] { Edited(row); });
                if constexpr (std::is_base_of_v<controls::TextBox,
                                                std::remove_reference_t<decltype(control)>>)
                    control.commit.Connect([this, &row, &control] { Tidy(row, control); });
            },
            row.field);
}

void SetupDialog::ConnectScales() {
    for (const ScaleBox& row : ScaleBoxes()) {
        controls::TextBox& box = p_.form.*row.box;
        box.change.Connect([this, &row] { StoreLimit(row); });
        box.commit.Connect([this, &row, &box] {
            const Filling filling(filling_);
            if (box.fault->empty()) box.SetText(util::GeneralText(Scaling().*row.limit, {}));
        });
    }
    for (controls::CheckBox* box : {&p_.form.chkAutoScaleScope, &p_.form.chkAutoScaleTime})
        box->click.Connect([this] { StoreAutomatic(); });
    p_.form.SensSelect.dropDown.Connect([this] {
        const Filling filling(filling_);
        ShowScaling(p_.form, Scaling(), Typing::Stays);
    });
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
    // By the scales of the sensor before: the display that they belong to shows this sensor now.
    if (TraceScaleShown()) p_.displays.Select(sensors::Trace, p_.table.currentSensor);
    if (TimeSlotScaleShown()) p_.displays.Select(sensors::TimeSlot, p_.table.currentSensor);
    if (!same) p_.edits.EndStep();
    ShowCurrent(same ? Typing::Stays : Typing::IsReplaced);
}

void SetupDialog::ShowCurrent(Typing typing) {
    SensorEntry* entry = Current();
    if (entry == nullptr) return;
    {
        const Filling filling(filling_);
        shownFor_ = entry->resourceName;
        p_.form.SensTypeInfo.caption = TypeInfo(entry->sensorId);
        ShowScaling(p_.form, Scaling(), typing);
        FillModes(*entry);
        ShowSettings(p_.form, entry->settings, typing);
        ShowModeFrames(p_.form, entry->settings.Mode);
    }
    filling_ = false;  // also after the first sensor
    JudgeLimits();
    JudgePoints();
    p_.enabling.Refresh();
}

void SetupDialog::SettingsReplaced(int slot) {
    if (slot == p_.table.currentSensor)
        ShowCurrent();
    else
        JudgePoints();
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
    if (Is(row, &SetupForm::ScopePoints)) LimitPoints();
    SensorEntry& entry = *Current();
    const sensors::SensorSettings before = entry.settings;
    StoreField(p_.form, row, entry.settings, p_.host.computer.Numbers());
    if (Is(row, &SetupForm::ScopePoints)) JudgePoints();
    Remember(row, before);
    p_.enabling.Refresh();
    AfterStore(row, before);
}

// What is typed into one box is one step, until the user or the program completes the text.
void SetupDialog::Remember(const SetupRow& row, const sensors::SensorSettings& before) {
    const controls::TextBox* box = nullptr;
    if (const auto* field = std::get_if<controls::TextField SetupForm::*>(&row.field))
        box = &(p_.form.**field);
    p_.edits.Edited(p_.table.currentSensor, NameOf(p_.form, row), before, box);
    if (box != nullptr && !box->Edited()) p_.edits.EndStep();
}

// A text that the user has finished says what is stored, unless it can't be used.
void SetupDialog::Tidy(const SetupRow& row, controls::TextBox& box) {
    p_.edits.EndStep();
    const SensorEntry* entry = Current();
    if (entry == nullptr || !box.fault->empty()) return;
    const Filling filling(filling_);
    std::visit(
        [&](auto member) {
            box.SetText(ShownText(static_cast<double>(entry->settings.*member), row));
        },
        row.member);
}

// A count of 0 or less becomes 1, which is an edit of its own.
bool SetupDialog::CountIsRight() {
    const bool right = util::ReadNumber(p_.form.SensSlotCount.Text()) > 0;
    if (!right) p_.form.SensSlotCount.SetText("1");
    return right;
}

void SetupDialog::AfterStore(const SetupRow& row, const sensors::SensorSettings& before) {
    const sensors::SensorSettings& now = Current()->settings;
    const Filling filling(filling_);
    if (now.Mode != before.Mode) ShowModeFrames(p_.form, now.Mode);
    if (now.TSlotCount != before.TSlotCount) ShowSlotNumbers(p_.form, now);
    if (Is(row, &SetupForm::SensTrigger)) ShowTriggerButton(p_.form, now);
    p_.form.CorrFreqEnable.SetChecked(true);
}

int SetupDialog::TypedPoints() const {
    const TypedNumber typed = ReadTyped(p_.form.ScopePoints.Text(), {}, p_.host.computer.Numbers());
    return util::RoundToInt32(typed.value).value_or(typed.value > 0 ? MostPoints + 1 : 0);
}

// A simulated sensor gets the most there is.
void SetupDialog::LimitPoints() {
    if (!p_.table.simulationMode || TypedPoints() <= MostPoints) return;
    const Filling filling(filling_);
    p_.form.ScopePoints.SetText(util::TrimmedNumberText(std::int64_t{MostPoints}));
}

// Of the sensor that is shown, the typed number counts even if it can't be stored.
void SetupDialog::JudgePoints() {
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        SensorEntry& entry = p_.table[slot];
        const int points =
            slot == p_.table.currentSensor ? TypedPoints() : entry.settings.ScopePoints;
        const bool tooMany = entry.present && points > MostPoints && !p_.table.simulationMode;
        entry.pointsError = tooMany ? "Scope points number\r\ncannot exceed 1024." : "";
    }
    p_.errorStrip.Refresh();
}

sensors::DisplayScaling& SetupDialog::Scaling() {
    return p_.table.scaling[static_cast<std::size_t>(p_.table.currentSensor)];
}

// A number that is not finite leaves the limit as it is.
void SetupDialog::StoreLimit(const ScaleBox& row) {
    if (filling_ || Current() == nullptr) return;
    controls::TextBox& box = p_.form.*row.box;
    const TypedNumber typed = ReadTyped(box.Text(), {.name = "dBm"}, p_.host.computer.Numbers());
    if (std::isfinite(typed.value)) Scaling().*row.limit = typed.value;
    box.fault = std::isfinite(typed.value) ? typed.fault : std::string("This is out of range.");
    JudgeLimits();
    p_.edits.listeners.Tell(&SettingsListener::ScaleEdited, int{p_.table.currentSensor});
}

void SetupDialog::JudgeLimits() {
    const std::string crossed = "The maximum must be above the minimum.";
    const sensors::DisplayScaling& scaling = Scaling();
    const struct {
        controls::TextBox &least, &most;
        bool rises;
    } axes[] = {{p_.form.txtMinScope, p_.form.txtMaxScope, scaling.minScope < scaling.maxScope},
                {p_.form.txtMinTime, p_.form.txtMaxTime, scaling.minTime < scaling.maxTime}};
    for (const auto& axis : axes)
        for (controls::TextBox* box : {&axis.least, &axis.most}) {
            if (!axis.rises && box->fault->empty()) box->fault = crossed;
            if (axis.rises && box->fault.Get() == crossed) box->fault = std::string();
        }
}

void SetupDialog::StoreAutomatic() {
    if (filling_ || Current() == nullptr) return;
    Scaling().autoScaleScope = p_.form.chkAutoScaleScope.Checked();
    Scaling().autoScaleTime = p_.form.chkAutoScaleTime.Checked();
    p_.edits.listeners.Tell(&SettingsListener::ScaleEdited, int{p_.table.currentSensor});
}

bool SetupDialog::TraceScaleShown() const {
    return p_.form.ScopeFrame.visible;
}

bool SetupDialog::TimeSlotScaleShown() const {
    return p_.form.TimeSlotFrame.visible;
}

}  // namespace kelvra::ui
