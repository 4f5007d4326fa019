// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/UserSettingsCheck.h"

#include "core/ProgramState.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::Lines;

class UserSettingsCheck : public testing::WindowTest {
protected:
    UserSettingsCheck() { Program().userSettings = testing::CompleteUserSettings(); }
};

TEST_F(UserSettingsCheck, SaysNothingWhenNothingIsMissing) {
    EXPECT_TRUE(CheckUserSettings());
    EXPECT_EQ(surroundings.Said(), Lines{}) << "the default directory is not asked for";
}

TEST_F(UserSettingsCheck, OnlyReads) {
    Program().userSettings.Name = "  Ida";
    EXPECT_TRUE(CheckUserSettings());
    EXPECT_EQ(Program().userSettings.Name.Whole().substr(0, 5), "  Ida");
}

TEST_F(UserSettingsCheck, NamesEachBlankField) {
    struct Case {
        FixedText<50> UserSettings::*field;
        const char* complaint;
    };
    for (const Case& each : {Case{&UserSettings::Name, "You need to enter a name."},
                             {&UserSettings::Address, "You need to enter an address."},
                             {&UserSettings::CityStateZip, "You need to enter a City, State and Zip."},
                             {&UserSettings::Company, "You need to enter a company or title."},
                             {&UserSettings::EMail, "You need to enter an e-mail address."},
                             {&UserSettings::Phone, "You need to enter a telephone number."}}) {
        Program().userSettings.*each.field = "   ";
        EXPECT_FALSE(CheckUserSettings());
        EXPECT_EQ(surroundings.Said(), (Lines{std::string("box [User Settings Error] ") + each.complaint +
                                              "||You Should Check Your Setup Information|"
                                              "You may also change the default file location.|"
                                              "Please choose 'User Settings' on the 'Window' menu. (Ok)"}));
        Program().userSettings.*each.field = "filled in";
    }
}

TEST_F(UserSettingsCheck, TheDefaultFolderIsTheDirectoryIfThereIsOne) {
    const testing::TemporaryFolder folder;
    EXPECT_EQ(DefaultFolder(), "");
    Program().userSettings.DefaultDirectory = " " + folder.Path().string();
    EXPECT_EQ(DefaultFolder(), folder.Path());
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Trimmed(), folder.Path().string())
        << "trimmed in the record";
    Program().userSettings.DefaultDirectory = (folder / "none").string();
    EXPECT_EQ(DefaultFolder(), "");
    testing::PutContents(folder / "file", "");
    Program().userSettings.DefaultDirectory = (folder / "file").string();
    EXPECT_EQ(DefaultFolder(), "");
}

TEST_F(UserSettingsCheck, TheDefaultFolderMayHaveAnyNameOfTheCodePage) {
    const testing::TemporaryFolder folder;
    std::filesystem::create_directory(folder / "\u00E9");
    Program().userSettings.DefaultDirectory = folder.Path().string() + "/\xE9";
    EXPECT_EQ(DefaultFolder(), folder / "\u00E9");
}

} // namespace

} // namespace orvel
