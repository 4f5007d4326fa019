// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/MeasurementGrid.h"

#include "tests/entry/DataWindowTest.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// Keyboard, mouse and editor on the grids of both kinds of test.
namespace orvel {

namespace {

using testing::DataWindowTest;
using testing::Lines;

// Events come to the grid, not to the rest of the window.
template <class Window>
class MeasurementGridEditing : public DataWindowTest<Window> {
protected:
    using Base = DataWindowTest<Window>;
    static constexpr int kVolume = Base::kVolume;

    // The editor's line when it is laid over a volume cell that was scrolled into sight.
    static std::string Placed(int row) {
        return "move editor " + std::to_string(1000 + 100 * kVolume - 5) + "," +
               std::to_string(2000 + 20 * row + 1) + " " + std::to_string(90 + kVolume) + "x20";
    }

    // The lines of an editor that opens behind those.
    static Lines Opening(int row, Lines before) {
        for (const std::string& line : {Base::Line("whole", row), Placed(row), std::string("show editor"),
                                        std::string("focus txtEdit")}) {
            before.push_back(line);
        }
        return before;
    }

    // The lines of an editor whose text enters that row's cell behind the focus.
    static Lines Committing(int row, Lines after = {}) {
        Lines lines{"focus gridTest", Base::Line("cell", row), "hide editor"};
        lines.insert(lines.end(), after.begin(), after.end());
        return lines;
    }

    Lines Key(int code) {
        this->Grid().txtEdit_KeyDown(code);
        return this->Said();
    }
};

using BothKinds = ::testing::Types<frmCenterPivotData, frmSolidSetData>;
TYPED_TEST_SUITE(MeasurementGridEditing, BothKinds);

TYPED_TEST(MeasurementGridEditing, AControlCharacterOrABlankTakesTheCellsTextSelected) {
    for (int code = 0; code <= 32; ++code) {
        this->PutCell(4, TestFixture::kVolume, "123");
        this->Go(4, TestFixture::kVolume);
        this->Grid().gridTest_KeyPress(code);
        EXPECT_EQ(this->Said(), this->Opening(4, {"editor [123]", "select 0+1000"})) << code;
        EXPECT_TRUE(this->Grid().IsEditing());
        this->Key(27);
    }
}

TYPED_TEST(MeasurementGridEditing, ADigitOrAPointBeginsWithItselfAndTheCaretBehindIt) {
    for (const char character : std::string("0123456789.")) {
        this->Grid().gridTest_KeyPress(character);
        EXPECT_EQ(this->Said(), this->Opening(1, {std::string("editor [") + character + "]", "select 1+0"}));
        this->Key(27);
    }
}

TYPED_TEST(MeasurementGridEditing, AnyOtherCharacterBeginsWithZeroAndLeavesTheSelection) {
    const std::string passing = "0123456789.";
    for (int code = 33; code <= 255; ++code) {
        if (code < 128 && passing.find(static_cast<char>(code)) != std::string::npos) {
            continue;
        }
        this->Grid().gridTest_KeyPress(code);
        EXPECT_EQ(this->Said(), this->Opening(1, {"editor [0]"})) << code;
        this->Key(27);
    }
    this->Grid().gridTest_KeyPress(-1);
    EXPECT_EQ(this->Said(), this->Opening(1, {"editor [0]"}));
    this->Grid().gridTest_KeyPress(0x20AC);
    EXPECT_EQ(this->Said(), this->Opening(1, {"editor [0]"}));
}

TYPED_TEST(MeasurementGridEditing, OnOtherColumnsTheTextIsSetAndTheEditorStaysHidden) {
    for (int column = 0; column < TestFixture::kVolume; ++column) {
        this->PutCell(2, column, "x" + std::to_string(column));
        this->Go(2, column);
        this->Grid().gridTest_KeyPress('7');
        this->Grid().gridTest_KeyPress('a');
        this->Grid().gridTest_KeyPress(' ');
        EXPECT_EQ(this->Said(), (Lines{"editor [7]", "select 1+0", "editor [0]",
                                       "editor [x" + std::to_string(column) + "]", "select 0+1000"}));
        EXPECT_FALSE(this->Grid().IsEditing());
        this->Grid().gridTest_GotFocus();
        EXPECT_EQ(this->Said(), Lines{}) << "there is nothing to commit";
        EXPECT_EQ(this->Grid().Cell(2, column), "x" + std::to_string(column));
    }
}

TYPED_TEST(MeasurementGridEditing, ACellOutOfSightIsNotEdited) {
    this->view.cellWidth = -1 - TestFixture::kVolume;
    this->Grid().gridTest_KeyPress('7');
    EXPECT_EQ(this->Said(), (Lines{"editor [7]", "select 1+0"}));
    EXPECT_FALSE(this->Grid().IsEditing());
    this->view.cellWidth = -TestFixture::kVolume;
    this->Grid().gridTest_KeyPress('7');
    EXPECT_EQ(this->Said().size(), 6U) << "no width is none that is negative";
    EXPECT_TRUE(this->Grid().IsEditing());
}

TYPED_TEST(MeasurementGridEditing, EnterCommitsThroughTheGridsFocus) {
    this->Edit(3, "7");
    EXPECT_EQ(this->Key(13), this->Committing(3));
    EXPECT_EQ(this->Volume(3), TestFixture::Kind::kSeven);
    EXPECT_FALSE(this->Grid().IsEditing());
    EXPECT_EQ(this->Grid().CurrentRow(), 3);
}

TYPED_TEST(MeasurementGridEditing, EscapeHidesFirstAndLeavesTheCell) {
    this->PutCell(3, TestFixture::kVolume, "55");
    this->Edit(3, "7");
    EXPECT_EQ(this->Key(27), (Lines{"hide editor", "focus gridTest"}));
    EXPECT_EQ(this->Volume(3), "55");
    EXPECT_FALSE(this->Grid().IsEditing());
}

TYPED_TEST(MeasurementGridEditing, UpAndDownCommitLetEventsRunAndMove) {
    this->Edit(3, "7");
    EXPECT_EQ(this->Key(38), this->Committing(3, {"events", TestFixture::Line("current", 2)}));
    this->Edit(3, "8");
    EXPECT_EQ(this->Key(40), this->Committing(3, {"events", TestFixture::Line("current", 4)}));
    EXPECT_EQ(this->Grid().CurrentRow(), 4);
    EXPECT_EQ(this->Grid().CurrentColumn(), TestFixture::kVolume);
    EXPECT_EQ(this->Volume(2), "");
    EXPECT_EQ(this->Volume(4), "");
}

TYPED_TEST(MeasurementGridEditing, UpOnTheFirstRowAndDownOnTheLastCommitAndStay) {
    this->Edit(1, "7");
    EXPECT_EQ(this->Key(38), this->Committing(1, {"events"}));
    EXPECT_EQ(this->Volume(1), TestFixture::Kind::kSeven);
    this->Edit(300, "7");
    EXPECT_EQ(this->Key(40), this->Committing(300, {"events"}));
    EXPECT_EQ(this->Volume(300), TestFixture::Kind::kSeven);
    EXPECT_EQ(this->Grid().CurrentRow(), 300);
    this->Edit(2, "7");
    EXPECT_EQ(this->Key(38), this->Committing(2, {"events", TestFixture::Line("current", 1)}));
    this->Edit(299, "7");
    EXPECT_EQ(this->Key(40), this->Committing(299, {"events", TestFixture::Line("current", 300)}));
}

TYPED_TEST(MeasurementGridEditing, AnArrowKeyStartsFromWhereTheEventsLeftTheCurrentCell) {
    this->Edit(3, "7");
    this->view.onGridFocus = [this] {
        this->Grid().gridTest_GotFocus();
        this->Grid().MakeCurrent(9, 1);
    };
    EXPECT_EQ(this->Key(40), this->Committing(3, {"current 9,1", "events", "current 10,1"}));
}

TYPED_TEST(MeasurementGridEditing, LeavingACellByAnArrowKeyCommitsNothing) {
    for (const int key : {38, 40}) {
        this->Edit(3, "7");
        // The focus did not come, so that the editor is still open when the row changes.
        this->view.onGridFocus = {};
        EXPECT_EQ(this->Key(key),
                  (Lines{"focus gridTest", "events", TestFixture::Line("current", key == 38 ? 2 : 4)}));
        EXPECT_EQ(this->Volume(3), "");
        EXPECT_TRUE(this->Grid().IsEditing());
        this->Grid().gridTest_GotFocus();
        EXPECT_EQ(this->Said(), (Lines{TestFixture::Line("cell", key == 38 ? 2 : 4), "hide editor"}))
            << "the flag is cleared behind the move";
    }
}

TYPED_TEST(MeasurementGridEditing, ScrollingToTheRowOfAnArrowKeyCommitsNothing) {
    this->Edit(3, "7");
    this->view.onGridFocus = {};
    this->view.onShowCurrentCell = [this] { this->Grid().gridTest_Scroll(); };
    EXPECT_EQ(this->Key(40), (Lines{"focus gridTest", "events", TestFixture::Line("current", 4)}));
    EXPECT_TRUE(this->Grid().IsEditing());
    EXPECT_EQ(this->Volume(4), "");
}

TYPED_TEST(MeasurementGridEditing, TheFocusThatAHiddenEditorLosesCommitsNothing) {
    this->view.onHideEditor = [this] { this->Grid().gridTest_GotFocus(); };
    this->Edit(3, "7");
    EXPECT_EQ(this->Key(27), (Lines{"hide editor", "focus gridTest"}));
    EXPECT_EQ(this->Volume(3), "");
    this->Edit(3, "7");
    EXPECT_EQ(this->Key(13), this->Committing(3)) << "not twice";
}

TYPED_TEST(MeasurementGridEditing, FocusLeavingAndScrollingCommit) {
    this->Edit(3, "7");
    this->Grid().gridTest_GotFocus();
    EXPECT_EQ(this->Said(), (Lines{TestFixture::Line("cell", 3), "hide editor"}));
    this->Edit(4, "7");
    this->Grid().gridTest_LeaveCell();
    EXPECT_EQ(this->Said(), (Lines{TestFixture::Line("cell", 4), "hide editor"}));
    this->Edit(5, "7");
    this->Grid().gridTest_Scroll();
    EXPECT_EQ(this->Said(), (Lines{TestFixture::Line("cell", 5), "hide editor"}));
    this->Grid().gridTest_GotFocus();
    this->Grid().gridTest_LeaveCell();
    this->Grid().gridTest_Scroll();
    this->Grid().CommitEdit();
    EXPECT_EQ(this->Said(), Lines{}) << "nothing is being edited";
    EXPECT_EQ(this->VolumesFrom(3)[0], TestFixture::Kind::kSeven);
    EXPECT_EQ(this->Volume(5), TestFixture::Kind::kSeven);
}

TYPED_TEST(MeasurementGridEditing, ANewCurrentCellCommitsIntoTheOneThatIsLeft) {
    this->Edit(3, "7");
    this->Grid().MakeCurrent(5, 1);
    EXPECT_EQ(this->Said(), (Lines{TestFixture::Line("cell", 3), "hide editor", "current 5,1"}));
    EXPECT_EQ(this->Volume(3), TestFixture::Kind::kSeven);
    EXPECT_EQ(this->Volume(5), "");
    this->Grid().MakeCurrent(5, 1);
    EXPECT_EQ(this->Said(), Lines{});
    this->Edit(6, "7");
    this->Grid().MakeCurrent(6, TestFixture::kVolume);
    EXPECT_EQ(this->Said(), Lines{}) << "the same cell is not left";
    EXPECT_TRUE(this->Grid().IsEditing());
}

TYPED_TEST(MeasurementGridEditing, OtherKeysOfTheEditorAreItsOwn) {
    const std::array working = {13, 27, 38, 40, 45, 46, 120, 121};
    this->Edit(3, "7");
    for (int code = 0; code <= 255; ++code) {
        if (std::ranges::find(working, code) == working.end()) {
            EXPECT_EQ(this->Key(code), Lines{}) << code;
        }
    }
    EXPECT_TRUE(this->Grid().IsEditing());
}

TYPED_TEST(MeasurementGridEditing, TheEditorTakesDigitsAndBackspaceOnly) {
    const std::string passing = "0123456789\b";
    for (int code = -1; code <= 300; ++code) {
        const bool passes =
            code > 0 && code < 128 && passing.find(static_cast<char>(code)) != std::string::npos;
        EXPECT_EQ(MeasurementGrid::txtEdit_KeyPress(code), passes ? code : 0) << code;
    }
}

TYPED_TEST(MeasurementGridEditing, TheEditorFollowsItsCell) {
    this->Grid().gridTest_Resize();
    EXPECT_EQ(this->Said(), Lines{});
    this->Edit(3, "7");
    this->Grid().gridTest_Resize();
    EXPECT_EQ(this->Said(), (Lines{this->Line("whole", 3), this->Placed(3)}));
}

TYPED_TEST(MeasurementGridEditing, ACellThatAResizePutsOutOfSightTakesTheText) {
    this->Edit(3, "7");
    this->view.cellWidth = -100;
    this->Grid().gridTest_Resize();
    EXPECT_EQ(this->Said(), (Lines{this->Line("cell", 3), "hide editor"}));
    EXPECT_EQ(this->Grid().Cell(3, TestFixture::kVolume), TestFixture::Kind::kSeven);
}

TYPED_TEST(MeasurementGridEditing, ACellThatAResizeScrollsTakesTheText) {
    this->Edit(3, "7");
    this->view.onShowWholeCell = [this] { this->Grid().gridTest_Scroll(); };
    this->Grid().gridTest_Resize();
    EXPECT_FALSE(this->Grid().IsEditing());
    EXPECT_EQ(this->Said().back(), "hide editor") << "it is not placed again";
}

TYPED_TEST(MeasurementGridEditing, ADoubleClickEditsTheCellsTextUnlessThePointerIsOutsideTheCells) {
    constexpr int kRight = TestFixture::Kind::kColumns == 3 ? 80 + 81 + 82 : 80 + 81 + 82 + 83;
    constexpr int kBottom = 18 * 301;
    struct Place {
        int x;
        int y;
        bool isOutside;
    };
    const std::vector<Place> places = {
        {200, 100, false},        {79, 100, true}, {80, 100, false}, {kRight, 100, false},
        {kRight + 1, 100, true},  {200, 24, true}, {200, 25, false}, {200, kBottom, false},
        {200, kBottom + 1, true}, {79, 24, true},  {80, 25, false},  {kRight, kBottom, false},
        {-5, -5, true},
    };
    this->PutCell(1, TestFixture::kVolume, "55");
    this->Grid().gridTest_DblClick();
    EXPECT_EQ(this->Said(), this->Opening(1, {"editor [55]", "select 0+1000"})) << "no mouse was seen yet";
    for (const Place& place : places) {
        this->Key(27);
        this->Grid().gridTest_MouseDown(place.x, place.y);
        this->Grid().gridTest_DblClick();
        EXPECT_EQ(this->Said(),
                  place.isOutside ? Lines{} : this->Opening(1, {"editor [55]", "select 0+1000"}))
            << place.x << ", " << place.y;
    }
}

} // namespace

} // namespace orvel
