// SPDX-License-Identifier: GPL-3.0-or-later
// Sends single settings of one channel, each call framed in the log. The status of a setting with a
// label is reported under that label; without a label it is not checked.
#pragma once

#include <string>
#include <utility>

#include "driver/call_log.h"
#include "driver/session.h"

namespace kelvra::driver {

constexpr const char* Unchecked = nullptr;

class SettingsSender {
public:
    // The header begins each line of the calls in the log.
    SettingsSender(Session& session, int slot, std::string header, TransferPace* pace)
        : session_(session), slot_(slot), header_(std::move(header)), pace_(pace) {}

    // False once the pace has ended the transfer: the later settings were not sent.
    bool Complete() const { return goesOn_; }

    template <class... Parameters, class... Values>
    void operator()(const Operation<Handle, Channel, Parameters...>& operation, const char* label,
                    Values... values) {
        Send(log_form::General, operation, label, values...);
    }

    template <class... Parameters, class... Values>
    void Send(const LogForm& form, const Operation<Handle, Channel, Parameters...>& operation,
              const char* label, Values... values) {
        if (!goesOn_) return;
        session_.log.header = header_;
        const CallResult result =
            FramedCall(session_.log, form, operation, session_.state.instrumentHandle,
                       ChannelOf(slot_), values...);
        if (label != Unchecked) session_.ReportError(result, slot_, label);
        session_.log.header.clear();  // others may write while the pace lets them
        goesOn_ = pace_ == nullptr || pace_->GoesOn();
    }

private:
    Session& session_;
    int slot_;
    std::string header_;
    TransferPace* pace_;
    bool goesOn_ = true;
};

}  // namespace kelvra::driver
