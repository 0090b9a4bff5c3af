// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/readings.h"

#include <algorithm>

#include "driver/call_log.h"
#include "measure/simulation.h"

namespace kelvra::measure {

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
    driver::InstrumentOperations& op = session_.operations;
    const driver::CallFrame reading(session_.log, driver::log_form::Reading,
                                    op.psdrv_meass_fetchMeasurement, handle, channel,
                                    entry.lastReading);
    const driver::CallResult result =
        op.psdrv_meass_fetchMeasurement(handle, channel, &entry.lastReading);
    reading.Finish(entry.lastReading);
    const driver::CallFrame counting(session_.log, driver::log_form::Reading, op.psdrv_avg_getCount,
                                     handle, channel, entry.avgCountRead);
    const driver::CallResult counted = op.psdrv_avg_getCount(handle, channel, &entry.avgCountRead);
    counting.Finish(entry.avgCountRead);
    session_.ReportFetch(result.Failed() ? result : counted, slot);
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
    driver::InstrumentOperations& op = session_.operations;
    std::int32_t count = 0;
    const driver::CallFrame frame(session_.log, driver::log_form::ArrayReading,
                                  op.psdrv_meass_fetchBufferMeasurement, handle, channel, ArraySize,
                                  count);
    const driver::CallResult result = op.psdrv_meass_fetchBufferMeasurement(
        handle, channel, ArraySize, table_[slot].results.data(), &count);
    frame.Finish(count);
    session_.ReportFetch(result, slot);
    return count;
}

}  // namespace kelvra::measure
