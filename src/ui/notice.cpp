// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/notice.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "driver/session.h"
#include "util/number_text.h"

namespace kelvra::ui {

void Notice::Set(Rank rank, std::string text) {
    Text(rank) = std::move(text);
    Show();
}

// The hidden label keeps the last text.
void Notice::Show() {
    const auto top = std::find_if(texts_.begin(), texts_.end(),
                                  [](const std::string& text) { return !text.empty(); });
    const bool any = top != texts_.end();
    if (any) window_.lblMeasAwait.caption = *top;
    window_.lblMeasAwait.visible = any;
    window_.ConnectedFrame.visible = any;
}

void Notice::ShowFileTrouble(const std::string& path, std::string text) {
    troubles_.insert_or_assign(path, std::move(text));
    ShowFirstTrouble();
}

void Notice::EndFileTrouble(const std::string& path) {
    if (troubles_.erase(path) != 0) ShowFirstTrouble();
}

void Notice::ShowFirstTrouble() {
    Set(Rank::Files, troubles_.empty() ? std::string() : troubles_.begin()->second);
}

void Notice::Awaited(int slot, const std::string& complaint) {
    std::string text = "Waiting for a trigger signal at sensor " +
                       util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)});
    if (!complaint.empty()) text += ": " + complaint;
    Set(Rank::Course, std::move(text));
}

void Notice::PassWaits(platform::Duration left) {
    const auto whole = std::chrono::ceil<std::chrono::seconds>(left).count();
    Set(Rank::Course, "Delaying ... " + util::TrimmedNumberText(std::int64_t{whole}));
}

void Notice::PassEnded() {
    const bool standing = !Text(Rank::Error).empty() || !Text(Rank::Files).empty();
    Set(Rank::Course, {});
    if (!standing) window_.lblMeasAwait.caption = " ";
}

void Notice::SessionLost(const measure::LostSession& lost) {
    const std::string& name = table_[lost.slot].logicalName;
    Set(Rank::Course,
        "Sensor " + name + " had lost its session. The measurement" +
            (lost.wasRecording ? " and the recording have" : " has") + " ended. " +
            (lost.answersAgain ? "The sensor answers again." : "The sensor does not answer."));
}

}  // namespace kelvra::ui
