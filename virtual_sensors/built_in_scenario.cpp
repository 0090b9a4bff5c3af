// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario.h"

namespace kelvra::virtual_sensors {

// The coupler's arms see the wave to the load at -20 dB and the reflected wave, with a return loss
// of 14 dB, at -34 dB: a standing-wave ratio of about 1.5.
std::string_view BuiltInScenario() {
    return R"(seed 1
time computer
external 10 ms
source generator 10 dBm
source oscillator -25 dBm
source radar 20 dBm
    pulse period 1 ms width 100 us rise 3 us overshoot 10 % off -60 dB
source base_station -10 dBm
    frame slot 577 us rise 15 us levels 0 -10 -3 -6 -1 -15 -8 off dB

sensor PS-101 100001
    name "Reflected"
    sees generator -34 dB
    noise 0.01 dB
    noise 50 pW

sensor PS-106 100002
    name "Forward"
    sees generator -20 dB
    noise 0.01 dB
    noise 50 pW

sensor PS-102 100003
    name "PS-102 thermal"
    sees oscillator 0 dB
    noise 20 nW

sensor PS-118 100004
    sees oscillator -3 dB
    noise 0.02 dB

sensor PS-107 100005
    name "Pulses"
    sees radar 0 dB
    noise 0.02 dB
    noise 20 nW

sensor PS-105 100006
    name "Frames"
    sees base_station 0 dB
    noise 0.02 dB
    noise 1 nW
)";
}

}  // namespace kelvra::virtual_sensors
