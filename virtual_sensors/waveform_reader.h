// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the statements that give the last source above them a waveform.
#pragma once

#include "scenario.h"
#include "words.h"

namespace kelvra::virtual_sensors {

void ReadPulse(Words& words, Scenario& scenario);
void ReadFrame(Words& words, Scenario& scenario);

}  // namespace kelvra::virtual_sensors
