// SPDX-License-Identifier: GPL-3.0-or-later
// What Kelvra asks or shows outside its own windows. Nothing here stops a measurement: the answer
// to a question comes later, or at once where there is no user to wait for.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kelvra::platform {

enum class MessageIcon { None, Information, Exclamation };

struct FileQuestion {
    std::string title;
    std::string filter;    // "Text Files (*.txt)|*.txt|All files (*.*)|*.*"
    int filterIndex = 1;   // the preselected pair, from 1
    std::string proposed;  // path or name, may be empty
    std::string about;     // what it is about, for the title on a screen: "sensor 2 (PS-106)"
    bool save = false;     // ask before overwriting, refuse what is read-only
};

// The answer: a path, and the pair of the filter that was chosen (from 1).
struct ChosenFile {
    std::string path;
    int filterIndex = 1;
};

// A page of help, in both forms that help has.
struct HelpPage {
    std::string compiledFile;    // may be missing
    int topic = 0;               // in the compiled file; 0 is the whole file
    bool opensCompiled = false;  // the file is there, and the system has a viewer for it
    std::string path;            // otherwise: the page of the guide
};

struct ScreenSize {
    int width = 0, height = 0;  // twips
};

class Dialogs {
public:
    // Nothing when the user has cancelled the question.
    using Answer = std::function<void(std::optional<std::string> text)>;
    using FileAnswer = std::function<void(std::optional<ChosenFile> file)>;

    virtual ~Dialogs() = default;

    // Shows a message box and returns. An empty title is the program's name.
    virtual void Message(const std::string& title, const std::string& text, MessageIcon icon) = 0;
    // The same; calls `confirmed` when the user has confirmed the box.
    virtual void Confirm(const std::string& title, const std::string& text, MessageIcon icon,
                         std::function<void()> confirmed) = 0;
    // The same as Message for a program that is about to end: returns when the user has confirmed
    // the box.
    virtual void LastMessage(const std::string& text) = 0;

    virtual void Prompt(const std::string& text, const std::string& proposed, Answer answer) = 0;
    virtual void AskFile(const FileQuestion& question, FileAnswer answer) = 0;

    // Puts the text on the clipboard.
    virtual void CopyText(const std::string& text) = 0;

    virtual void OpenHelp(const HelpPage& page) = 0;

    // Opens a page ("https:"), a new mail ("mailto:"), or a folder by its path, in the program that
    // the system has for it. A failure gives a message.
    virtual void OpenAddress(const std::string& address) = 0;
    virtual void OpenFolder(const std::string& path) = 0;

    // Of the screen on which the main window opens.
    virtual ScreenSize Screen() = 0;
};

}  // namespace kelvra::platform
