// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/RecoveryFile.h"

#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "tests/entry/RecoveryFileFixture.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::PutContents;

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

TEST_F(RecoveryFileTest, IsFoundUnderOtherSpellingsOfThePath) {
    fs::create_directory(folder / "there");
    RecoveryFile(folder / "there" / "test.cpd").Write("typed");
    EXPECT_EQ(RecoveryFile(folder / "there" / "." / "test.cpd").Read(), (Names{"typed"}));
    EXPECT_EQ(RecoveryFile(folder / "there" / ".." / "there" / "test.cpd").Read(), (Names{"typed"}));
}

TEST_F(RecoveryFileTest, GoesToTheUsersFolderWhereItCannotLieBeside) {
    fs::create_directory(folder / "test.cpd.recovery"); // in its way
    file.Write("typed");
    const Names names = InUserFolder();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(names[0].starts_with("test.cpd-") && names[0].ends_with(".recovery")) << names[0];
    EXPECT_EQ(names[0].size(), std::string("test.cpd-0123456789abcdef.recovery").size());
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
