// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/record_menu.h"

#include <string_view>
#include <utility>

#include "ui/typed_number.h"
#include "util/number_reading.h"

namespace kelvra::ui {

namespace {

constexpr const char* Filter =
    "All Files (*.*)|*.*|Text Files(*.txt)|*.txt|Dat Files (*.dat)|*.dat|CSV Files (*.csv)|*.csv|"
    "CSV for analysis (*.analysis.csv)|*.analysis.csv";
constexpr int CsvFilter = 4;  // the preselected one
constexpr int AnalysisFilter = 5;
constexpr BoxUnit Seconds{"seconds", Quantity::Time};

// A number that has no whole second to round to counts as none.
std::int32_t IntervalOf(const TypedNumber& typed) {
    return util::RoundToInt32(typed.value).value_or(0);
}

}  // namespace

RecordMenu::RecordMenu(forms::Forms& forms, measure::Recorder& recorder, platform::Host& host)
    : entry_(forms.mdiMain.FileSaveData),
      dialog_(forms.timeForm),
      recorder_(recorder),
      host_(host) {
    recorder.listeners.Add(*this);
    entry_.click.Connect([this] { StartOrStop(); });
    dialog_.SubmitTimeButton.click.Connect([this] { AskFile(); });
    dialog_.TimeIntervalBox.change.Connect([this] { Judge(); });
    dialog_.TimeIntervalBox.keyDown.Connect([this](const controls::Key& key) {
        if (key == "Enter") AskFile();
    });
}

void RecordMenu::RecordingBegins() {
    entry_.caption = "Stop Recording";
}

void RecordMenu::RecordingEnds() {
    entry_.caption = "Record Data...";
}

void RecordMenu::StartOrStop() {
    recorder_.Runs() ? recorder_.End() : dialog_.Present();
}

void RecordMenu::AskFile() {
    if (std::exchange(asking_, true)) return;
    platform::FileQuestion question;
    question.title = "Record Data";
    question.filter = Filter;
    question.filterIndex = CsvFilter;
    question.proposed = Proposed();
    question.save = true;
    host_.dialogs.AskFile(question, [this](const std::optional<platform::ChosenFile>& file) {
        asking_ = false;
        if (file && !file->path.empty()) Begin(*file);
    });
}

// The last file again, by the name that it has in the form that is preselected.
std::string RecordMenu::Proposed() const {
    const std::string& last = recorder_.Latest().path;
    if (last.empty()) return host_.computer.Join(host_.computer.ProgramFolder(), "Readings.csv");
    constexpr std::string_view analysis = ".analysis.csv";
    return last.ends_with(analysis) ? last.substr(0, last.size() - analysis.size()) + ".csv" : last;
}

// A recording that is not wanted any more has been ended in the menu before.
void RecordMenu::Begin(const platform::ChosenFile& file) {
    dialog_.visible = false;
    const TypedNumber typed =
        ReadTyped(dialog_.TimeIntervalBox.Text(), Seconds, host_.computer.Numbers());
    auto format = file.filterIndex == AnalysisFilter ? measure::MakeAnalysisFormat()
                                                     : measure::MakeTableFormat(host_.computer);
    if (const auto error = recorder_.Begin(file.path, IntervalOf(typed), std::move(format)))
        host_.dialogs.Message(
            {}, "The recording could not be started.\r\n" + file.path + "\r\n" + error.message(),
            platform::MessageIcon::Exclamation);
}

void RecordMenu::Judge() {
    controls::TextBox& box = dialog_.TimeIntervalBox;
    const TypedNumber typed = ReadTyped(box.Text(), Seconds, host_.computer.Numbers());
    box.fault = !typed.fault.empty() || IntervalOf(typed) > 0
                    ? typed.fault
                    : std::string(
                          "No line is ever written: the interval must be from 1 to "
                          "2147483647 seconds.");
}

}  // namespace kelvra::ui
