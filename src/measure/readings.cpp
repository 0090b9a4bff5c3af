// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/readings.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "driver/call_log.h"
#include "measure/simulation.h"
#include "util/number_text.h"

namespace kelvra::measure {

namespace {

std::string Number(std::int32_t value) {
    return util::NumberText(std::int64_t{value});
}
std::string Number(std::int64_t value) {
    return util::NumberText(value);
}
std::string Number(double value) {
    return util::NumberText(value);
}

// The frame of a call that gives back a value: the value stands in both lines.
template <class Value>
void FramedFetch(driver::DebugLog& log, const char* name, driver::Handle handle,
                 driver::Channel channel, const Value& value, auto call) {
    if (log.enabled)
        log.Write(std::string(name) + "( " + Number(std::int64_t{handle}) + "," +
                  Number(std::int64_t{channel}) + ", " + Number(value) + " ) STARTING");
    call();
    if (log.enabled) log.Write(std::string(name) + " -> " + Number(value) + " ) FINISHED");
}

}  // namespace

void Readings::GetSingleReading(int slot) {
    const sensors::TableLock lock(table_);
    sensors::SensorEntry& entry = table_[slot];
    if (table_.simulationMode)
        entry.lastReading = SimulatedReading(slot, random_);
    else
        FetchScalar(slot);

    entry.history.Add(entry.lastReading);
    if (!table_.simulationMode)
        table_.slotReadings[static_cast<std::size_t>(slot)] = {entry.lastReading,
                                                               entry.history.LastLevel()};
}

void Readings::FetchScalar(int slot) {
    const driver::Handle handle = session_.state.instrumentHandle;
    const driver::Channel channel = driver::ChannelOf(slot);
    sensors::SensorEntry& entry = table_[slot];
    FramedFetch(
        session_.log, "psdrv_meass_fetchMeasurement", handle, channel, entry.lastReading, [&] {
            session_.operations.psdrv_meass_fetchMeasurement(handle, channel, &entry.lastReading);
        });
    std::int32_t& count = entry.avgCountRead;
    FramedFetch(session_.log, "psdrv_avg_getCount", handle, channel, count,
                [&] { session_.operations.psdrv_avg_getCount(handle, channel, &count); });
}

void Readings::GetMultiReading(int slot) {
    const sensors::TableLock lock(table_);
    std::vector<double>& results = table_[slot].results;
    results.assign(ArraySize, 0.0);
    int count = 0;
    if (table_.simulationMode) {
        const auto values = SimulatedArray(table_[slot].settings, ArraySize, random_);
        std::copy(values.begin(), values.end(), results.begin());
        count = static_cast<int>(values.size());
    } else {
        count = FetchArray(slot);
    }
    if (count > 0) results.resize(static_cast<std::size_t>(std::min(count, ArraySize)));
}

int Readings::FetchArray(int slot) {
    const driver::Handle handle = session_.state.instrumentHandle;
    const driver::Channel channel = driver::ChannelOf(slot);
    const std::string name = session_.operations.psdrv_meass_fetchBufferMeasurement.name;
    std::int32_t count = 0;
    if (session_.log.enabled)
        session_.log.Write(name + "( " + driver::ArgumentText(handle, channel, ArraySize, count) +
                           " ) STARTING");
    session_.operations.psdrv_meass_fetchBufferMeasurement(handle, channel, ArraySize,
                                                           table_[slot].results.data(), &count);
    if (session_.log.enabled) session_.log.Write(name + " -> " + Number(count) + " FINISHED");
    return count;
}

}  // namespace kelvra::measure
