// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/GaugeCells.h"

#include "tests/entry/DataWindowTest.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(CellText, ShowsNothingForZero) {
    for (const char* mask : {"", "0", "00", "##"}) {
        EXPECT_EQ(CellText(0.0F, mask), "") << mask;
        EXPECT_EQ(CellText(-0.0F, mask), "") << mask;
    }
}

TEST(CellText, ShowsNothingForWhatIsNoNumber) {
    for (const char* mask : {"", "0", "00", "##"}) {
        EXPECT_EQ(CellText(kNaN, mask), "") << mask;
        EXPECT_EQ(CellText(kInfinity, mask), "") << mask;
        EXPECT_EQ(CellText(-kInfinity, mask), "") << mask;
    }
}

TEST(CellText, FormatsByTheMaskOrPlainly) {
    struct Case {
        float number;
        const char* mask;
        const char* text;
    };
    for (const Case& each : std::vector<Case>{{0.4F, "00", "00"},
                                              {0.4F, "##", ""},
                                              {0.4F, "", "0.4"},
                                              {32.5F, "", "32.5"},
                                              {12.6F, "00", "13"},
                                              {12.6F, "##", "13"},
                                              {12.5F, "00", "13"},
                                              {12.4F, "##", "12"},
                                              {7.0F, "00", "07"},
                                              {7.0F, "##", "7"},
                                              {7575.0F, "", "7575"},
                                              {100000.0F, "", "100000"},
                                              {-3.0F, "00", "-03"}}) {
        EXPECT_EQ(CellText(each.number, each.mask), each.text) << each.number << " by " << each.mask;
    }
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(CellText(32.5F, ""), "32,5");
    UseNumberLocale(InvariantNumberLocale());
}

using Cups = MeasurementList<PivotGauge>;

constexpr std::array<GaugeColumn<PivotGauge>, 2> kColumns = {{
    {&PivotGauge::Footage, "", EmptyCell::ClearsSequence},
    {&PivotGauge::Volume, "00", EmptyCell::BecomesZero},
}};

// Measurements on a grid with columns for a distance and a volume; every gauge begins with a number, a
// distance, a volume and a spare.
class GaugeCells : public testing::DataWindowTest<frmCenterPivotData> {
protected:
    GaugeCells() {
        for (int row = 0; row <= 300; ++row) {
            const auto number = static_cast<float>(row);
            PivotGauge& gauge = cups[row];
            gauge.Sequence = 1000.0F + number;
            gauge.Footage = 0.5F + number;
            gauge.Volume = 10.0F + number;
            gauge.Spare = 7.0F;
        }
        view.logsCells = false;
    }

    void Fill() { LoadCells(cups, kColumns, Grid()); }

    void Store() { StoreCells(Grid(), kColumns, cups, sequences); }

    void ExpectCup(int row, float sequence, float footage, float volume) const {
        EXPECT_EQ(cups[row].Sequence, sequence) << row;
        EXPECT_EQ(cups[row].Footage, footage) << row;
        EXPECT_EQ(cups[row].Volume, volume) << row;
        EXPECT_EQ(cups[row].Spare, 7.0F) << row;
    }

    Cups cups;
    Cups sequences;
};

TEST_F(GaugeCells, EachRowIsLoadedFromTheGaugeOfItsNumber) {
    cups[2].Footage = 0.0F;
    cups[3].Volume = kNaN;
    Fill();
    EXPECT_EQ(Grid().Cell(0, 1), "Distance Feet");
    EXPECT_EQ(Grid().Cell(1, 0), "1");
    EXPECT_EQ(Grid().Cell(1, 1), "1.5");
    EXPECT_EQ(Grid().Cell(1, 2), "11");
    EXPECT_EQ(Grid().Cell(2, 1), "");
    EXPECT_EQ(Grid().Cell(2, 2), "12");
    EXPECT_EQ(Grid().Cell(3, 2), "");
    EXPECT_EQ(Grid().Cell(300, 1), "300.5");
    EXPECT_EQ(Grid().Cell(300, 2), "310");
}

TEST_F(GaugeCells, EachRowIsStoredIntoTheGaugeOfItsNumber) {
    Fill();
    Grid().SetCell(1, 2, "5.5");
    Grid().SetCell(300, 1, "9");
    Store();
    ExpectCup(0, 1000, 0.5F, 10);
    ExpectCup(1, 1001, 1.5F, 5.5F);
    ExpectCup(2, 1002, 2.5F, 12);
    ExpectCup(300, 1300, 9, 310);
}

TEST_F(GaugeCells, RowNumbersGoToTheirOwnList) {
    Fill();
    Grid().SetCell(4, 0, "2.5");
    Store();
    EXPECT_EQ(sequences[0].Sequence, 0.0F);
    EXPECT_EQ(sequences[1].Sequence, 1.0F);
    EXPECT_EQ(sequences[4].Sequence, 2.5F);
    EXPECT_EQ(sequences[300].Sequence, 300.0F);
    EXPECT_EQ(sequences[1].Footage, 0.0F);
    EXPECT_EQ(sequences[1].Volume, 0.0F);
    ExpectCup(4, 1004, 4.5F, 14);
    StoreCells(Grid(), kColumns, cups, cups);
    ExpectCup(4, 2.5F, 4.5F, 14);
    ExpectCup(300, 300, 300.5F, 310);
}

TEST_F(GaugeCells, AnEmptyRowNumberClearsTheSequenceAndNoOther) {
    Fill();
    sequences[5].Sequence = 55.0F;
    Grid().SetCell(5, 0, "");
    Store();
    ExpectCup(5, 0, 5.5F, 15);
    EXPECT_EQ(sequences[5].Sequence, 55.0F);
    ExpectCup(6, 1006, 6.5F, 16);
}

TEST_F(GaugeCells, AnEmptyDistanceClearsTheSequenceAndKeepsTheDistance) {
    Fill();
    Grid().SetCell(5, 1, "");
    Store();
    ExpectCup(5, 0, 5.5F, 15);
    EXPECT_EQ(Grid().Cell(5, 1), "");
    EXPECT_EQ(sequences[5].Sequence, 5.0F);
    StoreCells(Grid(), kColumns, cups, cups);
    EXPECT_EQ(cups[5].Sequence, 0.0F) << "the cleared one, though the row has a number";
}

TEST_F(GaugeCells, AnEmptyVolumeBecomesZeroInTheCellToo) {
    Fill();
    Grid().SetCell(5, 2, "");
    Store();
    ExpectCup(5, 1005, 5.5F, 0);
    EXPECT_EQ(Grid().Cell(5, 2), "0");
}

TEST_F(GaugeCells, NumbersFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    Fill();
    EXPECT_EQ(Grid().Cell(1, 1), "1,5");
    Grid().SetCell(2, 1, "2.25");
    Store();
    ExpectCup(1, 1001, 1.5F, 11);
    ExpectCup(2, 1002, 2.25F, 12);
}

TEST_F(GaugeCells, TheFirstCellThatHoldsNoNumberEndsTheStore) {
    struct Case {
        int column;
        const char* text;
        ErrorNumber error;
    };
    for (const Case& each : std::vector<Case>{{0, "x", ErrorNumber::TypeMismatch},
                                              {1, " ", ErrorNumber::TypeMismatch},
                                              {2, ".", ErrorNumber::TypeMismatch},
                                              {2, "1e39", ErrorNumber::Overflow}}) {
        Fill();
        Grid().SetCell(1, 2, "99");
        Grid().SetCell(3, each.column, each.text);
        Grid().SetCell(4, 2, "99");
        ExpectRunTimeError(each.error, [this] { Store(); });
        ExpectCup(1, 1001, 1.5F, 99);
        ExpectCup(4, 1004, 4.5F, 14);
        EXPECT_EQ(sequences[2].Sequence, 2.0F);
        EXPECT_EQ(sequences[4].Sequence, 0.0F);
        Grid().SetCell(3, 0, "3");
        cups[1].Volume = 11.0F;
        cups[3].Volume = 13.0F;
    }
}

} // namespace

} // namespace orvel
