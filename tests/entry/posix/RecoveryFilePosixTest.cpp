// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RunTimeError.h"
#include "tests/entry/RecoveryFileFixture.h"
#include "tests/support/OrdinaryUser.h"

#include <sys/stat.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::AsOrdinaryUser;
using testing::Contents;
using testing::PutContents;

class RecoveryFileOnPosix : public RecoveryFileTest {
protected:
    static mode_t Permissions(const fs::path& path) {
        struct stat found {};

        EXPECT_EQ(::stat(path.c_str(), &found), 0);
        return found.st_mode & 07777;
    }
};

TEST_F(RecoveryFileOnPosix, IsTheUsersAloneInTheUsersFolderToo) {
    fs::create_directory(folder / "test.cpd.recovery"); // in its way
    file.Write("typed");
    const Names names = InUserFolder();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_EQ(Permissions(user / "data" / "recovery" / names[0]), 0600);
}

TEST_F(RecoveryFileOnPosix, IsTheUsersAloneWhateverWasThere) {
    const mode_t mask = ::umask(0);
    PutContents(folder / "test.cpd.recovery", "for everybody");
    fs::permissions(folder / "test.cpd.recovery", fs::perms::all);
    file.Write("typed");
    ::umask(mask);
    EXPECT_EQ(Permissions(folder / "test.cpd.recovery"), 0600);
    EXPECT_EQ(Contents(folder / "test.cpd.recovery"), "typed");
}

TEST_F(RecoveryFileOnPosix, IsFoundByWhateverWayTheTestWasOpened) {
    fs::create_directory(folder / "there");
    PutContents(folder / "there" / "test.cpd", "a test");
    fs::create_symlink(folder / "there" / "test.cpd", folder / "link.cpd");
    RecoveryFile(folder / "link.cpd").Write("typed");
    EXPECT_EQ(RecoveryFile(folder / "there" / "." / "test.cpd").Read(), (Names{"typed"}));
    EXPECT_TRUE(fs::exists(folder / "there" / "test.cpd.recovery"));
    EXPECT_EQ(folder.Names(), (Names{"link.cpd", "there"}));
}

TEST_F(RecoveryFileOnPosix, FollowsNoLinkAndOpensNoPipe) {
    PutContents(folder / "diary", "dear diary");
    fs::create_symlink("diary", folder / "test.cpd.recovery");
    EXPECT_EQ(file.Read(), Names{});
    file.Remove();
    file.SetAside();
    EXPECT_EQ(folder.Names(), (Names{"diary", "test.cpd.recovery"}));
    file.Write("typed");
    EXPECT_EQ(Contents(folder / "diary"), "dear diary");
    EXPECT_EQ(file.Read(), (Names{"typed"}));

    file.Remove();
    ASSERT_EQ(::mkfifo((folder / "test.cpd.recovery").c_str(), 0600), 0);
    EXPECT_EQ(file.Read(), Names{}) << "and does not wait for a writer";
    file.Write("typed");
    EXPECT_EQ(file.Read(), (Names{"typed"}));
}

TEST_F(RecoveryFileOnPosix, GoesToTheUsersFolderWhereTheFolderIsReadOnly) {
    fs::create_directory(folder / "archive");
    fs::permissions(folder / "archive", fs::perms::owner_read | fs::perms::owner_exec);
    fs::permissions(user.Path(), fs::perms::all);
    {
        const AsOrdinaryUser ordinary(folder.Path());
        const RecoveryFile archived(folder / "archive" / "test.cpd");
        archived.Write("typed");
        EXPECT_EQ(InUserFolder().size(), 1U);
        archived.Remove();
        EXPECT_EQ(InUserFolder(), Names{});
    }
    fs::permissions(folder / "archive", fs::perms::owner_all);
}

TEST_F(RecoveryFileOnPosix, NothingOfTheUsersIsOverwrittenWhenSetAside) {
    fs::create_symlink("nowhere", folder / "test.cpd.recovery-1");
    file.Write("typed");
    file.SetAside();
    EXPECT_EQ(folder.Names(), (Names{"test.cpd.recovery-1", "test.cpd.recovery-2"}));
    EXPECT_EQ(Contents(folder / "test.cpd.recovery-2"), "typed");
}

TEST_F(RecoveryFileOnPosix, WhatAnotherUserTypesIsLeftAlone) {
    for (const char* name : {"test.cpd.recovery", "test.cpd.recovery-1"}) {
        PutContents(folder / name, "of somebody else");
        fs::permissions(folder / name, fs::perms::none); // whoever owns it: what counts is that it is closed
    }
    fs::permissions(user.Path(), fs::perms::all);
    const auto others = [this] {
        return folder.Names() == Names{"test.cpd.recovery", "test.cpd.recovery-1"};
    };
    {
        const AsOrdinaryUser ordinary(folder.Path());
        EXPECT_EQ(file.Read(), Names{});
        file.SetAside();
        EXPECT_TRUE(others());
        file.Write("typed");
        EXPECT_EQ(InUserFolder().size(), 1U);
        EXPECT_EQ(file.Read(), (Names{"typed"}));
        file.Remove();
        EXPECT_EQ(InUserFolder(), Names{});
        PutContents(folder / "test.cpd.recovery-2", "kept");
        file.RemoveKept();
        EXPECT_TRUE(others()) << "only the user's own one goes";
        Program().userDataFolder.clear();
        try {
            RecoveryFile(folder / "test.cpd").Write("typed");
            ADD_FAILURE() << "it has no place";
        } catch (const FileError& error) {
            EXPECT_STREQ(error.what(), "cannot replace another user's file: Permission denied");
        }
    }
    fs::permissions(folder / "test.cpd.recovery", fs::perms::owner_read);
    EXPECT_EQ(Contents(folder / "test.cpd.recovery"), "of somebody else");
}

} // namespace

} // namespace orvel
