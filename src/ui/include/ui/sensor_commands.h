// SPDX-License-Identifier: GPL-3.0-or-later
// The windows' part of the sensor commands: the buttons that begin them, what the notice says
// meanwhile, the question about RF power, and how they have ended. The commands themselves are in
// measure/sensor_commands.h.
#pragma once

#include <functional>
#include <string>

#include "forms/forms.h"
#include "measure/sensor_commands.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/info_window.h"
#include "ui/notice.h"

namespace kelvra::ui {

class SensorCommands final : public measure::CommandListener {
public:
    struct Parts {
        forms::Forms& forms;
        const sensors::SensorTable& table;
        measure::SensorCommands& commands;
        Notice& notice;
        platform::Host& host;
    };

    explicit SensorCommands(const Parts& parts);

    void CommandBegins(measure::SensorCommand command) override;
    void PowerMustBeOff(const std::function<void()>& goOn) override;
    void SensorBegins(measure::SensorCommand command, int slot, int number, int sensors) override;
    void CommandEnded(const measure::CommandEnd& end) override;

private:
    void ShowResult(const measure::CommandEnd& end);
    void ShowFailure(const measure::CommandEnd& end);

    Parts p_;
    InfoWindow infoWindow_;
};

}  // namespace kelvra::ui
