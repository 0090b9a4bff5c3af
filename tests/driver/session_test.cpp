// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/session.h"

#include "driver/driver_fixture.h"
#include "driver/driver_library.h"

namespace kelvra::driver {

TEST_F(DriverTest, TheFirstSlotOpensTheSessionAndOthersAreAddedToIt) {
    table_[0].WaitTicks = table_[1].WaitTicks = 5;
    session_.OpenSensor(0);
    session_.OpenSensor(1);
    EXPECT_EQ(driver_.calls,
              (Lines{"psdrv_init(USB::1, 1, 1)", "psdrv_AddSensor(12, 2, USB::2, 1, 1)"}));
    EXPECT_EQ(LogLines(),
              (Lines{"psdrv_init(USB::1, 1, 1, 0) STARTING",
                     "psdrv_init FINISHED -> instrumentHandle:  12",
                     "psdrv_AddSensor(12, 2, USB::2, 1, 1) STARTING", "psdrv_AddSensor FINISHED"}));
    EXPECT_TRUE(table_[0].SessionOpen && table_[1].SessionOpen);
    EXPECT_EQ(table_[0].WaitTicks + table_[1].WaitTicks, 0);
    EXPECT_EQ(fake_.clock.Monotonic(), std::chrono::milliseconds(200));
    EXPECT_FALSE(state_.SessionClosed);
}

TEST_F(DriverTest, NothingIsCalledForASlotThatCannotBeOpened) {
    table_[0].ResourceName = "  ";
    session_.OpenSensor(0);
    session_.OpenSensor(1);  // there is no session
    EXPECT_FALSE(table_[0].SessionOpen || table_[1].SessionOpen);
    table_.SimulationMode = true;
    session_.OpenSensor(1);
    EXPECT_TRUE(table_[1].SessionOpen);
    EXPECT_EQ(driver_.calls, Lines());
}

TEST_F(DriverTest, AFailedInitLeavesNoHandleAndNothingToClose) {
    driver_.status = [](std::string_view name, int) { return name == "psdrv_init" ? -5 : 0; };
    session_.OpenSensor(0);
    EXPECT_EQ(state_.instrumentHandle, 0U);
    EXPECT_FALSE(table_[0].SessionOpen);
    EXPECT_EQ(driver_.Count("psdrv_close"), 0);
    EXPECT_EQ(fake_.dialogs.messages,
              (std::vector<test::FakeDialogs::Shown>{{"", "bad value\r\n(queue empty)"}}));
    EXPECT_EQ(shown_, Lines{"show 0 psdrv_init\r\n  bad value\r\n  queue empty\r\n"});
    EXPECT_EQ(LogLines(),
              (Lines{"psdrv_init(USB::1, 1, 1, 0) STARTING",
                     "   ERROR: Session  0, Code -5=0xFFFFFFFB", "   error_message: bad value",
                     "   error_query: 'queue empty'", "psdrv_init FINISHED -> instrumentHandle:  0",
                     "psdrv_error_message(  0, -5 ) STARTING", "psdrv_error_message -> FINISHED",
                     "psdrv_error_query(  0, -5 ) STARTING", "psdrv_error_query -> FINISHED"}));
}

TEST_F(DriverTest, AFailedFurtherSensorClosesTheSessionOnceForAllSlots) {
    driver_.status = [](std::string_view name, int) { return name == "psdrv_AddSensor" ? 7 : 0; };
    session_.OpenSensor(0);
    session_.OpenSensor(2);
    EXPECT_FALSE(table_[2].Enabled);
    EXPECT_TRUE(table_[0].Enabled);
    session_.Close();
    EXPECT_EQ(driver_.Count("psdrv_close"), 1);
    EXPECT_EQ(driver_.calls.back(), "psdrv_close(12)");
    EXPECT_EQ(state_.instrumentHandle, 0U);
    EXPECT_TRUE(state_.SessionClosed);
    for (const auto& entry : table_.Sensors) EXPECT_FALSE(entry.SessionOpen);
}

TEST_F(DriverTest, ReconnectingIsOfferedUnlessTheDescriptorWasWrong) {
    const struct {
        const char* message;
        Status status;
        bool prompt;
    } cases[] = {
        {"bad value", -5, true},
        {"Unknown Descriptor!", -5, false},
        {"Unknown Descriptor!", 0, true},
    };
    for (const auto& c : cases) {
        driver_.message = c.message;
        driver_.status = [&](std::string_view name, int) {
            return name == "psdrv_init" ? c.status : 0;
        };
        state_.ReconnectPrompt = !c.prompt;
        session_.OpenSensor(0);
        EXPECT_EQ(state_.ReconnectPrompt, c.prompt) << c.message << c.status;
    }
}

TEST_F(DriverTest, WhatIsMissingIsNamedAndWhatHasNoWordsIsANumber) {
    const auto whole = test::FakeDriver::InstrumentFunctions();
    auto withoutInit = whole;
    withoutInit.erase("psdrv_init");
    auto withoutMessage = whole;
    withoutMessage.erase("psdrv_error_message");
    const struct {
        test::FunctionTable functions;
        bool found;
        Status status;
        const char* text;
    } cases[] = {
        {{}, false, 0, "The driver library libfake.so could not be loaded: no such file\r\n()"},
        {withoutInit, true, 0,
         "The driver library libfake.so has no function psdrv_init.\r\n(queue empty)"},
        {withoutMessage, true, -5, "-5\r\n(queue empty)"},
        {whole, true, MissingFunction, "bad value\r\n(queue empty)"},  // the driver's own -1
    };
    for (const auto& c : cases) {
        test::FakeDriver::PutInto(operations_, c.functions);
        operations_.libraryLoaded = c.found;
        operations_.whyNotLoaded = "no such file";
        driver_.status = [&](std::string_view name, int) {
            return name == "psdrv_init" ? c.status : 0;
        };
        session_.OpenSensor(0);
        EXPECT_EQ(fake_.dialogs.messages.back().text, c.text);
        EXPECT_FALSE(table_[0].SessionOpen);
    }
}

TEST_F(DriverTest, ATextOfTheDriverEndsInsideItsBuffer) {
    const std::string full(256, 'x');
    const struct {
        std::string message;
        bool terminated;
        std::string shown;
    } cases[] = {
        {full, false, full}, {"short", false, "short"},      {"", true, "-5"},
        {"", false, "-5"},   {"\xFF\xFE", true, "\xFF\xFE"},
    };
    for (const auto& c : cases) {
        driver_.message = c.message;
        driver_.terminated = c.terminated;
        EXPECT_EQ(session_.MessageFor(-5), c.shown);
    }
}

TEST_F(DriverTest, TheLogSaysWhichLibraryOrFunctionIsNotThere) {
    DriverLibrary library;
    auto functions = test::FakeDriver::InstrumentFunctions();
    functions.erase("psdrv_close");
    fake_.computer.libraries["psdrv_32"] = functions;
    library.Load(fake_.computer, log_);
    EXPECT_EQ(LogLines(),
              (Lines{"Driver library libpsdrv_32.so has no function psdrv_close",
                     "Driver library libTeskControl2.so was not loaded: no such file"}));
    EXPECT_EQ(library.instrument.psdrv_close(1), MissingFunction);
    EXPECT_EQ(library.deviceList.TeskLockDeviceList(), MissingFunction);
    for (const auto* operation : library.instrument.all)
        EXPECT_EQ(operation->address == nullptr, operation == &library.instrument.psdrv_close)
            << operation->name;
}

}  // namespace kelvra::driver
