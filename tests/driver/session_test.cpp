// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/session.h"

#include "driver/driver_fixture.h"
#include "driver/driver_library.h"

namespace kelvra::driver {

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
