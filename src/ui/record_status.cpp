// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/record_status.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "util/number_text.h"

namespace kelvra::ui {

using std::chrono::seconds;

namespace {

constexpr auto LookInterval = std::chrono::milliseconds(500);
// Less room than this is worth a word: a day of lines for some sensors, and nothing else written.
constexpr std::uint64_t ShortSpace = std::uint64_t{100} << 20;

// "0:02:03"
std::string TimeSpan(platform::Duration time) {
    const std::int64_t whole = std::chrono::floor<seconds>(time).count();
    constexpr std::int64_t perMinute = 60, perHour = 3600;
    const auto twoDigits = [](std::int64_t value) {
        return (value < 10 ? "0" : "") + util::TrimmedNumberText(value);
    };
    return util::TrimmedNumberText(whole / perHour) + ":" + twoDigits(whole % perHour / perMinute) +
           ":" + twoDigits(whole % perMinute);
}

std::string Counted(std::int64_t count) {
    return util::TrimmedNumberText(count) + (count == 1 ? " line" : " lines");
}

}  // namespace

RecordStatus::RecordStatus(forms::MDIMain& window, measure::Recorder& recorder,
                           const measure::MeasureState& state, const sensors::SensorTable& table,
                           Notice& notice, platform::Host& host)
    : window_(window),
      recorder_(recorder),
      state_(state),
      table_(table),
      notice_(notice),
      host_(host) {
    recorder.listeners.Add(*this);
    window_.OpenRecordFolder.click.Connect([this] { OpenFolder(); });
}

// What has ended before is no longer of interest.
void RecordStatus::Started() {
    if (!state_.recording) window_.RecordFrame.visible = false;
}

void RecordStatus::PassWaits(platform::Duration left) {
    if (!state_.recording) return;
    const bool begins = !nextLine_;
    nextLine_ = host_.clock.Monotonic() + left;
    if (begins) Show();
}

void RecordStatus::RecordingBegins() {
    timer_ = host_.events.StartTimer(LookInterval, [this] { Show(); });
    nextLine_.reset();
    window_.lblRecord.tooltip = recorder_.Latest().path;
    window_.RecordFrame.visible = true;
    Show();
}

void RecordStatus::LineWritten() {
    notice_.EndFileTrouble(recorder_.Latest().path);
    Show();
}

void RecordStatus::LineMissing(const std::error_code& why) {
    const std::string& path = recorder_.Latest().path;
    notice_.ShowFileTrouble(path, "The recording can't be written: " + path + ": " + why.message());
    Show();
}

void RecordStatus::RecordingEnds() {
    host_.events.StopTimer(timer_);
    notice_.EndFileTrouble(recorder_.Latest().path);
    Show();
}

void RecordStatus::Show() {
    const std::string file = std::filesystem::path(recorder_.Latest().path).filename().string();
    window_.lblRecord.caption =
        (state_.recording ? CourseText() : "Finished Recording, " + Remainder()) + ": " + file;
}

// What counts is in front: a long name is cut at its end.
std::string RecordStatus::CourseText() const {
    std::string text = SpaceText() + Remainder();
    if (state_.recordInterval <= 0) return text + ", none will come with this interval";
    if (!state_.measuring) return text + ", waits for Start";
    if (table_.simulationMode) text += " without values: simulated ones are not recorded";
    if (!nextLine_) return text;
    const auto left = std::chrono::ceil<seconds>(*nextLine_ - host_.clock.Monotonic()).count();
    return text + ", next in " + util::TrimmedNumberText(std::max<std::int64_t>(left, 0)) + " s";
}

std::string RecordStatus::Remainder() const {
    const measure::Recorder::Progress& progress = recorder_.Latest();
    const platform::Duration until = state_.recording ? host_.clock.Monotonic() : progress.ended;
    std::string text = Counted(progress.lines);
    if (progress.missing > 0)
        text += " (" + util::TrimmedNumberText(progress.missing) + " missing)";
    return text + " in " + TimeSpan(until - progress.began);
}

std::string RecordStatus::SpaceText() const {
    const auto space = host_.files.FreeSpace(recorder_.Latest().path);
    if (!space || *space >= ShortSpace) return {};
    return "Disk has only " + util::TrimmedNumberText(*space >> 20) + " MB left; ";
}

void RecordStatus::OpenFolder() {
    const auto folder = std::filesystem::path(recorder_.Latest().path).parent_path();
    host_.dialogs.OpenFolder(folder.empty() ? std::string(".") : folder.string());
}

}  // namespace kelvra::ui
