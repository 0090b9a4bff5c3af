// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text_saver.h"

#include <filesystem>

#include "platform/file_tools.h"

namespace kelvra::ui {

void TextSaver::Save(const Content& content) {
    platform::FileQuestion question;
    question.title = content.title;
    question.filter = content.filter + "|All files (*.*)|*.*";
    question.proposed = host_.computer.Join(host_.computer.ProgramFolder(), content.fileName);
    question.about = content.sensor;
    question.save = true;
    host_.dialogs.AskFile(question,
                          [this, content](const std::optional<platform::ChosenFile>& file) {
                              if (file && !file->path.empty()) Write(file->path, content);
                          });
}

void TextSaver::Write(const std::string& path, const Content& content) {
    if (const auto error = platform::ReplaceFile(host_.files, path, content.text))
        return host_.dialogs.Message(
            {}, "The file could not be saved.\r\n" + path + "\r\n" + error.message(),
            platform::MessageIcon::Exclamation);
    notice_.ShowDone(content.what + content.sensor + " saved to " +
                     std::filesystem::path(path).filename().string());
}

}  // namespace kelvra::ui
