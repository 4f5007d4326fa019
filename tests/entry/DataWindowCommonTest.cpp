// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/DataWindow.h"

#include "tests/entry/DataWindowTest.h"

#include <deque>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <utility>

// What the data windows of both kinds share.
namespace orvel {

namespace {

using testing::Contents;
using testing::DataWindowTest;
using testing::Example;
using testing::ExpectRunTimeError;
using testing::kFileSaveError;
using testing::Lines;

const std::string kCloseBox = "box [Close Window] Close data entry window? (YesNo)";
const std::string kDiscardBox = "box [Close Data Window] Really close without saving data? (YesNoCancel)";
const std::string kSaveBox = "box [Close Window] Save Changes to Client Data? (YesNoCancel)";

// Opens an example that the data checks find no fault with.
template <class Window>
class DataWindowCommon : public DataWindowTest<Window> {
protected:
    using Base = DataWindowTest<Window>;
    using Record = typename Base::Record;

    DataWindowCommon() {
        this->Main() =
            ReadTest<Record>(Example(Base::kVolume == 2 ? "pivot-1978.cpd" : "solid-set-1997.ssd"));
        this->Load();
        this->view.logsCells = false;
    }

    // Puts the replies to the questions that a command asks.
    template <class Command>
    Lines After(Command command, std::deque<Reply> replies) {
        this->surroundings.replies = std::move(replies);
        command();
        return this->Said();
    }

    void Rename(const char* name) { this->view.Put("txtBoxClientName", name); }

    [[nodiscard]] bool IsSaved() const { return std::filesystem::exists(this->File()); }

    // The folder that the file is in is gone, so that nothing can be written there.
    void LoseTheFolder() { Program().*Base::Kind::kFile = this->folder / "gone" / "test"; }
};

using BothKinds = ::testing::Types<frmCenterPivotData, frmSolidSetData>;
TYPED_TEST_SUITE(DataWindowCommon, BothKinds);

TYPED_TEST(DataWindowCommon, OpeningShowsTheFileThenTheListsThenTheFieldsThenTheCells) {
    this->view.logsControls = true;
    this->view.logsCells = true;
    this->window.Form_Load();
    Lines phases;
    for (const std::string& line : this->Said()) {
        std::string phase = line == "text labelFile"           ? line
                            : line.starts_with("list ")        ? "lists"
                            : line.starts_with("check optBtn") ? "layout"
                            : line.starts_with("cell ")        ? "cells"
                                                               : "fields";
        if (phases.empty() || phases.back() != phase) {
            phases.push_back(phase);
        }
    }
    EXPECT_EQ(phases, this->kVolume == 2 ? (Lines{"text labelFile", "lists", "fields", "cells"})
                                         : (Lines{"text labelFile", "lists", "fields", "layout", "cells"}));
}

TYPED_TEST(DataWindowCommon, TheLabelNamesTheFileWithoutItsFolder) {
    EXPECT_EQ(this->view.Text("labelFile"), TestFixture::Kind::kFileName);
}

TYPED_TEST(DataWindowCommon, OpeningTakesTheRecordAnew) {
    this->Rename("Nobody");
    this->PutCell(1, TestFixture::kVolume, "99");
    this->Main().ClientName = "  Somebody ";
    this->Main().Gauges[1].Volume = 5.0F;
    this->Load();
    this->view.logsCells = false;
    EXPECT_EQ(this->view.Text("txtBoxClientName"), "Somebody");
    EXPECT_EQ(this->Volume(1), TestFixture::kVolume == 2 ? "05" : "5");
}

TYPED_TEST(DataWindowCommon, SaveStoresIntoTheProgramsRecordAndTheFile) {
    this->Rename("Nobody");
    EXPECT_NE(this->Main().ClientName.Trimmed(), "Nobody");
    this->window.mnuFileSave_Click();
    EXPECT_EQ(this->Said(), Lines{});
    EXPECT_EQ(this->Main().ClientName.Trimmed(), "Nobody");
    EXPECT_EQ(this->Saved().ClientName.Trimmed(), "Nobody");
    this->Rename("Somebody");
    this->window.mnuFileSave_Click();
    EXPECT_EQ(this->Saved().ClientName.Trimmed(), "Somebody") << "as often as the user likes";
    EXPECT_EQ(Contents(this->File()).size(), sizeof(typename TestFixture::Record));
    EXPECT_EQ(this->folder.Names(), (Lines{TestFixture::Kind::kFileName}));
}

TYPED_TEST(DataWindowCommon, SaveDoesNotCommitAnOpenEditor) {
    this->Edit(2, "999");
    const std::string before = this->Volume(2);
    this->window.mnuFileSave_Click();
    EXPECT_EQ(this->Said(), Lines{});
    EXPECT_TRUE(this->Grid().IsEditing());
    EXPECT_EQ(this->Saved().Gauges[2].Volume, std::stof(before));
    EXPECT_NE(before, "999");
}

TYPED_TEST(DataWindowCommon, AClickOnTheBackgroundCommitsTheEdit) {
    this->window.Form_Click();
    EXPECT_EQ(this->Said(), Lines{});
    this->Edit(2, "8");
    this->window.Form_Click();
    EXPECT_EQ(this->Said(), (Lines{"hide editor"}));
    EXPECT_EQ(this->Volume(2), TestFixture::kVolume == 2 ? "08" : "8");
}

TYPED_TEST(DataWindowCommon, SaveAndExitSavesAndThenAsks) {
    this->Rename("Nobody");
    const auto command = [this] { this->window.cmdBtnExitAndSave_Click(); };
    EXPECT_EQ(this->After(command, {Reply::No}), (Lines{kCloseBox}));
    EXPECT_EQ(this->Saved().ClientName.Trimmed(), "Nobody");
    EXPECT_EQ(this->After(command, {Reply::Cancel}), (Lines{kCloseBox}));
    EXPECT_EQ(this->After(command, {Reply::None}), (Lines{kCloseBox}));
    EXPECT_EQ(this->After(command, {Reply::Yes}), (Lines{kCloseBox, "unload"}));
}

TYPED_TEST(DataWindowCommon, CloseWithoutSavingAsksAndStoresNothing) {
    const auto before = this->Main();
    this->Rename("Nobody");
    for (const bool isMenu : {false, true}) {
        const auto command = [this, isMenu] {
            if (isMenu) {
                this->window.mnuFileDiscard_Click();
            } else {
                this->window.cmdBtnCloseWithoutSaving_Click();
            }
        };
        EXPECT_EQ(this->After(command, {Reply::No}), (Lines{kDiscardBox}));
        EXPECT_EQ(this->After(command, {Reply::Cancel}), (Lines{kDiscardBox}));
        EXPECT_EQ(this->After(command, {Reply::Yes}), (Lines{kDiscardBox, "unload"}));
    }
    this->ExpectSameRecord(this->Main(), before);
    EXPECT_FALSE(this->IsSaved());
}

TYPED_TEST(DataWindowCommon, CloseWindowAsksWhetherToSave) {
    this->Rename("Nobody");
    const auto command = [this] { this->window.mnuFileClose_Click(); };
    EXPECT_EQ(this->After(command, {Reply::Cancel}), (Lines{kSaveBox}));
    EXPECT_EQ(this->After(command, {Reply::None}), (Lines{kSaveBox}));
    EXPECT_EQ(this->After(command, {Reply::No, Reply::No}), (Lines{kSaveBox, kDiscardBox}));
    EXPECT_EQ(this->After(command, {Reply::No, Reply::Cancel}), (Lines{kSaveBox, kDiscardBox}));
    EXPECT_EQ(this->After(command, {Reply::No, Reply::Yes}), (Lines{kSaveBox, kDiscardBox, "unload"}));
    EXPECT_FALSE(this->IsSaved());
    EXPECT_EQ(this->After(command, {Reply::Yes, Reply::No}), (Lines{kSaveBox, kCloseBox}));
    EXPECT_EQ(this->Saved().ClientName.Trimmed(), "Nobody");
    EXPECT_EQ(this->After(command, {Reply::Yes, Reply::Yes}), (Lines{kSaveBox, kCloseBox, "unload"}));
}

TYPED_TEST(DataWindowCommon, ASaveThatCannotWriteIsToldAndClosesNothing) {
    this->LoseTheFolder();
    this->Rename("Nobody");
    this->window.mnuFileSave_Click();
    EXPECT_EQ(this->Said(), (Lines{kFileSaveError}));
    EXPECT_EQ(this->After([this] { this->window.cmdBtnExitAndSave_Click(); }, {}), (Lines{kFileSaveError}));
    EXPECT_EQ(this->After([this] { this->window.mnuFileClose_Click(); }, {Reply::Yes}),
              (Lines{kSaveBox, kFileSaveError}));
    EXPECT_EQ(this->view.Text("txtBoxClientName"), "Nobody");
    EXPECT_EQ(this->Main().ClientName.Trimmed(), "Nobody");
}

TYPED_TEST(DataWindowCommon, ACellThatHoldsNoNumberEndsTheSave) {
    const auto before = this->Main();
    const int column = TestFixture::kVolume;
    this->Rename("Nobody");
    this->PutCell(5, column, ".");
    this->view.logsCells = false;
    const auto save = [this] { this->window.mnuFileSave_Click(); };
    ExpectRunTimeError(ErrorNumber::TypeMismatch, save);
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { this->window.cmdBtnExitAndSave_Click(); });
    EXPECT_EQ(this->Main().ClientName.Whole(), before.ClientName.Whole());
    EXPECT_EQ(this->Main().Gauges[4].Volume, before.Gauges[4].Volume);
    EXPECT_FALSE(this->IsSaved());
    this->PutCell(5, column, "1e39");
    ExpectRunTimeError(ErrorNumber::Overflow, save);
    this->PutCell(5, column, "5");
    this->PutCell(5, 1, "x");
    ExpectRunTimeError(ErrorNumber::TypeMismatch, save);
}

TYPED_TEST(DataWindowCommon, EditCommandsAreKeysOfTheFocusedControl) {
    this->window.mnuEditUndo_Click();
    this->window.mnuEditCut_Click();
    this->window.mnuEditCopy_Click();
    this->window.mnueditPaste_Click();
    EXPECT_EQ(this->Said(), (Lines{"Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V"}));
}

TYPED_TEST(DataWindowCommon, HelpShowsTheInstructionsAndTheAboutBox) {
    this->window.mnuHelpInstructions_Click();
    this->window.mnuHelpAbout_Click();
    EXPECT_EQ(this->Said(), (Lines{"view Help", "show frmAbout"}));
}

TYPED_TEST(DataWindowCommon, ANumericBoxTakesDigitsPointsAndBackspaceAndBeepsAtTheRest) {
    const std::string passing = "0123456789.\b";
    int dropped = 0;
    for (int key = 1; key <= 255; ++key) {
        const bool passes = key < 128 && passing.find(static_cast<char>(key)) != std::string::npos;
        EXPECT_EQ(DataWindow::NumberBox_KeyPress(key), passes ? key : 0) << key;
        dropped += passes ? 0 : 1;
    }
    this->beeper.Expect(dropped);
    EXPECT_EQ(dropped, 255 - 12);
}

} // namespace

} // namespace orvel
