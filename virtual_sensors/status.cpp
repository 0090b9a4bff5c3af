// SPDX-License-Identifier: GPL-3.0-or-later
#include "status.h"

#include <string_view>

namespace kelvra::virtual_sensors {
namespace {

constexpr struct {
    Status status;
    std::string_view message;
} Messages[] = {
    {Status::Ok, "No error"},
    {Status::BadHandle, "Parameter 1 out of range: no session has this handle"},
    {Status::BadResource, "Invalid resource descriptor: it names no known sensor"},
    {Status::NotConnected, "Sensor not connected"},
    {Status::ChannelNotOpen, "Channel not open in this session"},
    {Status::SensorInUse, "Sensor already in use by another channel"},
    {Status::ValueOutOfRange, "Value out of range"},
    {Status::ModeNotOffered, "Measurement mode not offered by this sensor"},
    {Status::NoResult, "No result: no measurement has been completed"},
    {Status::NoScalarResult, "No single result in this measurement mode"},
    {Status::NoArrayResult, "No result array in this measurement mode"},
    {Status::BadIndex, "No information item has this index"},
    {Status::MissingPointer, "A pointer for text or result is missing"},
    {Status::TooManySessions, "Too many open sessions"},
    {Status::InternalFailure, "Internal failure of the virtual sensors"},
    {Status::LevelOutOfRange, "Trigger level outside the sensor's range"},
    {Status::NothingLeftOfSlot, "Excluded times leave nothing of the time slot"},
    {Status::FrameTooLong, "Time slots are together longer than 10 s"},
    {Status::PointsTooClose, "Trace points are closer than 10 ns"},
    {Status::TraceTooEarly, "Trace begins more than 5 s before the trigger"},
    {Status::HysteresisTooLarge, "Trigger hysteresis reaches beyond the sensor's range"},
};

}  // namespace

std::string MessageOf(int32_t status) {
    for (const auto& row : Messages) {
        if (static_cast<int32_t>(row.status) == status) return std::string(row.message);
    }
    return "Unknown status " + std::to_string(status);
}

}  // namespace kelvra::virtual_sensors
