// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/data_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

#include "posix/posix_files.h"
#include "support/faulty_files.h"
#include "support/temp_folder.h"

namespace kelvra::platform {

using test::FaultyFiles;

class DataFolderTest : public testing::Test {
protected:
    test::TempFolder folder_;
    PosixFiles files_;
    FaultyFiles faulty_{files_};
};

TEST_F(DataFolderTest, OneChangesFilesAtATimeAndWaitsForTheOtherButNotForEver) {
    auto first = std::make_unique<FolderLock>(files_, folder_.Path());
    std::thread saving([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        first.reset();
    });
    EXPECT_FALSE(FolderLock(files_, folder_.Path()).Error());
    saving.join();
    const FolderLock stuck(files_, folder_.Path());
    EXPECT_EQ(FolderLock(files_, folder_.Path()).Error().message(),
              "another Kelvra is changing the files of this folder");
}

TEST_F(DataFolderTest, AFileSystemWithoutLocksIsNoErrorButAFolderThatIsNotThereIs) {
    for (const std::errc lockless : {std::errc::no_lock_available, std::errc::not_supported}) {
        faulty_.Plan(1, FaultyFiles::Fault::Fail, make_error_code(lockless));
        EXPECT_FALSE(FolderLock(faulty_, folder_.Path()).Error());
    }
    EXPECT_EQ(FolderLock(files_, folder_.Path("none")).Error(),
              std::errc::no_such_file_or_directory);
    FolderUse use(files_);
    use.Begin(folder_.Path("none"));
    EXPECT_EQ(use.Error(), std::errc::no_such_file_or_directory);
}

TEST_F(DataFolderTest, TheTemporaryFilesOfKilledSavesGoAndNothingElse) {
    const std::set<std::string> kept{"kelvra-use.lock", "kelvra-save.lock",    "Kelvra.INI",
                                     "kelvra-.tmp",     "kelvra-notes.tmp",    "kelvra-1A.tmp~",
                                     "kelvra-1A.TMP",   "kelvra-123456789.tmp"};
    for (const std::string& name : kept) folder_.Put(name, "");
    for (const char* name : {"kelvra-0.tmp", "kelvra-1A2B3C4D.tmp"}) folder_.Put(name, "half");
    FolderUse use(files_);
    use.Begin(folder_.Path());
    EXPECT_FALSE(use.Error());
    EXPECT_EQ(folder_.Names(), kept);
}

TEST_F(DataFolderTest, AKilledProgramHoldsNoLock) {
    const auto dies = [this] {
        const FolderLock lock(files_, folder_.Path());
        std::_Exit(lock.Error() ? 1 : FaultyFiles::StopStatus);
    };
    for (int run = 0; run < 2; ++run)
        EXPECT_EXIT(dies(), testing::ExitedWithCode(FaultyFiles::StopStatus), "");
}

}  // namespace kelvra::platform
