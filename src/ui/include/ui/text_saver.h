// SPDX-License-Identifier: GPL-3.0-or-later
// Saves a text of a window to a file that the user chooses. What was there when the user was asked
// is saved, even if the window shows something else by the time of the answer.
#pragma once

#include <string>

#include "platform/host.h"
#include "ui/notice.h"

namespace kelvra::ui {

class TextSaver {
public:
    TextSaver(Notice& notice, platform::Host& host) : notice_(notice), host_(host) {}

    struct Content {
        std::string what;    // for the notice: "Information of "
        std::string sensor;  // whose it is: "sensor 2 (Antenna)"
        std::string text;    // of the file
        std::string title;   // of the question
        std::string filter;
        std::string fileName;  // that is proposed, in the program's folder
    };
    // Says in the notice that the file was saved, or in a message why not.
    void Save(const Content& content);

private:
    void Write(const std::string& path, const Content& content);

    Notice& notice_;
    platform::Host& host_;
};

}  // namespace kelvra::ui
