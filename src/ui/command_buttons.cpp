// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/command_buttons.h"

namespace kelvra::ui {

void OfferSensorCommands(forms::SetupForm& dialog, bool offered) {
    const struct {
        controls::Button& button;
        const char* picture;
        const char* disabledPicture;
    } commands[] = {
        {dialog.SensorZero, "zeroSensPic", "zeroSensDisPic"},
        {dialog.cmdZeroAll, "zeroSensAllPic", "zeroSensAllDisPic"},
        {dialog.SensSelfTest, "selfTestPic", "selfTestDisPic"},
        {dialog.SensInfo, "sensInfoPic", "sensInfoDisPic"},
    };
    dialog.ActionFrame.enabled = offered;
    for (const auto& command : commands)
        command.button.picture = offered ? command.picture : command.disabledPicture;
}

}  // namespace kelvra::ui
