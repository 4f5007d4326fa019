// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/frmUserData.h"

#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::Lines;

constexpr const char* kQuestion =
    "box [Incomplete Data] Would you like to complete this information? (YesNoCancel)";
constexpr const char* kNameMissing =
    "box [User Settings Error] You need to enter a name.||You Should Check Your Setup Information|"
    "You may also change the default file location.|Please choose 'User Settings' on the 'Window' menu. (Ok)";

class FrmUserData : public testing::FormTest<frmUserData> {
protected:
    FrmUserData() {
        Program().programDirectory = folder.Path();
        UserSettings& settings = Program().userSettings;
        settings = testing::CompleteUserSettings();
        settings.Name = " Ida Lund";
        settings.DefaultDirectory = "/tests";
        SaveUserSettings(settings);
        before = Contents(folder / "user.usr");
        window.Form_Load();
    }

    [[nodiscard]] std::string File() const { return Contents(folder / "user.usr"); }

    testing::TemporaryFolder folder;
    std::string before;
};

TEST_F(FrmUserData, LoadingShowsTheFieldsWithoutTheirTrailingBlanks) {
    const std::map<std::string, std::string, std::less<>> expected = {
        {"txtBoxName", " Ida Lund"},          {"txtBoxCompany", "County Extension Service"},
        {"txtBoxAddress", "4 Court Square"},  {"txtBoxCityStateZip", "Alder Creek, XX 00000"},
        {"txtBoxPhone", "555-0100"},          {"txtBoxEMail", "ida@extension.example"},
        {"txtBoxDefaultDirectory", "/tests"},
    };
    EXPECT_EQ(form.texts, expected);
}

TEST_F(FrmUserData, SaveWritesTheRecordAndCloses) {
    Type("txtBoxName", "Ole");
    Type("txtBoxDefaultDirectory", "/" + std::string(60, 'd'));
    window.cmdBtnSave_Click();
    EXPECT_EQ(Said(), (Lines{"unload"}));
    const std::string file = File();
    ASSERT_EQ(file.size(), 352U);
    EXPECT_EQ(file.substr(0, 50), "Ole" + std::string(47, ' '));
    EXPECT_EQ(file.substr(300, 50), "/" + std::string(49, 'd')) << "a longer directory is cut";
    EXPECT_EQ(file.substr(350), "\xFF\xFF") << "complete";
}

TEST_F(FrmUserData, SaveOfIncompleteSettingsAsksAndWritesOnNoOnly) {
    Type("txtBoxName", "  ");
    for (const Reply reply : {Reply::Yes, Reply::Cancel}) {
        surroundings.replies = {reply};
        window.cmdBtnSave_Click();
        EXPECT_EQ(Said(), (Lines{kNameMissing, kQuestion}));
        EXPECT_EQ(File(), before);
        EXPECT_TRUE(Program().userSettings.Name.IsBlank()) << "the record has what was typed";
        EXPECT_FALSE(Program().userSettings.SettingsComplete.IsSet());
    }
    surroundings.replies = {Reply::No};
    window.cmdBtnSave_Click();
    EXPECT_EQ(Said(), (Lines{kNameMissing, kQuestion, "unload"}));
    EXPECT_EQ(File().substr(0, 50), std::string(50, ' '));
    EXPECT_EQ(File().substr(350), std::string(2, '\0'));
}

TEST_F(FrmUserData, CancelKeepsWhatWasTypedInTheProgramAndWritesNothing) {
    Type("txtBoxName", "Ole");
    window.cmdBtnCancel_Click();
    EXPECT_EQ(Said(), (Lines{"unload"}));
    EXPECT_EQ(Program().userSettings.Name.Trimmed(), "Ole");
    EXPECT_EQ(File(), before);
}

TEST_F(FrmUserData, CancelOfIncompleteSettingsAsksAndClosesOnNoOnly) {
    Type("txtBoxName", "");
    for (const Reply reply : {Reply::Yes, Reply::Cancel}) {
        surroundings.replies = {reply};
        window.cmdBtnCancel_Click();
        EXPECT_EQ(Said(), (Lines{kNameMissing, kQuestion}));
    }
    surroundings.replies = {Reply::No};
    window.cmdBtnCancel_Click();
    EXPECT_EQ(Said(), (Lines{kNameMissing, kQuestion, "unload"}));
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(Program().userSettings.SettingsComplete.IsSet()) << "only Save tells";
}

TEST_F(FrmUserData, BrowseTakesAFolderThatExists) {
    const char* browser = "browse [Please Select Default Directory For Files]";
    surroundings.paths = {folder.Path(), {}, folder / "gone"};
    for (int i = 0; i < 3; ++i) {
        window.cmdBtnBrowse_Click();
        EXPECT_EQ(Said(), (Lines{browser}));
        EXPECT_EQ(form.texts.at("txtBoxDefaultDirectory"), folder.Path().string()) << "without a separator";
    }
    EXPECT_EQ(Program().userSettings.DefaultDirectory.Trimmed(), "/tests") << "not before Save or Cancel";
}

TEST_F(FrmUserData, AFailureToWriteIsNotTrapped) {
    Program().programDirectory = folder / "gone";
    ExpectRunTimeError(ErrorNumber::PathNotFound, [this] { window.cmdBtnSave_Click(); });
    EXPECT_EQ(Said(), Lines{});
}

} // namespace

} // namespace orvel
