// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/posix/TemporaryFile.h"

#include "core/SafeFile.h"
#include "tests/core/TemporaryFilesFixture.h"
#include "tests/support/LogicTest.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestFiles.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

class TemporaryFilesOnPosix : public TemporaryFiles {};

TEST_F(TemporaryFilesOnPosix, SoIsOneOfAFileThatNobodyMayRead) {
    const testing::AsOrdinaryUser user(folder.Path());
    PutContents(folder / ".orvel-save-1", "half of a tes");
    fs::permissions(folder / ".orvel-save-1", fs::perms::owner_write);
    ExpectLeftBySave({});
}

TEST_F(TemporaryFilesOnPosix, EachSaveUnderWayHasOneOfItsOwn) {
    ExpectEachSaveHasOneOfItsOwn<TemporaryFile>(TemporaryFile::kOwnerOnly);
}

TEST_F(TemporaryFilesOnPosix, OneKeepsItsLockUntilItHasItsName) {
    TemporaryFile file(folder.Path(), TemporaryFile::kOwnerOnly);
    ASSERT_TRUE(file.TakeName(folder / "taken"));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(folder.Names(), Names{"taken"});
    TemporaryFile another(folder.Path(), TemporaryFile::kOwnerOnly);
    ASSERT_FALSE(another.TakeName(folder / "none/taken"));
    ExpectLeftBySave({".orvel-save-1", "taken"});
}

TEST_F(TemporaryFilesOnPosix, ALinkAPipeAndALockedFileOfTheNameAreLeftAlone) {
    fs::create_symlink("precious", folder / ".orvel-save-2");
    PutContents(folder / "precious", "x");
    ASSERT_EQ(::mkfifo((folder / ".orvel-save-4").c_str(), 0600), 0);
    PutContents(folder / ".orvel-save-5", "x");
    const Names names = folder.Names();
    const int busy = ::open((folder / ".orvel-save-5").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(busy, LOCK_EX), 0);
    ExpectLeftBySave(names);
    ::close(busy);
}

// Only root can set the scene; to anybody else the file is one of their own.
TEST_F(TemporaryFilesOnPosix, ThatOfAnotherUserIsLeftAlone) {
    PutContents(folder / ".orvel-save-1", "x");
    fs::permissions(folder / ".orvel-save-1", fs::perms::all);
    const testing::AsOrdinaryUser user(folder.Path());
    PutContents(folder / ".orvel-save-2", "x");
    if (::getuid() == 0) {
        ASSERT_EQ(::seteuid(0), 0);
        ASSERT_EQ(::chown((folder / ".orvel-save-1").c_str(), 4241, 4242), 0);
        ASSERT_EQ(::seteuid(testing::kOrdinaryUser), 0);
        ExpectLeftBySave({".orvel-save-1"});
    } else {
        ExpectLeftBySave({});
    }
}

TEST_F(TemporaryFilesOnPosix, NoFileIsSavedUnderTheirNamesBehindALink) {
    fs::create_symlink(".orvel-save-8", folder / "link");
    ExpectRunTimeError(ErrorNumber::PathFileAccessError,
                       [&] { ReplaceFile(folder / "link", "new", Flush::Lazy); });
    EXPECT_EQ(folder.Names(), Names{"link"});
}

} // namespace

} // namespace orvel
