// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"

#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <sys/stat.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

TEST(FileIdentityOnPosix, IsTheSameBehindALink) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    fs::create_symlink("file", folder / "link");
    EXPECT_EQ(IdentityOf(folder / "link"), IdentityOf(folder / "file"));
}

TEST(FileIdentityOnPosix, NothingAndADeviceAndAPipeHaveNone) {
    const TemporaryFolder folder;
    fs::create_symlink("nowhere", folder / "dangling");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const fs::path& path : std::initializer_list<fs::path>{folder / "missing", folder / "dangling",
                                                                folder / "pipe", fs::path("/dev/null")}) {
        EXPECT_FALSE(IdentityOf(path)) << path;
    }
}

} // namespace

} // namespace orvel
