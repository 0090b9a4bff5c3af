// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/recorder.h"

#include <utility>

#include "platform/file_tools.h"
#include "util/number_text.h"

namespace kelvra::measure {

namespace {
bool IsOn(const sensors::SensorEntry& entry) {
    return entry.present && entry.enabled;
}
}  // namespace

std::error_code Recorder::Begin(const std::string& path, std::int32_t interval,
                                std::unique_ptr<RecordFormat> format) {
    End();
    torn_.reset();
    const Progress before = std::exchange(progress_, {path, host_.clock.Monotonic(), {}, 0, 0});
    format_ = std::move(format);
    heading_ = format_->Heading(Slots());
    if (const auto error = platform::ReplaceFile(host_.files, path, heading_)) {
        progress_ = before;
        return error;
    }
    gap_ = 0;
    began_.reset();
    runBegins_ = true;
    state_.recording = true;
    state_.recordInterval = interval;
    listeners.Tell(&RecordListener::RecordingBegins);
    return {};
}

void Recorder::End() {
    if (!state_.recording) return;
    if (gap_ > 0) Append(GapRemark());  // a failure has been reported before
    state_.recording = false;
    state_.recordInterval = 0;
    progress_.ended = host_.clock.Monotonic();
    listeners.Tell(&RecordListener::RecordingEnds);
}

std::vector<RecordedSlot> Recorder::Slots() const {
    std::vector<RecordedSlot> slots;
    for (const sensors::SensorEntry& entry : table_.entries) {
        const std::size_t slot = slots.size();
        const bool known = slot < slots_.size();
        const bool measured = state_.measuring && known ? slots_[slot].measured : IsOn(entry);
        slots.push_back({entry.logicalName, entry.present, measured, std::nullopt});
        if (known && slots_[slot].came == state_.passes)
            slots.back().reading = table_.slotReadings[slot];
    }
    return slots;
}

// Start may have given the slots to other sensors.
void Recorder::Started() {
    runBegins_ = true;
    slots_.clear();
    for (const sensors::SensorEntry& entry : table_.entries) slots_.push_back({IsOn(entry), -1});
}

// A pass begins where the one before it ends. The wall clock is read then: it may be set, and the
// computer may sleep, before the line is written.
void Recorder::NoteBegin() {
    if (state_.recording) began_ = host_.clock.Now();
}

// Noted whether or not a recording runs: one may begin in the middle of a pass.
void Recorder::ReadingArrived(int slot) {
    const auto index = static_cast<std::size_t>(slot);
    if (table_.simulationMode || !table_[slot].fetchError.empty() || index >= slots_.size()) return;
    slots_[index].came = state_.passes;
}

void Recorder::PassSeen(platform::Duration now, platform::Duration lasted) {
    if (!state_.recording || state_.recordInterval <= 0) return;
    if (const auto error = WriteLine(began_ ? *began_ : host_.clock.At(now - lasted))) {
        ++gap_;
        ++progress_.missing;
        gapReason_ = error.message();
        return listeners.Tell(&RecordListener::LineMissing, error);
    }
    gap_ = 0;
    ++progress_.lines;
    listeners.Tell(&RecordListener::LineWritten);
}

std::error_code Recorder::WriteLine(const platform::LocalTime& passBegan) {
    const std::vector<RecordedSlot> slots = Slots();
    std::string heading;
    if (runBegins_ && (format_->RepeatsHeading() || progress_.lines == 0)) {
        heading = format_->Heading(slots);
        if (heading == heading_) heading.clear();
    }
    if (!heading.empty() && !format_->RepeatsHeading())
        if (const auto error = host_.files.Resize(progress_.path, 0)) return error;
    std::string text = heading + GapRemark();
    text += format_->Line(passBegan, slots);
    if (const auto error = Append(text)) return error;
    runBegins_ = false;
    if (!heading.empty()) heading_ = heading;
    return {};
}

// Says before the next line how many are missing, and why.
std::string Recorder::GapRemark() const {
    if (gap_ == 0) return {};
    return format_->Remark(host_.clock.Now(), util::TrimmedNumberText(gap_) +
                                                  (gap_ == 1 ? " line is" : " lines are") +
                                                  " missing: " + gapReason_);
}

// A file that has gone is not made anew: if a stick was pulled, another disk may have its folder.
std::error_code Recorder::Append(const std::string& text) {
    if (const auto error = CutTorn()) return error;
    const auto end = host_.files.Size(progress_.path);
    if (!end) return make_error_code(std::errc::no_such_file_or_directory);
    const auto error = platform::AppendToFile(host_.files, progress_.path, text);
    if (error) {
        torn_ = Torn{*end, text.size()};
        CutTorn();  // if that fails as well, the next line tries it again
    }
    return error;
}

// Leaves a file alone that somebody else has lengthened since.
std::error_code Recorder::CutTorn() {
    if (!torn_) return {};
    const auto size = host_.files.Size(progress_.path);
    if (!size) return make_error_code(std::errc::no_such_file_or_directory);
    if (*size > torn_->end && *size - torn_->end <= torn_->length)
        if (const auto error = host_.files.Resize(progress_.path, torn_->end)) return error;
    torn_.reset();
    return {};
}

}  // namespace kelvra::measure
