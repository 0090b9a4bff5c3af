// SPDX-License-Identifier: GPL-3.0-or-later
// Records a measurement: a line for each pass, in the file before the next pass begins. Each line
// is one open, one write and one close, so that whatever happens costs at most the line that is
// being written. A line that can't be written is missing; the recording goes on when it can.
// pacing.h keeps the interval, record_format.h makes the text.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "measure/listener.h"
#include "measure/record_format.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "util/listeners.h"

namespace kelvra::measure {

class RecordListener {
public:
    virtual ~RecordListener() = default;

    virtual void RecordingBegins() {}
    virtual void LineWritten() {}
    // The pass's line could not be written.
    virtual void LineMissing(const std::error_code& /*why*/) {}
    virtual void RecordingEnds() {}
};

class Recorder final : public MeasurementListener, public PassListener, public SlotListener {
public:
    // Of the recording that runs, or of the last one.
    struct Progress {
        std::string path;
        platform::Duration began{}, ended{};  // on the monotonic clock
        std::int64_t lines = 0;               // written, without headings and remarks
        std::int64_t missing = 0;             // could not be written
    };

    Recorder(const sensors::SensorTable& table, MeasureState& state, platform::Host& host)
        : table_(table), state_(state), host_(host) {}

    // Makes the file, or replaces it, with the heading in it, and begins; a recording that runs is
    // ended before. With an interval (s) of 0 or less no line is ever written. An error begins
    // nothing.
    std::error_code Begin(const std::string& path, std::int32_t interval,
                          std::unique_ptr<RecordFormat> format);
    void End();

    bool Runs() const { return state_.recording; }
    const Progress& Latest() const { return progress_; }

    util::Listeners<RecordListener> listeners;

    void Started() override;
    void Prepared() override { NoteBegin(); }
    void Stopped() override { End(); }
    // Only a good reading of this pass is recorded, and none of a simulated sensor.
    void ReadingArrived(int slot) override;
    void PassSeen(platform::Duration now, platform::Duration lasted) override;
    void PassEnded() override { NoteBegin(); }

private:
    // What a failed write may have left: bytes of a line behind the file's former end.
    struct Torn {
        std::uint64_t end = 0;
        std::uint64_t length = 0;
    };

    struct Slot {
        bool measured = false;   // in this measurement
        std::int64_t came = -1;  // the pass of the latest good reading
    };

    std::vector<RecordedSlot> Slots() const;
    void NoteBegin();
    std::string GapRemark() const;
    std::error_code WriteLine(const platform::LocalTime& passBegan);
    std::error_code Append(const std::string& text);
    std::error_code CutTorn();

    const sensors::SensorTable& table_;
    MeasureState& state_;
    platform::Host& host_;
    std::unique_ptr<RecordFormat> format_;
    Progress progress_;
    std::string heading_;                       // the last one in the file
    bool runBegins_ = false;                    // no line of this measurement has been written yet
    std::optional<platform::LocalTime> began_;  // of the pass, unless the recording began in it
    std::vector<Slot> slots_;
    std::int64_t gap_ = 0;  // lines missing since the last one
    std::string gapReason_;
    std::optional<Torn> torn_;
};

}  // namespace kelvra::measure
