// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/notice.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "driver/session.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {

constexpr auto DoneIsShown = std::chrono::seconds(8);
constexpr const char* Images[] = {"noticeError", "noticeFiles", "noticeWait", "noticeDone"};

}  // namespace

void Notice::Set(Rank rank, std::string text) {
    if (rank == Rank::Course) hint_ = false;
    Text(rank) = std::move(text);
    Show();
}

void Notice::Hint(std::string text) {
    Text(Rank::Course) = std::move(text);
    hint_ = true;
    Show();
}

// The hidden label keeps the last text.
void Notice::Show() {
    const auto top = std::find_if(texts_.begin(), texts_.end(),
                                  [](const std::string& text) { return !text.empty(); });
    const bool any = top != texts_.end();
    if (any) {
        const auto rank = static_cast<std::size_t>(top - texts_.begin());
        const bool stays = rank < static_cast<std::size_t>(Rank::Course) ||
                           (rank == static_cast<std::size_t>(Rank::Course) && !hint_);
        if (stays) kept_ = *top;
        window_.lblMeasAwait.caption = *top;
        window_.picNotice.image = Images[rank];
    } else if (window_.lblMeasAwait.caption.Get() != kept_) {
        window_.lblMeasAwait.caption = kept_;
    }
    window_.lblMeasAwait.visible = any;
    window_.ConnectedFrame.visible = any;
}

void Notice::ShowDone(std::string text) {
    doneAt_ = clock_.Monotonic();
    Set(Rank::Done, std::move(text));
}

void Notice::TakeBackOld() {
    if (!Text(Rank::Done).empty() && clock_.Monotonic() - doneAt_ >= DoneIsShown)
        Set(Rank::Done, {});
}

void Notice::Started() {
    configured_.clear();
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (table_[slot].present && table_[slot].enabled) configured_.push_back(slot);
    Text(Rank::Done).clear();
    Set(Rank::Course, {});
}

void Notice::TransferBegins(int slot) {
    const auto found = std::find(configured_.begin(), configured_.end(), slot);
    if (found == configured_.end()) return;
    const auto number = static_cast<std::size_t>(found - configured_.begin()) + 1;
    Hint("Configuring " + util::TrimmedNumberText(number) + " of " +
         util::TrimmedNumberText(configured_.size()));
}

void Notice::EndStart() {
    configured_.clear();
    Set(Rank::Course, {});
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
    if (!complaint.empty() && Text(Rank::Error).empty() && Text(Rank::Files).empty())
        window_.picNotice.image = Images[static_cast<std::size_t>(Rank::Files)];
}

void Notice::PassWaits(platform::Duration left) {
    const auto whole = std::chrono::ceil<std::chrono::seconds>(left).count();
    Set(Rank::Course, "Delaying ... " + util::TrimmedNumberText(std::int64_t{whole}));
}

void Notice::PassEnded() {
    const bool others = !Text(Rank::Error).empty() || !Text(Rank::Files).empty();
    if (!others) kept_ = " ";
    if (!Text(Rank::Course).empty() || window_.lblMeasAwait.caption.Get() != kept_)
        Set(Rank::Course, {});
}

void Notice::SessionLost(const measure::LostSession& lost) {
    const std::string& name = table_[lost.slot].logicalName;
    Set(Rank::Course,
        "Sensor " + name + " had lost its session. The measurement" +
            (lost.wasRecording ? " and the recording have" : " has") + " ended. " +
            (lost.answersAgain ? "The sensor answers again." : "The sensor does not answer."));
}

}  // namespace kelvra::ui
