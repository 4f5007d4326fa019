// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"

#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

TEST(FileIdentityTest, IsTheSameUnderEveryNameOfAFile) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    fs::create_hard_link(folder / "file", folder / "twin");
    fs::create_symlink("twin", folder / "link");
    const auto identity = IdentityOf(folder / "file");
    ASSERT_TRUE(identity);
    EXPECT_EQ(IdentityOf(folder / "twin"), identity);
    EXPECT_EQ(IdentityOf(folder / "link"), identity);
    EXPECT_EQ(IdentityOf(folder.Path() / "." / "file"), identity);
}

TEST(FileIdentityTest, TellsFilesOfTheSameContentApart) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    PutContents(folder / "copy", "x");
    EXPECT_NE(IdentityOf(folder / "file"), IdentityOf(folder / "copy"));
    EXPECT_NE(IdentityOf(folder / "file"), IdentityOf(folder.Path()));
    EXPECT_TRUE(IdentityOf(folder.Path()));
}

TEST(FileIdentityTest, NothingAndADeviceAndAPipeHaveNone) {
    const TemporaryFolder folder;
    fs::create_symlink("nowhere", folder / "dangling");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const fs::path& path :
         {folder / "missing", folder / "dangling", folder / "pipe", fs::path("/dev/null")}) {
        EXPECT_FALSE(IdentityOf(path)) << path;
    }
}

} // namespace

} // namespace orvel
