// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the user why a measurement could not start.
#pragma once

#include "measure/listener.h"
#include "platform/dialogs.h"

namespace kelvra::ui {

class StartMessages final : public measure::MeasurementListener {
public:
    explicit StartMessages(platform::Dialogs& dialogs) : dialogs_(dialogs) {}

    void StartFailed(measure::StartFailure why) override;

private:
    platform::Dialogs& dialogs_;
};

}  // namespace kelvra::ui
