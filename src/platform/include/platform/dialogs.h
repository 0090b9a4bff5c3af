// SPDX-License-Identifier: GPL-3.0-or-later
// What Kelvra asks a person, or shows outside its own windows. All calls return when the person has
// answered.
#pragma once

#include <optional>
#include <string>

namespace kelvra::platform {

enum class MessageIcon { None, Information, Exclamation };

struct FileQuestion {
    std::string title;
    std::string filter;    // "Text Files (*.txt)|*.txt|All files (*.*)|*.*"
    int filterIndex = 1;   // the preselected pair, from 1
    std::string proposed;  // path or name, may be empty
    bool save = false;     // ask before overwriting, refuse what is read-only
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    // An empty title stands for the program's name.
    virtual void Message(const std::string& title, const std::string& text, MessageIcon icon) = 0;
    // Nothing when the person cancels.
    virtual std::optional<std::string> Prompt(const std::string& text,
                                              const std::string& proposed) = 0;
    virtual std::optional<std::string> AskFile(const FileQuestion& question) = 0;
    // Topic 0 is the whole file.
    virtual void OpenHelp(const std::string& file, int topic) = 0;
};

}  // namespace kelvra::platform
