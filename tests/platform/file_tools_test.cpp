// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_tools.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/profile_file.h"
#include "posix/posix_files.h"
#include "support/faulty_files.h"
#include "support/temp_folder.h"

namespace kelvra::platform {

namespace fs = std::filesystem;
using test::FaultyFiles;
using Fault = FaultyFiles::Fault;
using Names = std::set<std::string>;

constexpr auto ReadOnly = fs::perms::owner_read | fs::perms::group_read;

class FileToolsTest : public testing::Test {
protected:
    // Operations of one undisturbed replacement.
    int OperationsOfReplace() {
        folder_.Put("f", old_);
        faulty_.Plan(0, Fault::None);
        EXPECT_FALSE(ReplaceFile(faulty_, path_, new_));
        EXPECT_EQ(faulty_.Operations(), 6);  // open, permissions, write, sync, close, rename
        return faulty_.Operations();
    }

    const std::string old_ = "old bytes";
    const std::string new_ = std::string(200'000, 'n') + '\0' + "end";
    test::TempFolder folder_;
    const std::string path_ = folder_.Path("f");
    PosixFiles files_;
    FaultyFiles faulty_{files_};
};

TEST_F(FileToolsTest, AFailedReplacementKeepsTheOldFileAndAShortWriteIsContinued) {
    const int operations = OperationsOfReplace();
    for (int n = 1; n <= operations; ++n) {
        folder_.Put("f", old_);
        faulty_.Plan(n, Fault::Fail);
        EXPECT_EQ(ReplaceFile(faulty_, path_, new_), std::errc::no_space_on_device) << n;
        EXPECT_TRUE(folder_.Get("f") == old_) << n;
        EXPECT_EQ(folder_.Names(), Names{"f"}) << n;
        folder_.Put("f", old_);
        faulty_.Plan(n, Fault::Short);
        EXPECT_FALSE(ReplaceFile(faulty_, path_, new_)) << n;
        EXPECT_TRUE(folder_.Get("f") == new_) << n;
    }
    faulty_.Plan(1, Fault::Fail, make_error_code(std::errc::file_exists));
    EXPECT_FALSE(ReplaceFile(faulty_, path_, new_)) << "a taken temporary name is passed over";
    EXPECT_EQ(folder_.Names(), Names{"f"});
}

TEST_F(FileToolsTest, AStopAnywhereLeavesTheOldFileWhole) {
    const int operations = OperationsOfReplace();
    for (int n = 1; n <= operations; ++n) {
        folder_.Put("f", old_);
        faulty_.Plan(n, Fault::Stop);
        EXPECT_EXIT(ReplaceFile(faulty_, path_, new_),
                    testing::ExitedWithCode(FaultyFiles::StopStatus), "");
        EXPECT_TRUE(folder_.Get("f") == old_) << n;
        // What the crash has left must not be in the way of the next one.
        EXPECT_FALSE(ReplaceFile(files_, path_, new_)) << n;
        EXPECT_TRUE(folder_.Get("f") == new_) << n;
    }
}

TEST_F(FileToolsTest, ReplacementKeepsPermissionsAndLinksAndRefusesAReadOnlyFile) {
    folder_.Put("f", old_);
    fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("f", folder_.Path("link"));
    fs::create_symlink(folder_.Path("link"), folder_.Path("link to link"));
    fs::create_symlink("new", folder_.Path("link to nothing"));
    EXPECT_FALSE(ReplaceFile(files_, folder_.Path("link to link"), new_));
    EXPECT_FALSE(ReplaceFile(files_, folder_.Path("link to nothing"), old_));
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(folder_.Get("f") == new_);
    EXPECT_EQ(folder_.Names(), (Names{"f", "link", "link to link", "link to nothing", "new"}));
    EXPECT_TRUE(fs::is_symlink(folder_.Path("link")));
    fs::permissions(path_, ReadOnly);
    EXPECT_EQ(ReplaceFile(files_, path_, old_), std::errc::permission_denied);
    EXPECT_TRUE(folder_.Get("f") == new_);
}

TEST_F(FileToolsTest, ReadingGoesOnAfterAShortReadAndReportsEveryError) {
    folder_.Put("f", new_);
    std::string bytes;
    faulty_.Plan(0, Fault::None);
    EXPECT_FALSE(ReadWholeFile(faulty_, path_, bytes));
    const int operations = faulty_.Operations();
    for (int n = 1; n <= operations; ++n) {
        faulty_.Plan(n, Fault::Short);
        EXPECT_FALSE(ReadWholeFile(faulty_, path_, bytes)) << n;
        EXPECT_TRUE(bytes == new_) << n;
        faulty_.Plan(n, Fault::Fail);
        EXPECT_EQ(ReadWholeFile(faulty_, path_, bytes), std::errc::no_space_on_device) << n;
        EXPECT_EQ(bytes, "") << n;
    }
    EXPECT_EQ(ReadWholeFile(files_, folder_.Path(), bytes), std::errc::is_a_directory);
    EXPECT_EQ(ReadWholeFile(files_, "/dev/zero", bytes), std::errc::file_too_large);
}

TEST_F(FileToolsTest, AFileAboveTheLimitIsNeitherReadNorMade) {
    folder_.Put("f", old_);
    fs::resize_file(path_, LargestFile + 1);
    faulty_.Plan(0, Fault::None);
    ProfileFile tooLarge(faulty_, path_);
    tooLarge.Text().Write("s", "k", "v");
    EXPECT_EQ(tooLarge.Save(), std::errc::file_too_large);
    EXPECT_EQ(faulty_.Operations(), 0);
    EXPECT_EQ(fs::file_size(path_), LargestFile + 1);
    fs::resize_file(path_, LargestFile);
    ProfileFile full(files_, path_);
    EXPECT_FALSE(full.LoadError());
    full.Text().Write("s", "k", "v");
    EXPECT_EQ(full.Save(), std::errc::file_too_large);
    EXPECT_EQ(fs::file_size(path_), LargestFile);
}

TEST_F(FileToolsTest, AProfileThatIsNotThereIsMadeByAWriteOnly) {
    ProfileFile profile(files_, path_);
    EXPECT_FALSE(profile.LoadError());
    profile.Text().DeleteKey("s", "k");
    EXPECT_FALSE(profile.Save());
    EXPECT_EQ(folder_.Names(), Names());
    profile.Text().Write("s", "k", "v");
    EXPECT_FALSE(profile.Save());
    EXPECT_EQ(folder_.Get("f"), "[s]\r\nk=v\r\n");
}

TEST_F(FileToolsTest, AppendingMakesTheFileAndContinuesAShortWrite) {
    EXPECT_FALSE(AppendToFile(files_, path_, "one,"));
    faulty_.Plan(2, Fault::Short);
    EXPECT_FALSE(AppendToFile(faulty_, path_, "two"));
    EXPECT_EQ(folder_.Get("f"), "one,two");
    faulty_.Plan(3, Fault::Fail);
    EXPECT_EQ(AppendToFile(faulty_, path_, "!"), std::errc::no_space_on_device);
}

}  // namespace kelvra::platform
