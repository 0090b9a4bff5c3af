// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/session.h"

#include "driver/driver_fixture.h"
#include "driver/driver_library.h"

namespace kelvra::driver {

TEST_F(DriverTest, TheFirstSlotOpensTheSessionAndOthersAreAddedToIt) {
    table_[0].waitTicks = table_[1].waitTicks = 5;
    session_.OpenSensor(0);
    session_.OpenSensor(1);
    EXPECT_EQ(driver_.calls,
              (Lines{"psdrv_init(USB::1, 1, 1)", "psdrv_AddSensor(12, 2, USB::2, 1, 1)"}));
    EXPECT_EQ(LogLines(),
              (Lines{"psdrv_init(USB::1, 1, 1, 0) STARTING",
                     "psdrv_init FINISHED -> instrumentHandle:  12",
                     "psdrv_AddSensor(12, 2, USB::2, 1, 1) STARTING", "psdrv_AddSensor FINISHED"}));
    EXPECT_TRUE(table_[0].sessionOpen && table_[1].sessionOpen);
    EXPECT_EQ(table_[0].waitTicks + table_[1].waitTicks, 0);
    EXPECT_EQ(fake_.clock.Monotonic(), std::chrono::milliseconds(200));
    EXPECT_FALSE(state_.sessionClosed);
}

TEST_F(DriverTest, NothingIsCalledForASlotThatCannotBeOpened) {
    table_[0].resourceName = "  ";
    session_.OpenSensor(0);
    session_.OpenSensor(1);  // there is no session
    EXPECT_FALSE(table_[0].sessionOpen || table_[1].sessionOpen);
    table_.simulationMode = true;
    session_.OpenSensor(1);
    EXPECT_TRUE(table_[1].sessionOpen);
    EXPECT_EQ(driver_.calls, Lines());
}

TEST_F(DriverTest, AFailedInitLeavesNoHandleAndNothingToClose) {
    Fail("psdrv_init", -5);
    session_.OpenSensor(0);
    EXPECT_EQ(state_.instrumentHandle, 0U);
    EXPECT_FALSE(table_[0].sessionOpen);
    EXPECT_EQ(driver_.Count("psdrv_close"), 0);
    EXPECT_EQ(notices_, (Lines{"failed 0: psdrv_init\r\n  bad value\r\n  queue empty",
                               "not opened 0: bad value\r\n(queue empty)"}));
    EXPECT_EQ(LogLines(),
              (Lines{"psdrv_init(USB::1, 1, 1, 0) STARTING",
                     "   ERROR: Session  0, Code -5=0xFFFFFFFB", "   error_message: bad value",
                     "   error_query: 'queue empty'", "psdrv_init FINISHED -> instrumentHandle:  0",
                     "psdrv_error_message(  0, -5 ) STARTING", "psdrv_error_message -> FINISHED",
                     "psdrv_error_query(  0, -5 ) STARTING", "psdrv_error_query -> FINISHED"}));
}

TEST_F(DriverTest, WhatIsMissingIsNamedAndWhatHasNoWordsIsANumber) {
    const auto whole = test::FakeDriver::InstrumentFunctions();
    auto withoutInit = whole;
    withoutInit.erase("psdrv_init");
    auto withoutMessage = whole;
    withoutMessage.erase("psdrv_error_message");
    const struct {
        test::FunctionTable functions;
        Status status;
        std::string words;
    } cases[] = {
        {{}, 0, "The driver library libfake.so could not be loaded: no such file\r\n()"},
        {withoutInit, 0,
         "The driver library libfake.so has no function psdrv_init.\r\n(queue empty)"},
        {withoutMessage, -5, "-5\r\n(queue empty)"},
        {whole, MissingFunction, "bad value\r\n(queue empty)"},  // the driver's own -1
    };
    for (const auto& [functions, status, words] : cases) {
        test::FakeDriver::PutInto(operations_, functions);
        operations_.libraryLoaded = !functions.empty();
        operations_.whyNotLoaded = "no such file";
        Fail("psdrv_init", status);
        session_.OpenSensor(0);
        EXPECT_EQ(notices_.back(), "not opened 0: " + words);
        EXPECT_FALSE(table_[0].sessionOpen);
    }
}

TEST_F(DriverTest, ATextOfTheDriverEndsInsideItsBuffer) {
    const std::string full(256, 'x');
    driver_.terminated = false;
    for (const std::string& message : {full, std::string("short"), std::string("\xFF\xFE")}) {
        driver_.message = message;
        EXPECT_EQ(session_.MessageFor({-5}), message);
    }
    driver_.message = "";
    EXPECT_EQ(session_.MessageFor({-5}), "-5");
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
    EXPECT_EQ(library.instrument.psdrv_close(1).status, MissingFunction);
    EXPECT_EQ(library.deviceList.TeskLockDeviceList().status, MissingFunction);
    for (const auto* operation : library.instrument.all)
        EXPECT_EQ(operation->address == nullptr, operation == &library.instrument.psdrv_close)
            << operation->name;
}

}  // namespace kelvra::driver
