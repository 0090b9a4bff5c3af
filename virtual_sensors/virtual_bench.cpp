// SPDX-License-Identifier: GPL-3.0-or-later
#include "virtual_bench.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "scenario_reader.h"

namespace kelvra::virtual_sensors {

VirtualBench::VirtualBench(Scenario scenario)
    : scenario_(std::move(scenario)), clock_(scenario_), faults_(scenario_) {
    sensors_.reserve(scenario_.sensors.size());
    for (std::size_t i = 0; i < scenario_.sensors.size(); ++i) {
        sensors_.emplace_back(scenario_, i);
    }
}

Twist VirtualBench::BeginCall(Operation operation, int64_t channel) {
    clock_.Meet(operation);
    const Twist twist = faults_.Meet(operation, channel);
    for (const Event& event : faults_.TakeEvents(Now())) sensors_[event.sensor].Plug(event.plug);
    return twist;
}

int32_t VirtualBench::EndCall(Operation operation, int64_t channel, int32_t status,
                              const std::string& detail) {
    const bool asksForErrors =
        operation == Operation::psdrv_error_message || operation == Operation::psdrv_error_query;
    if (status == 0 || asksForErrors) return status;
    if (errors_.size() == MaxQueuedErrors) errors_.pop_front();
    std::string text(NameOf(operation));
    if (channel != 0) text += ", channel " + std::to_string(channel);
    text += ": " + (detail.empty() ? Message(status) : detail);
    errors_.push_back({status, text});
    return status;
}

Outcome VirtualBench::Init(std::string_view resource, uint32_t& handle) {
    if (sessions_.size() == MaxSessions) return {Status::TooManySessions};
    errors_.clear();
    Session session;
    Outcome outcome = session.Open(1, FindResource(sensors_, resource));
    if (outcome.status != Status::Ok) return outcome;
    handle = ++lastHandle_;
    sessions_.emplace(handle, std::move(session));
    return outcome;
}

Outcome VirtualBench::AddSensor(uint32_t handle, int32_t channel, std::string_view resource) {
    const auto session = sessions_.find(handle);
    if (session == sessions_.end()) return {Status::BadHandle};
    return session->second.Open(channel, FindResource(sensors_, resource));
}

Outcome VirtualBench::Close(uint32_t handle) {
    return {sessions_.erase(handle) == 1 ? Status::Ok : Status::BadHandle};
}

Outcome VirtualBench::Find(uint32_t handle, int32_t number, Channel*& channel) {
    const auto session = sessions_.find(handle);
    if (session == sessions_.end()) return {Status::BadHandle};
    return session->second.Find(number, channel);
}

Outcome VirtualBench::Initiate(uint32_t handle) {
    const auto session = sessions_.find(handle);
    if (session == sessions_.end()) return {Status::BadHandle};
    Outcome outcome;
    for (auto& [number, channel] : session->second.Channels()) {
        if (channel.Connected()) {
            channel.measurement.Start(channel.settings, *channel.sensor, scenario_, Now());
        } else {
            outcome = {Status::NotConnected, channel.sensor->Plan().serial};
        }
    }
    return outcome;
}

std::string VirtualBench::Message(int32_t status) const {
    for (const Fault& fault : scenario_.faults) {
        if (fault.effect == Fault::Effect::Status && fault.number == status &&
            !fault.message.empty()) {
            return fault.message;
        }
    }
    return MessageOf(status);
}

QueuedError VirtualBench::NextError() {
    if (errors_.empty()) return {0, MessageOf(0)};
    QueuedError error = std::move(errors_.front());
    errors_.pop_front();
    return error;
}

void VirtualBench::LockList() {
    list_.clear();
    for (const VirtualSensor& sensor : sensors_) {
        const std::size_t index = sensor.Plan().index;
        if (index >= list_.size()) list_.resize(index + 1);
        list_[index] = {&sensor.Plan(), sensor.Plugged()};
    }
}

Scenario ScenarioFromEnvironment() {
    const char* path = std::getenv("KELVRA_BENCH");
    const bool builtIn = path == nullptr || *path == '\0';
    ScenarioResult result =
        builtIn ? ReadScenario(BuiltInScenario(), "built-in scenario") : LoadScenario(path);
    if (!result.error.empty()) {
        const std::string line = result.error + "\n";
        std::fputs(line.c_str(), stderr);
    }
    return std::move(result.scenario);
}

}  // namespace kelvra::virtual_sensors
