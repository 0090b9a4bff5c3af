// SPDX-License-Identifier: GPL-3.0-or-later
// A session over a fake driver, with eight slots, its log in a file, and its notices noted.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "driver/session.h"
#include "driver/transfer.h"
#include "platform/native.h"
#include "support/fake_driver.h"
#include "support/temp_folder.h"

namespace kelvra::driver {

class DriverTest : public testing::Test, public SensorNotices, public TransferMarks {
protected:
    DriverTest() {
        test::FakeDriver::PutInto(operations_, test::FakeDriver::InstrumentFunctions());
        news_.notices.Add(*this);
        news_.marks.Add(*this);
        log_.path = folder_.Path("log");
        log_.enabled = true;
        table_.Resize(8);
        for (int slot = 0; slot < 3; ++slot) {
            table_[slot].resourceName = "USB::" + std::to_string(slot + 1);
            table_[slot].logicalName = "A";
            table_[slot].present = table_[slot].enabled = true;
        }
    }

    void SensorFailed(int slot, const std::string& text) override {
        notices_.push_back("failed " + std::to_string(slot) + ": " + text);
    }
    void SensorIsWell(int slot) override { notices_.push_back("well " + std::to_string(slot)); }
    void OpeningFailed(int slot, const std::string& text) override {
        notices_.push_back("not opened " + std::to_string(slot) + ": " + text);
    }
    void TransferBegins(int slot) override { marks_.push_back("begins " + std::to_string(slot)); }
    void TransferEnds(int slot) override { marks_.push_back("ends " + std::to_string(slot)); }

    void Fail(const std::string& function, Status status) {
        driver_.status = [=](std::string_view name, int) { return name == function ? status : 0; };
    }

    std::vector<std::string> LogLines() const {
        std::vector<std::string> lines;
        const std::string bytes = folder_.Get("log");
        for (std::size_t at = 0, end; (end = bytes.find("\r\n", at)) != std::string::npos;
             at = end + 2)
            lines.push_back(bytes.substr(at, end - at));
        return lines;
    }

    using Lines = std::vector<std::string>;

    test::TempFolder folder_;
    std::unique_ptr<platform::Files> files_ = platform::NativeFiles();
    test::FakeHost fake_{*files_};
    test::FakeDriver driver_;
    SessionNews news_;
    SessionState state_;
    InstrumentOperations operations_;
    sensors::SensorTable table_;
    DebugLog log_{*files_, fake_.clock, fake_.computer.numbers};
    Session session_{state_, operations_, log_, table_, fake_.clock, news_.notices};
    ConfigurationTransfer transfer_{session_, table_, news_};
    Lines notices_;
    Lines marks_;
};

}  // namespace kelvra::driver
