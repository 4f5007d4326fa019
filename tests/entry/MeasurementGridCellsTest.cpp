// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/MeasurementGrid.h"

#include "tests/entry/DataWindowTest.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

// The table of cells, what is inserted into it and deleted from it, and what the two kinds of it differ in.
namespace orvel {

namespace {

using testing::DataWindowTest;
using testing::ExpectRunTimeError;
using testing::GermanNumbers;
using testing::Lines;

const std::string kInsertBox =
    "box [Insert Cell] Would you like to insert a cell before this one?|This will shift cells below this "
    "down.|Really insert a new cell?| (YesNoCancel)";
const std::string kDeleteBox = "box [Delete Cell] Would you like to delete this cell?|This will shift cells "
                               "below this up.|Really delete this cell?| (YesNoCancel)";

constexpr int kInsert = 45;
constexpr int kDelete = 46;
constexpr int kF9 = 120;
constexpr int kF10 = 121;

template <class Window>
class MeasurementGridCells : public DataWindowTest<Window> {
protected:
    // Presses a key of the editor and answers its question.
    Lines Key(int code, Reply reply) {
        this->surroundings.replies = {reply};
        return this->SaidButCells([this, code] { this->Grid().txtEdit_KeyDown(code); });
    }

    // The texts that the volume column began with, row by row from that row on: 1001, 1002, ...
    void FillVolumes() { this->NumberCells(DataWindowTest<Window>::kVolume, 1000); }

    static Lines Filled(int from, int to) {
        Lines texts;
        for (int row = from; row <= to; ++row) {
            texts.push_back(std::to_string(1000 + row));
        }
        return texts;
    }

    static Lines Joined(Lines first, const Lines& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    }
};

using BothKinds = ::testing::Types<frmCenterPivotData, frmSolidSetData>;
TYPED_TEST_SUITE(MeasurementGridCells, BothKinds);

TYPED_TEST(MeasurementGridCells, ANewGridNumbersItsRowsAndIsEmpty) {
    for (int row = 1; row <= 300; ++row) {
        EXPECT_EQ(this->Grid().Cell(row, 0), std::to_string(row));
        for (int column = 1; column < TestFixture::Kind::kColumns; ++column) {
            EXPECT_EQ(this->Grid().Cell(row, column), "");
        }
    }
    EXPECT_EQ(this->Grid().CurrentRow(), 1);
    EXPECT_EQ(this->Grid().CurrentColumn(), TestFixture::kVolume);
    EXPECT_FALSE(this->Grid().IsEditing());
}

TYPED_TEST(MeasurementGridCells, ACellIsSetAndShown) {
    this->Grid().SetCell(300, 1, "a");
    this->Grid().SetCell(1, TestFixture::kVolume, "b");
    EXPECT_EQ(this->Said(), (Lines{"cell 300,1", TestFixture::Line("cell", 1)}));
    EXPECT_EQ(this->Grid().Cell(300, 1), "a");
    EXPECT_EQ(this->Grid().Cell(1, TestFixture::kVolume), "b");
    EXPECT_EQ(this->Grid().Cell(299, TestFixture::kVolume), "");
    EXPECT_EQ(this->Grid().Cell(2, 0), "2");
}

TYPED_TEST(MeasurementGridCells, APlaceOutsideTheTableIsAnError) {
    constexpr int kColumns = TestFixture::Kind::kColumns;
    for (const auto& [row, column] :
         std::vector<std::pair<int, int>>{{-1, 0}, {301, 0}, {0, -1}, {0, kColumns}, {300, kColumns}}) {
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { (void)this->Grid().Cell(row, column); });
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { this->Grid().SetCell(row, column, "x"); });
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { this->Grid().MakeCurrent(row, column); });
    }
    EXPECT_EQ(this->Said(), Lines{});
    EXPECT_EQ(this->Grid().CurrentRow(), 1);
}

TYPED_TEST(MeasurementGridCells, InsertShiftsTheVolumesDownAndLosesTheLast) {
    this->FillVolumes();
    this->Edit(150, "7");
    EXPECT_EQ(this->Key(kInsert, Reply::Yes), (Lines{kInsertBox, "hide editor", "focus gridTest"}));
    EXPECT_EQ(this->VolumesFrom(1),
              this->Joined(this->Joined(this->Filled(1, 149), {""}), this->Filled(150, 299)))
        << "the editor's text is dropped";
    EXPECT_EQ(this->Grid().CurrentRow(), 150);
    EXPECT_FALSE(this->Grid().IsEditing());
    EXPECT_EQ(this->Grid().Cell(151, 0), "151");
    EXPECT_EQ(this->Grid().Cell(151, 1), "");
}

TYPED_TEST(MeasurementGridCells, InsertInTheFirstRow) {
    this->FillVolumes();
    this->Edit(1, "7");
    EXPECT_EQ(this->Key(kF10, Reply::Yes), (Lines{kInsertBox, "hide editor", "focus gridTest"}));
    EXPECT_EQ(this->VolumesFrom(1), this->Joined({""}, this->Filled(1, 299)));
    EXPECT_EQ(this->Grid().CurrentRow(), 1);
}

TYPED_TEST(MeasurementGridCells, InsertInTheLastRowOnlyClearsIt) {
    this->FillVolumes();
    this->Edit(300, "7");
    EXPECT_EQ(this->Key(kInsert, Reply::Yes), (Lines{kInsertBox, "hide editor", "focus gridTest"}));
    EXPECT_EQ(this->VolumesFrom(1), this->Joined(this->Filled(1, 299), {""}));
    EXPECT_EQ(this->Grid().CurrentRow(), 300);
}

TYPED_TEST(MeasurementGridCells, InsertShowsEveryCellThatChangesBeforeTheFocusMoves) {
    this->Edit(298, "7");
    this->surroundings.replies = {Reply::Yes};
    this->Grid().txtEdit_KeyDown(kInsert);
    const Lines said = this->Said();
    ASSERT_EQ(said.size(), 6U);
    EXPECT_EQ(said[1], "hide editor");
    Lines cells(said.begin() + 2, said.begin() + 5);
    std::ranges::sort(cells);
    EXPECT_EQ(cells, (Lines{TestFixture::Line("cell", 298), TestFixture::Line("cell", 299),
                            TestFixture::Line("cell", 300)}));
    EXPECT_EQ(said[5], "focus gridTest");
}

TYPED_TEST(MeasurementGridCells, DeleteShiftsTheVolumesUpAndKeepsTheLast) {
    this->FillVolumes();
    this->Edit(150, "7");
    EXPECT_EQ(this->Key(kDelete, Reply::Yes),
              (Lines{kDeleteBox, "hide editor", TestFixture::Line("current", 299), "focus gridTest"}));
    EXPECT_EQ(this->VolumesFrom(1),
              this->Joined(this->Joined(this->Filled(1, 149), this->Filled(151, 300)), {"1300"}))
        << "the editor's text is dropped";
    EXPECT_EQ(this->Grid().CurrentRow(), 299);
    EXPECT_EQ(this->Grid().CurrentColumn(), TestFixture::kVolume);
    EXPECT_FALSE(this->Grid().IsEditing());
    EXPECT_EQ(this->Grid().Cell(150, 0), "150");
}

TYPED_TEST(MeasurementGridCells, DeleteInTheFirstRow) {
    this->FillVolumes();
    this->Edit(1, "7");
    EXPECT_EQ(this->Key(kF9, Reply::Yes).size(), 4U);
    EXPECT_EQ(this->VolumesFrom(1), this->Joined(this->Filled(2, 300), {"1300"}));
    EXPECT_EQ(this->Grid().CurrentRow(), 299);
}

TYPED_TEST(MeasurementGridCells, DeleteInTheRowBeforeTheLast) {
    this->FillVolumes();
    this->Edit(299, "7");
    EXPECT_EQ(this->Key(kDelete, Reply::Yes), (Lines{kDeleteBox, "hide editor", "focus gridTest"}));
    EXPECT_EQ(this->VolumesFrom(298), (Lines{"1298", "1300", "1300"}));
    EXPECT_EQ(this->Grid().CurrentRow(), 299);
}

TYPED_TEST(MeasurementGridCells, DeleteInTheLastRowChangesNothingAndLeavesTheEditorOpen) {
    this->FillVolumes();
    this->Edit(300, "7");
    EXPECT_EQ(this->Key(kDelete, Reply::Yes), (Lines{kDeleteBox}));
    EXPECT_EQ(this->VolumesFrom(1), this->Filled(1, 300));
    EXPECT_EQ(this->Grid().CurrentRow(), 300);
    EXPECT_TRUE(this->Grid().IsEditing());
    EXPECT_EQ(this->view.editor, "7");
}

TYPED_TEST(MeasurementGridCells, AnythingButYesShiftsNothingAndLeavesTheEditorOpen) {
    this->FillVolumes();
    this->Edit(150, "7");
    for (const Reply reply : {Reply::No, Reply::Cancel, Reply::None}) {
        for (const int key : {kInsert, kF10}) {
            EXPECT_EQ(this->Key(key, reply), (Lines{kInsertBox}));
        }
        for (const int key : {kDelete, kF9}) {
            EXPECT_EQ(this->Key(key, reply), (Lines{kDeleteBox}));
        }
    }
    EXPECT_EQ(this->VolumesFrom(1), this->Filled(1, 300));
    EXPECT_EQ(this->Grid().CurrentRow(), 150);
    EXPECT_TRUE(this->Grid().IsEditing());
    EXPECT_EQ(this->view.editor, "7");
}

TYPED_TEST(MeasurementGridCells, InsertAndDeleteMakeTheVolumeColumnCurrent) {
    this->FillVolumes();
    this->Go(3, 1);
    EXPECT_EQ(this->Key(kInsert, Reply::Yes),
              (Lines{kInsertBox, TestFixture::Line("current", 3), "focus gridTest"}));
    EXPECT_EQ(this->Volume(3), "");
    EXPECT_EQ(this->Volume(4), "1003");
    this->Go(3, 1);
    EXPECT_EQ(this->Key(kDelete, Reply::Yes),
              (Lines{kDeleteBox, TestFixture::Line("current", 3), TestFixture::Line("current", 299)}))
        << "no editor was closed, so the focus stays where it is";
    EXPECT_EQ(this->Volume(3), "1003");
    this->Go(3, 1);
    EXPECT_EQ(this->Key(kInsert, Reply::No), (Lines{kInsertBox}));
    EXPECT_EQ(this->Key(kDelete, Reply::No), (Lines{kDeleteBox}));
    EXPECT_EQ(this->Grid().CurrentColumn(), 1);
    this->Go(300, 1);
    EXPECT_EQ(this->Key(kDelete, Reply::Yes), (Lines{kDeleteBox, TestFixture::Line("current", 300)}));
}

// What the kinds differ in.
using Commits = std::vector<std::pair<std::string, std::string>>;

template <class Window>
class GridOfKind : public DataWindowTest<Window> {
protected:
    void ExpectCommits(const Commits& commits) {
        for (const auto& [typed, cell] : commits) {
            this->Edit(3, typed);
            this->Grid().gridTest_GotFocus();
            EXPECT_EQ(this->Volume(3), cell) << typed;
            EXPECT_FALSE(this->Grid().IsEditing());
            EXPECT_EQ(this->Said(), (Lines{this->Line("cell", 3), "hide editor"}));
        }
    }

    void ExpectColumns(const std::vector<std::pair<std::string, int>>& columns) {
        const GridKind& kind = this->Grid().Kind();
        ASSERT_EQ(kind.columns.size(), columns.size());
        for (std::size_t column = 0; column < columns.size(); ++column) {
            EXPECT_EQ(kind.columns[column].caption, columns[column].first);
            EXPECT_EQ(kind.columns[column].width, columns[column].second);
            EXPECT_EQ(this->Grid().Cell(0, static_cast<int>(column)), columns[column].first);
        }
    }

    // Opens the editor on row 1 while the current cell moves on to column 1 of row 2.
    void LoseTheCell() {
        this->view.onShowWholeCell = [this] { this->Grid().MakeCurrent(2, 1); };
        this->Grid().BeginEdit('7');
        (void)this->Said();
    }
};

using CenterPivotGrid = GridOfKind<frmCenterPivotData>;
using SolidSetGrid = GridOfKind<frmSolidSetData>;

TEST_F(CenterPivotGrid, HasThreeColumns) {
    ExpectColumns({{"Sequence", 1120}, {"Distance Feet", 1610}, {"Volume (cc)", 1610}});
    EXPECT_EQ(Grid().Kind().volumeColumn, 2);
}

TEST_F(SolidSetGrid, HasFourColumns) {
    ExpectColumns({{"Sequence", 1085}, {"X Axis", 1085}, {"Y Axis", 1085}, {"Volume (cc)", 1085}});
    EXPECT_EQ(Grid().Kind().volumeColumn, 3);
}

TEST_F(CenterPivotGrid, CommitsAWholeNumberOfAtLeastTwoDigits) {
    ExpectCommits({{"7", "07"},
                   {"0", "00"},
                   {"007", "07"},
                   {"12", "12"},
                   {"400", "400"},
                   {"7.6", "08"},
                   {"7.4", "07"},
                   {".5", "01"},
                   {".4", "00"},
                   {"2.5", "03"},
                   {"1.5", "02"},
                   {" 7 ", "07"},
                   {"12345678901234567890", "12345678901234600000"}});
}

TEST_F(SolidSetGrid, CommitsAWholeNumber) {
    ExpectCommits({{"7", "7"},
                   {"0", "0"},
                   {"007", "7"},
                   {"400", "400"},
                   {"7.6", "8"},
                   {".5", "1"},
                   {".4", "0"},
                   {"2.5", "3"}});
}

const Commits kNoNumbers = {{".", "."}, {"", ""}, {"1.2.3", "1.2.3"}, {"abc", "abc"}, {" ", " "}};

TEST_F(CenterPivotGrid, CommitsWhatIsNoNumberAsItStands) {
    ExpectCommits(kNoNumbers);
}

TEST_F(SolidSetGrid, CommitsWhatIsNoNumberAsItStands) {
    ExpectCommits(kNoNumbers);
}

TEST_F(CenterPivotGrid, CommitsByTheLocale) {
    ExpectCommits({{"7,6", "7,6"}});
    UseNumberLocale(GermanNumbers());
    ExpectCommits({{"7,6", "08"}, {"7.6", "08"}, {".5", "01"}, {"1.000", "01"}, {"1234", "1234"}});
}

TEST_F(SolidSetGrid, CommitsByTheLocale) {
    UseNumberLocale(GermanNumbers());
    ExpectCommits({{"7,6", "8"}, {"7.6", "8"}, {".5", "1"}, {"1234", "1234"}});
}

TEST_F(CenterPivotGrid, CommitsIntoWhateverCellIsCurrent) {
    LoseTheCell();
    Grid().CommitEdit();
    EXPECT_EQ(Said(), (Lines{"cell 2,1", "hide editor"}));
    EXPECT_EQ(Grid().Cell(2, 1), "07");
    EXPECT_EQ(Volume(1), "");
    EXPECT_EQ(Volume(2), "");
}

TEST_F(SolidSetGrid, CommitsInTheVolumeColumnOnlyAndElseTheEditorStays) {
    LoseTheCell();
    Grid().CommitEdit();
    Grid().gridTest_GotFocus();
    EXPECT_EQ(Said(), Lines{});
    EXPECT_TRUE(Grid().IsEditing());
    EXPECT_EQ(Grid().Cell(2, 1), "");
    Grid().MakeCurrent(2, 3);
    EXPECT_EQ(Said(), (Lines{"current 2,3"}));
    Grid().gridTest_GotFocus();
    EXPECT_EQ(Said(), (Lines{"cell 2,3", "hide editor"}));
    EXPECT_EQ(Volume(2), "7");
}

} // namespace

} // namespace orvel
