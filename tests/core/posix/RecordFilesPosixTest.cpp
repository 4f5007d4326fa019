// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordFiles.h"

#include "tests/core/RecordFilesFixture.h"
#include "tests/support/OrdinaryUser.h"

#include <string>
#include <vector>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

using Names = std::vector<std::string>;

using RecordFilesOnPosix = RecordFiles;

TEST_F(RecordFilesOnPosix, WhatIsOutOfReachIsNotTakenForMissing) {
    PutContents(settingsFile, "x");
    PutContents(soilFile, "x");
    const testing::AsOrdinaryUser user(folder.Path());
    fs::permissions(folder.Path(), fs::perms::none);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [this] { (void)ReadUserSettings(folder.Path()); });
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [this] { (void)ReadSoilTable(folder.Path()); });
}

TEST_F(RecordFilesOnPosix, PassesTheFailureToWriteSettings) {
    PutContents(settingsFile, std::string(352, 'x'));
    const testing::AsOrdinaryUser user(folder.Path());
    fs::permissions(settingsFile, fs::perms::owner_read);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [] { LoadUserSettings(); });
    fs::permissions(settingsFile, fs::perms::none);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [] { LoadUserSettings(); });
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [] { LoadSoilTable(); });
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(folder.Names(), Names{"user.usr"});
    fs::permissions(settingsFile, fs::perms::owner_all);
    EXPECT_EQ(Contents(settingsFile), std::string(352, 'x'));
}

TEST_F(RecordFilesOnPosix, ReachesTheSettingsFilesBehindAForwardSlash) {
    // An existing "/" stays, and a backslash in a folder's name is no separator.
    const fs::path odd = folder / "odd\\name";
    fs::create_directory(odd);
    Program().programDirectory = odd.string() + "/";
    LoadUserSettings();
    LoadSoilTable();
    EXPECT_TRUE(fs::is_regular_file(odd / "user.usr"));
    EXPECT_TRUE(fs::is_regular_file(odd / "soil.dat"));
    EXPECT_EQ(folder.Names(), Names{"odd\\name"});
}

template <class T>
class TestFilesOnPosix : public ::testing::Test {
protected:
    TemporaryFolder folder;
    fs::path file = folder / "Some test.cpd";
};

using Kinds = ::testing::Types<CenterPivotTest, SolidSetTest>;
TYPED_TEST_SUITE(TestFilesOnPosix, Kinds);

TYPED_TEST(TestFilesOnPosix, KeepTheTailOfALinkedFile) {
    WriteTest(this->folder / "target", TypeParam{});
    const std::string record = Contents(this->folder / "target");
    PutContents(this->folder / "target", std::string(record.size(), 'x') + "behind");
    fs::create_symlink("target", this->file);
    WriteTest(this->file, TypeParam{});
    EXPECT_TRUE(fs::is_symlink(this->file));
    EXPECT_EQ(Contents(this->folder / "target"), record + "behind");
}

TYPED_TEST(TestFilesOnPosix, MayBeClosedToTheUser) {
    PutContents(this->file, "old");
    const testing::AsOrdinaryUser user(this->folder.Path());
    fs::permissions(this->file, fs::perms::owner_read);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [&] { WriteTest(this->file, TypeParam{}); });
    EXPECT_EQ(Contents(this->file), "old");
    EXPECT_EQ(this->folder.Names(), Names{"Some test.cpd"});
    fs::permissions(this->file, fs::perms::none);
    ExpectRunTimeError(ErrorNumber::PermissionDenied, [&] { (void)ReadTest<TypeParam>(this->file); });
}

} // namespace

} // namespace orvel
