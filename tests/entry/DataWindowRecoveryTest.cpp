// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/DataWindow.h"
#include "tests/entry/DataWindowTest.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>

// What is typed into a data window outlives the program.
namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::DataWindowTest;
using testing::ExpectRunTimeError;
using testing::kFileSaveError;
using testing::Lines;
using testing::PutContents;

std::string Question(const std::string& written) {
    return "box [Restore Entries] What was typed into this test until " + written +
           " was not saved.|Would you like to restore it? (YesNo)";
}

const std::string kQuestion = Question("2026-07-04 09:05:03");
const std::string kDamaged = "box [Restore Entries] The recovery file of this test can't be read. It is kept "
                             "under another name until the next save. (Ok)";

template <class Window>
class DataWindowRecovery : public DataWindowTest<Window> {
protected:
    using Base = DataWindowTest<Window>;

    DataWindowRecovery() {
        Program().userDataFolder = user.Path();
        // One that Save finds no fault with.
        this->Main() = ReadTest<typename Base::Record>(
            testing::Example(Base::kVolume == 2 ? "pivot-1978.cpd" : "solid-set-1997.ssd"));
        this->Load();
        this->view.logsCells = false;
    }

    [[nodiscard]] static std::string RecoveryName() {
        return std::string(Base::Kind::kFileName) + ".recovery";
    }

    // The files beside the test.
    [[nodiscard]] Lines Recovery() const {
        Lines names = this->folder.Names();
        std::erase(names, Base::Kind::kFileName);
        return names;
    }

    void Type(const char* control, const std::string& text) {
        this->view.Put(control, text);
        this->window.EntryMade();
    }

    // What the view has posted comes.
    void Repaint() {
        EXPECT_EQ(std::exchange(this->view.postedKeeps, 0), 1);
        this->window.KeepEntries();
    }

    // The program is gone; the next run opens the window of the same test.
    void OpenAgain(std::optional<Reply> reply) {
        for (const auto& [control, text] : this->view.Texts()) {
            this->view.Put(control, "");
        }
        this->view.typedTexts.clear();
        if (reply) {
            this->surroundings.replies = {*reply};
        }
        this->view.logsCells = false;
        next.emplace(this->view, this->surroundings);
        this->view.onChange = [this](std::string_view control) { next->TextBox_Change(control); };
        next->Form_Load();
    }

    testing::TemporaryFolder user;
    std::optional<Window> next;
};

using BothKinds = ::testing::Types<frmCenterPivotData, frmSolidSetData>;
TYPED_TEST_SUITE(DataWindowRecovery, BothKinds);

TYPED_TEST(DataWindowRecovery, AnUntouchedWindowWritesNothing) {
    EXPECT_EQ(this->view.postedKeeps, 0);
    this->window.EntryMade();
    this->Repaint();
    KeepOpenEntries();
    EXPECT_EQ(this->folder.Names(), Lines{});
}

TYPED_TEST(DataWindowRecovery, AnEntryIsWrittenAfterTheRepaintOfWhoeverFinishedIt) {
    this->view.Put("txtBoxFieldName", "North forty");
    EXPECT_EQ(this->view.postedKeeps, 0) << "still under the hands";
    this->window.EntryMade();
    this->window.EntryMade();
    EXPECT_EQ(this->folder.Names(), Lines{});
    this->Repaint();
    EXPECT_EQ(this->folder.Names(), (Lines{this->RecoveryName()}));
    EXPECT_NE(Contents(this->folder / this->RecoveryName()).find("North forty"), std::string::npos);
}

TYPED_TEST(DataWindowRecovery, ACommittedCellIsAnEntry) {
    this->Edit(2, "7");
    EXPECT_EQ(this->view.postedKeeps, 0);
    this->window.Grid().CommitEdit();
    (void)this->Said();
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->next->Grid().Cell(2, TestFixture::kVolume), TestFixture::Kind::kSeven);
    EXPECT_EQ(this->next->Grid().Cell(1, TestFixture::kVolume), this->Volume(1));
}

TYPED_TEST(DataWindowRecovery, CellsThatChangeTogetherAreOneEntry) {
    this->NumberCells(TestFixture::kVolume, 100);
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->next->Grid().Cell(1, TestFixture::kVolume), "101");
    EXPECT_EQ(this->next->Grid().Cell(300, TestFixture::kVolume), "400");
}

TYPED_TEST(DataWindowRecovery, WhatIsKeptAlreadyIsNotWrittenAgain) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    const std::string before = Contents(this->folder / this->RecoveryName());
    this->clock.now.second = 4;
    this->window.EntryMade();
    this->Repaint();
    EXPECT_EQ(Contents(this->folder / this->RecoveryName()), before);
}

TYPED_TEST(DataWindowRecovery, NothingIsLeftOfWhatIsBackAsItWas) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->Type("txtBoxCrops", std::string{this->Main().Crops.Trimmed()});
    this->Repaint();
    EXPECT_EQ(this->Recovery(), Lines{}) << "as it was opened";
    this->Type("txtBoxCrops", "Corn");
    this->Save();
    this->Type("txtBoxCrops", "Cotton");
    this->Edit(9, "5");
    this->view.postedKeeps = 0;
    this->window.KeepEntries();
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
    this->window.Grid().txtEdit_KeyDown(27);
    this->Type("txtBoxCrops", "Corn");
    this->view.postedKeeps = 0;
    this->window.KeepEntries();
    EXPECT_EQ(this->Recovery(), Lines{}) << "as it was saved";
    (void)this->Said();
    this->Type("txtBoxCrops", "Cotton");
    this->Repaint();
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
}

TYPED_TEST(DataWindowRecovery, YesBringsEverythingBackAlsoWhatNoRecordCouldHold) {
    std::map<std::string, std::string> typed;
    for (const auto& [control, text] : this->view.Texts()) {
        if (control != "labelFile") {
            typed[control] = " " + control.substr(6, 5) + " \u00B0\u2603 ";
            this->view.SetTypedText(control, typed[control]);
        }
    }
    typed["txtBoxGuageDiameter"] = std::string(1000, '.');
    this->view.SetTypedText("txtBoxGuageDiameter", typed["txtBoxGuageDiameter"]);
    std::map<std::string, bool> checked;
    for (auto& [control, isChecked] : this->view.checks) {
        isChecked = checked[control] = checked.size() % 2 == 0;
    }
    EXPECT_EQ(checked.size(), 3U);
    this->PutCell(1, TestFixture::kVolume, ".");
    this->PutCell(300, 1, std::string(100, '9'));
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    for (const auto& [control, text] : typed) {
        EXPECT_EQ(this->view.TypedText(control), text) << control;
    }
    for (const auto& [control, isChecked] : checked) {
        EXPECT_EQ(this->view.checks.at(control), isChecked) << control;
    }
    EXPECT_EQ(this->next->Grid().Cell(1, TestFixture::kVolume), ".");
    EXPECT_EQ(this->next->Grid().Cell(300, 1), std::string(100, '9'));
    EXPECT_EQ(this->next->Grid().Cell(300, TestFixture::kVolume), "");
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()})) << "until it is saved";
}

TYPED_TEST(DataWindowRecovery, AGreyedBoxIsLeftAlone) {
    this->view.checks.at("chkBoxObservedLeaks") = std::nullopt;
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->view.checks.at("chkBoxObservedLeaks"), this->Main().ObservedLeaks.IsSet());
}

TYPED_TEST(DataWindowRecovery, WhatIsRestoredIsNotOfferedUnchangedForever) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    this->SaidButCells([this] { this->next->mnuFileSave_Click(); });
    EXPECT_EQ(this->folder.Names(), (Lines{TestFixture::Kind::kFileName}));
    EXPECT_EQ(this->Saved().Crops.Trimmed(), "Corn");
    this->OpenAgain({});
    EXPECT_EQ(this->Said(), Lines{});
}

TYPED_TEST(DataWindowRecovery, NothingIsLeftOfWhatIsRestoredAndTakenBack) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    this->view.SetTypedText("txtBoxCrops", std::string{this->Main().Crops.Trimmed()});
    this->next->KeepEntries();
    EXPECT_EQ(this->Recovery(), Lines{});
}

TYPED_TEST(DataWindowRecovery, TheTextsOfCellsAreOfTheCodePage) {
    this->PutCell(3, 1, "\xB0");
    this->Edit(9, "\x80");
    KeepOpenEntries();
    const auto entries = ReadRecoveryText(Contents(this->folder / this->RecoveryName()));
    ASSERT_TRUE(entries);
    EXPECT_EQ(entries->state.cells[2][0], "\u00B0");
    EXPECT_EQ(entries->state.edit, (CellEdit{9, TestFixture::kVolume, "\u20AC"}));
    this->OpenAgain(Reply::Yes);
    this->next->Form_Show();
    (void)this->Said();
    EXPECT_EQ(this->next->Grid().Cell(3, 1), "\xB0");
    EXPECT_EQ(this->view.editor, "\x80");
}

TYPED_TEST(DataWindowRecovery, TheOpenEditorAndItsCellComeBackWhenTheWindowIsShown) {
    this->Edit(17, "23");
    KeepOpenEntries();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_FALSE(this->next->Grid().IsEditing());
    KeepOpenEntries();
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion})) << "not lost before, either";
    this->next->Form_Show();
    EXPECT_EQ(
        this->Said(),
        (Lines{"page of the grid", this->Line("current", 17), "editor [" + this->Volume(17) + "]",
               "select 0+1000", this->Line("whole", 17),
               TestFixture::kVolume == 2 ? "move editor 1195,2341 92x20" : "move editor 1295,2341 93x20",
               "show editor", "focus txtEdit", "editor [23]", "select 2+0"}));
    EXPECT_TRUE(this->next->Grid().IsEditing());
    EXPECT_EQ(this->next->Grid().CurrentRow(), 17);
    this->next->Form_Show();
    EXPECT_EQ(this->Said(), Lines{}) << "once";
}

TYPED_TEST(DataWindowRecovery, ACellOutOfSightTakesTheEditorsText) {
    this->Edit(17, "23");
    KeepOpenEntries();
    this->OpenAgain(Reply::Yes);
    this->view.cellWidth = -100;
    this->next->Form_Show();
    (void)this->Said();
    EXPECT_FALSE(this->next->Grid().IsEditing());
    EXPECT_EQ(this->next->Grid().Cell(17, TestFixture::kVolume), "23");
}

TYPED_TEST(DataWindowRecovery, NoKeepsTheFileUnderAnotherNameUntilTheNextSave) {
    const std::string name = this->RecoveryName();
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    const std::string typed = Contents(this->folder / name);
    this->OpenAgain(Reply::No);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->view.Text("txtBoxCrops"), this->Main().Crops.Trimmed());
    EXPECT_EQ(this->Recovery(), (Lines{name + "-1"}));
    EXPECT_EQ(Contents(this->folder / (name + "-1")), typed);
    this->OpenAgain({});
    EXPECT_EQ(this->Said(), Lines{}) << "nobody asks again";
    this->surroundings.replies = {Reply::Yes};
    this->next->cmdBtnCloseWithoutSaving_Click();
    (void)this->Said();
    EXPECT_EQ(this->Recovery(), (Lines{name + "-1"})) << "that is no save";
    this->OpenAgain({});
    this->SaidButCells([this] { this->next->mnuFileSave_Click(); });
    EXPECT_EQ(this->Recovery(), Lines{});
}

TYPED_TEST(DataWindowRecovery, SaveRemovesItAndTheNextEntryBringsItBack) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->Save();
    EXPECT_EQ(this->Recovery(), Lines{});
    this->view.postedKeeps = 0;
    this->window.KeepEntries();
    EXPECT_EQ(this->Recovery(), Lines{}) << "what Save has put into empty cells included";
    this->Type("txtBoxCrops", "Cotton");
    this->Repaint();
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
}

TYPED_TEST(DataWindowRecovery, WhatWasKeptBeforeASaveIsKeptAgainAfterIt) {
    this->Save();
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    this->view.Put("txtBoxCrops", "Cotton");
    this->Save();
    this->view.Put("txtBoxCrops", "Corn");
    KeepOpenEntries();
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
}

TYPED_TEST(DataWindowRecovery, ASaveThatCannotWriteKeepsIt) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    fs::create_directory(this->File());
    this->SaidButCells([this] { this->window.mnuFileSave_Click(); });
    fs::remove(this->File());
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->view.Text("txtBoxCrops"), "Corn");
}

TYPED_TEST(DataWindowRecovery, AnErrorThatEndsTheProgramFindsItCurrent) {
    this->Type("txtBoxCrops", "Corn");
    this->PutCell(3, TestFixture::kVolume, ".");
    this->Edit(9, "5");
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { this->window.mnuFileSave_Click(); });
    EXPECT_EQ(this->folder.Names(), Lines{});
    KeepOpenEntries();
    (void)this->Said();
    this->OpenAgain(Reply::Yes);
    this->next->Form_Show();
    (void)this->Said();
    EXPECT_EQ(this->view.Text("txtBoxCrops"), "Corn");
    EXPECT_EQ(this->next->Grid().Cell(3, TestFixture::kVolume), ".");
    EXPECT_EQ(this->view.editor, "5");
}

TYPED_TEST(DataWindowRecovery, ClosingRemovesItAndNothingComesAfter) {
    const auto close = [this](auto command) {
        this->Type("txtBoxCrops", this->view.Text("txtBoxCrops") + "Corn");
        this->Edit(9, "5");
        this->view.postedKeeps = 0;
        this->window.KeepEntries();
        EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
        this->surroundings.replies = {Reply::Yes};
        command();
        (void)this->Said();
        EXPECT_EQ(this->Recovery(), Lines{});
        this->view.postedKeeps = 0;
        this->Type("txtBoxCrops", "typed into a window that goes");
        EXPECT_EQ(this->view.postedKeeps, 0);
        KeepOpenEntries();
        EXPECT_EQ(this->Recovery(), Lines{});
        this->window.Form_Load();
        this->window.Grid().CommitEdit();
        (void)this->Said();
        this->view.postedKeeps = 0;
        this->window.KeepEntries();
    };
    close([this] { this->window.cmdBtnCloseWithoutSaving_Click(); });
    close([this] { this->window.cmdBtnExitAndSave_Click(); });
}

TYPED_TEST(DataWindowRecovery, WhoStaysKeepsIt) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    for (const Reply reply : {Reply::No, Reply::Cancel}) {
        this->surroundings.replies = {reply};
        this->window.cmdBtnCloseWithoutSaving_Click();
        (void)this->Said();
        EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
    }
}

TYPED_TEST(DataWindowRecovery, ADamagedFileIsToldAndKeptUnderAnotherName) {
    const std::string name = this->RecoveryName();
    PutContents(this->folder / name, "{\"orvel");
    this->OpenAgain({});
    EXPECT_EQ(this->Said(), (Lines{kDamaged}));
    EXPECT_EQ(this->Recovery(), (Lines{name + "-1"}));
    EXPECT_EQ(Contents(this->folder / (name + "-1")), "{\"orvel");
}

TYPED_TEST(DataWindowRecovery, AFileOfTheOtherKindIsNone) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    std::string text = Contents(this->folder / this->RecoveryName());
    const std::string kind = TestFixture::Kind::kName;
    text.replace(text.find(kind), kind.size(), kind == kSolidSet ? kCenterPivot : kSolidSet);
    PutContents(this->folder / this->RecoveryName(), text);
    this->OpenAgain({});
    EXPECT_EQ(this->Said(), (Lines{kDamaged}));
}

TYPED_TEST(DataWindowRecovery, ATableOfAnotherWidthIsNone) {
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    const auto entries = ReadRecoveryText(Contents(this->folder / this->RecoveryName()));
    ASSERT_TRUE(entries);
    RecoveredEntries wider = *entries;
    for (auto& row : wider.state.cells) {
        row.emplace_back();
    }
    PutContents(this->folder / this->RecoveryName(), RecoveryText(wider));
    this->OpenAgain({});
    EXPECT_EQ(this->Said(), (Lines{kDamaged}));
}

TYPED_TEST(DataWindowRecovery, OfTwoFilesTheLaterOneIsOffered) {
    fs::create_directory(this->folder / this->RecoveryName());
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    EXPECT_EQ(this->user.Names(), (Lines{"recovery"}));
    fs::remove(this->folder / this->RecoveryName());
    for (const bool isBesideLater : {true, false}) {
        RecoveredEntries entries{TestFixture::Kind::kName,
                                 isBesideLater ? "2026-07-04 09:05:04" : "2026-07-04 09:05:02",
                                 {.texts = {{"txtBoxCrops", "Rice"}}, .checks = {}, .cells = {}, .edit = {}}};
        entries.state.cells.assign(300, std::vector<std::string>(TestFixture::Kind::kColumns - 1));
        PutContents(this->folder / this->RecoveryName(), RecoveryText(entries));
        this->OpenAgain(Reply::Yes);
        EXPECT_EQ(this->Said(), (Lines{isBesideLater ? Question("2026-07-04 09:05:04") : kQuestion}));
        EXPECT_EQ(this->view.Text("txtBoxCrops"), isBesideLater ? "Rice" : "Corn");
    }
}

TYPED_TEST(DataWindowRecovery, AFailureIsShownInTheWindowAndNothingElseStops) {
    Program().userDataFolder.clear();
    this->window.Form_Load();
    fs::create_directory(this->folder / this->RecoveryName());
    this->Type("txtBoxCrops", "Corn");
    this->Repaint();
    EXPECT_EQ(this->Said(), Lines{}) << "no box";
    this->Type("txtBoxCrops", "Cotton");
    this->Repaint();
    EXPECT_EQ(this->view.notices,
              (Lines{"What you type can't be kept for the case of a crash: cannot replace the file: Is a "
                     "directory. Please save often."}))
        << "once";
    EXPECT_EQ(this->folder.Names(), (Lines{this->RecoveryName()}));
    fs::remove(this->folder / this->RecoveryName());
    this->window.EntryMade();
    this->Repaint();
    EXPECT_EQ(this->view.notices.back(), "") << "it works again";
    EXPECT_EQ(this->view.notices.size(), 2U);
    EXPECT_NE(Contents(this->folder / this->RecoveryName()).find("Cotton"), std::string::npos);
}

TYPED_TEST(DataWindowRecovery, WithoutAnOpenFileItLiesInTheUsersFolder) {
    (Program().*TestFixture::Kind::kFile).clear();
    this->window.Form_Load();
    this->Type("txtBoxCrops", "Corn");
    this->view.postedKeeps = 0;
    this->window.KeepEntries();
    EXPECT_EQ(this->user.Names(),
              (Lines{TestFixture::kVolume == 2 ? "untitled.cpd.recovery" : "untitled.ssd.recovery"}));
    this->OpenAgain(Reply::Yes);
    EXPECT_EQ(this->Said(), (Lines{kQuestion}));
    EXPECT_EQ(this->view.Text("txtBoxCrops"), "Corn");
}

TYPED_TEST(DataWindowRecovery, SaveDoesNotTakeWhatTheEditorHoldsForSaved) {
    this->Edit(9, "5");
    this->Save();
    EXPECT_EQ(this->Recovery(), Lines{});
    KeepOpenEntries();
    EXPECT_EQ(this->Recovery(), (Lines{this->RecoveryName()}));
}

TYPED_TEST(DataWindowRecovery, WithoutADataWindowThereIsNothingToKeep) {
    this->OpenAgain({});
    this->next.reset();
    KeepOpenEntries();
    EXPECT_EQ(this->folder.Names(), Lines{});
}

} // namespace

} // namespace orvel
