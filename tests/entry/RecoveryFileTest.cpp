// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/RecoveryFile.h"

#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::AsOrdinaryUser;
using testing::Contents;
using testing::PutContents;
using testing::TemporaryFolder;
using Names = std::vector<std::string>;

class RecoveryFileTest : public testing::LogicTest {
protected:
    // The names in the folder for files that can't be beside their tests.
    [[nodiscard]] Names InUserFolder() const {
        Names names;
        if (fs::exists(user / "data")) {
            for (const auto& entry : fs::directory_iterator(user / "data" / "recovery")) {
                names.push_back(entry.path().filename().native());
            }
        }
        return names;
    }

    static mode_t Permissions(const fs::path& path) {
        struct stat found {};

        EXPECT_EQ(::stat(path.c_str(), &found), 0);
        return found.st_mode & 07777;
    }

    TemporaryFolder folder;
    TemporaryFolder user;
    RecoveryFile file = [this] {
        Program().userDataFolder = user / "data";
        return RecoveryFile(folder / "test.cpd");
    }();
};

TEST_F(RecoveryFileTest, LiesBesideItsTest) {
    EXPECT_EQ(file.Read(), Names{});
    file.Write("typed");
    EXPECT_EQ(folder.Names(), (Names{"test.cpd.recovery"}));
    EXPECT_EQ(Contents(folder / "test.cpd.recovery"), "typed");
    EXPECT_EQ(file.Read(), (Names{"typed"}));
    file.Write("more");
    EXPECT_EQ(file.Read(), (Names{"more"}));
    file.Remove();
    EXPECT_EQ(folder.Names(), Names{});
    EXPECT_EQ(InUserFolder(), Names{});
}

TEST_F(RecoveryFileTest, IsTheUsersAloneWhateverWasThere) {
    const mode_t mask = ::umask(0);
    PutContents(folder / "test.cpd.recovery", "for everybody");
    fs::permissions(folder / "test.cpd.recovery", fs::perms::all);
    file.Write("typed");
    ::umask(mask);
    EXPECT_EQ(Permissions(folder / "test.cpd.recovery"), 0600);
    EXPECT_EQ(Contents(folder / "test.cpd.recovery"), "typed");
}

TEST_F(RecoveryFileTest, IsFoundByWhateverWayTheTestWasOpened) {
    fs::create_directory(folder / "there");
    PutContents(folder / "there" / "test.cpd", "a test");
    fs::create_symlink(folder / "there" / "test.cpd", folder / "link.cpd");
    RecoveryFile(folder / "link.cpd").Write("typed");
    EXPECT_EQ(RecoveryFile(folder / "there" / "." / "test.cpd").Read(), (Names{"typed"}));
    EXPECT_TRUE(fs::exists(folder / "there" / "test.cpd.recovery"));
    EXPECT_EQ(folder.Names(), (Names{"link.cpd", "there"}));
}

TEST_F(RecoveryFileTest, FollowsNoLinkAndOpensNoPipe) {
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

TEST_F(RecoveryFileTest, GoesToTheUsersFolderWhereItCannotLieBeside) {
    fs::create_directory(folder / "test.cpd.recovery"); // in its way
    file.Write("typed");
    const Names names = InUserFolder();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(names[0].starts_with("test.cpd-") && names[0].ends_with(".recovery")) << names[0];
    EXPECT_EQ(names[0].size(), std::string("test.cpd-0123456789abcdef.recovery").size());
    EXPECT_EQ(Permissions(user / "data" / "recovery" / names[0]), 0600);
    EXPECT_EQ(file.Read(), (Names{"typed"}));
    EXPECT_EQ(folder.Names(), (Names{"test.cpd.recovery"})) << "no litter";

    fs::create_directory(folder / "other");
    fs::create_directory(folder / "other" / "test.cpd.recovery");
    const RecoveryFile other(folder / "other" / "test.cpd");
    EXPECT_EQ(other.Read(), Names{}) << "another test of the same name";
    other.Write("of the other");
    EXPECT_EQ(InUserFolder().size(), 2U);
    EXPECT_EQ(file.Read(), (Names{"typed"}));
}

TEST_F(RecoveryFileTest, GoesToTheUsersFolderWhereTheFolderIsReadOnly) {
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

TEST_F(RecoveryFileTest, ComesBackToItsTestWhenItCan) {
    fs::create_directory(folder / "test.cpd.recovery");
    file.Write("old");
    fs::remove(folder / "test.cpd.recovery");
    file.Write("new");
    EXPECT_EQ(file.Read(), (Names{"new"}));
    EXPECT_EQ(InUserFolder(), Names{});
}

TEST_F(RecoveryFileTest, BothPlacesAreReadAndRemoved) {
    fs::create_directory(folder / "test.cpd.recovery");
    file.Write("there");
    fs::remove(folder / "test.cpd.recovery");
    PutContents(folder / "test.cpd.recovery", "here");
    EXPECT_EQ(file.Read(), (Names{"here", "there"}));
    file.SetAside();
    EXPECT_EQ(file.Read(), Names{});
    EXPECT_EQ(InUserFolder().size(), 1U);
    file.RemoveKept();
    EXPECT_EQ(folder.Names(), Names{});
    EXPECT_EQ(InUserFolder(), Names{});
}

TEST_F(RecoveryFileTest, ALongNameGoesToTheUsersFolder) {
    const RecoveryFile longest(folder / (std::string(251, 'n') + ".cpd"));
    longest.Write("typed");
    EXPECT_EQ(longest.Read(), (Names{"typed"}));
    EXPECT_EQ(folder.Names(), Names{});
    EXPECT_EQ(InUserFolder().at(0).size(), 100 + std::string("-0123456789abcdef.recovery").size());
}

TEST_F(RecoveryFileTest, ANameThatLeavesNoRoomForKeptOnesGoesToTheUsersFolder) {
    for (const std::size_t length : {240U, 243U, 244U, 245U, 246U}) {
        const RecoveryFile ofLong(folder / std::string(length, 'n'));
        ofLong.Write("first");
        ofLong.SetAside();
        EXPECT_EQ(ofLong.Read(), Names{}) << length;
        ofLong.Write("second");
        EXPECT_EQ(folder.Names().size() + InUserFolder().size(), 2U) << length;
        ofLong.Remove();
        ofLong.RemoveKept();
        EXPECT_EQ(folder.Names().size() + InUserFolder().size(), 0U) << length;
    }
}

TEST_F(RecoveryFileTest, WhatIsSetAsideStaysUntilItIsRemoved) {
    for (const char* text : {"first", "second", "third"}) {
        file.Write(text);
        file.SetAside();
    }
    EXPECT_EQ(file.Read(), Names{});
    EXPECT_EQ(folder.Names(), (Names{"test.cpd.recovery-1", "test.cpd.recovery-2", "test.cpd.recovery-3"}));
    EXPECT_EQ(Contents(folder / "test.cpd.recovery-1"), "first");
    EXPECT_EQ(Contents(folder / "test.cpd.recovery-3"), "third");
    file.Write("fourth");
    file.Remove();
    EXPECT_EQ(folder.Names().size(), 3U);
    file.RemoveKept();
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_F(RecoveryFileTest, NothingOfTheUsersIsOverwrittenWhenSetAside) {
    fs::create_symlink("nowhere", folder / "test.cpd.recovery-1");
    file.Write("typed");
    file.SetAside();
    EXPECT_EQ(folder.Names(), (Names{"test.cpd.recovery-1", "test.cpd.recovery-2"}));
    EXPECT_EQ(Contents(folder / "test.cpd.recovery-2"), "typed");
}

TEST_F(RecoveryFileTest, WhereNoPlaceTakesItIsAnError) {
    fs::create_directory(folder / "test.cpd.recovery");
    PutContents(user / "data", "in the way");
    testing::ExpectRunTimeError(ErrorNumber::PathNotFound, [this] { file.Write("typed"); });
    Program().userDataFolder.clear();
    testing::ExpectRunTimeError(ErrorNumber::PathNotFound,
                                [this] { RecoveryFile(folder / "gone" / "test.cpd").Write("typed"); });
    const RecoveryFile ofNothing{fs::path()};
    testing::ExpectRunTimeError(ErrorNumber::FileNotFound, [&] { ofNothing.Write("typed"); });
    EXPECT_EQ(ofNothing.Read(), Names{});
    ofNothing.Remove();
    ofNothing.SetAside();
    ofNothing.RemoveKept();
}

TEST_F(RecoveryFileTest, OfAHugeFileOnlyTheBeginningIsRead) {
    constexpr std::size_t kMost = std::size_t{64} << 20;
    file.Write("typed");
    fs::resize_file(folder / "test.cpd.recovery", kMost + 1);
    EXPECT_EQ(file.Read().at(0).size(), kMost);
}

TEST_F(RecoveryFileTest, WhatAnotherUserTypesIsLeftAlone) {
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

TEST_F(RecoveryFileTest, ATestThatIsSavedUnderItsNameIsNone) {
    Program().centerPivotFile = folder / "test.cpd.recovery";
    PutContents(folder / "test.cpd.recovery", "a test");
    EXPECT_EQ(file.Read(), Names{});
    file.SetAside();
    file.Remove();
    EXPECT_EQ(Contents(folder / "test.cpd.recovery"), "a test");
}

} // namespace

} // namespace orvel
