// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"

#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

TEST(FileIdentityTest, IsTheSameUnderEveryNameOfAFile) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    fs::create_hard_link(folder / "file", folder / "twin");
    const auto identity = IdentityOf(folder / "file");
    ASSERT_TRUE(identity);
    EXPECT_EQ(IdentityOf(folder / "twin"), identity);
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

TEST(FileIdentityTest, NothingHasNone) {
    const TemporaryFolder folder;
    EXPECT_FALSE(IdentityOf(folder / "missing"));
    EXPECT_FALSE(IdentityOf(""));
}

} // namespace

} // namespace orvel
