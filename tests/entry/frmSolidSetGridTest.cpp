// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/frmSolidSetData.h"

#include "tests/entry/DataWindowTest.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

// The automatic set-up of the solid-set window's grid.
namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;
using testing::Lines;

class FrmSolidSetGrid : public testing::DataWindowTest<frmSolidSetData> {
protected:
    FrmSolidSetGrid() { Load(); }

    // Sets the grid up; the replies are those to its question, when it asks.
    Lines SetUpGrid(const std::string& countX, const std::string& countY, std::deque<Reply> replies = {}) {
        view.Put("txtBoxNumberX", countX);
        view.Put("txtBoxNumberY", countY);
        surroundings.replies = std::move(replies);
        return SaidButCells([this] { window.cmdBtnAutoFill_Click(); });
    }

    void ExpectRefusals(const std::vector<std::pair<std::string, std::string>>& counts,
                        const std::string& message) {
        for (const auto& [countX, countY] : counts) {
            EXPECT_EQ(SetUpGrid(countX, countY), (Lines{message})) << countX << " by " << countY;
        }
        ExpectUntouched();
    }

    void ExpectRaised(ErrorNumber number, const std::string& countX, const std::string& countY) {
        ExpectRunTimeError(number, [&] { (void)SetUpGrid(countX, countY); });
        view.logsCells = true;
        EXPECT_EQ(Said(), Lines{});
        ExpectUntouched();
    }

    // Expects no position, as the test began.
    void ExpectUntouched() {
        for (int row = 1; row <= 300; ++row) {
            EXPECT_EQ(Grid().Cell(row, 1) + Grid().Cell(row, 2), "");
        }
    }

    [[nodiscard]] std::string Position(int row) { return Grid().Cell(row, 1) + " " + Grid().Cell(row, 2); }

    static std::string Question(const std::string& countX, const std::string& countY) {
        return "box [Auto Complete Entries] Would you like to Automatically Enter Grid Setup|\n"
               "  Number Gu ages in X Axis = " +
               countX + "|\n  Number Guages in Y Axis = " + countY + " (YesNoCancel)";
    }
};

TEST_F(FrmSolidSetGrid, AnEmptyBoxIsAskedFor) {
    ExpectRefusals({{"", ""}, {"", "4"}, {"4", ""}, {"13", ""}, {"abc", ""}, {"", "abc"}},
                   "box [Entry Error] You must first enter values for X and Y axis. (Ok)");
}

TEST_F(FrmSolidSetGrid, MoreThanTwelveOnTheXAxisAreRefusedWhateverYIs) {
    ExpectRefusals({{"13", "1"}, {"13", "0"}, {"13", "300"}, {"13", "abc"}, {"13", "99999"}, {"12.6", "1"}},
                   "box [Input Error] The maximum number of data points on the X axis is 12|\n"
                   "You have choosen 13. (Ok)");
    ExpectRefusals({{"32767", "1"}}, "box [Input Error] The maximum number of data points on the X axis is "
                                     "12|\nYou have choosen 32767. (Ok)");
}

TEST_F(FrmSolidSetGrid, LessThanOneOnTheXAxisIsRefusedWhateverYIs) {
    ExpectRefusals({{"0", "1"}, {"0", "0"}, {"0", "301"}, {"0", "abc"}, {"0.5", "4"}},
                   "box [Input Error] The minimum number of data points on the X axis is 1|\n"
                   "You have choosen 0. (Ok)");
    ExpectRefusals({{"-3", "-4"}}, "box [Input Error] The minimum number of data points on the X axis is 1|\n"
                                   "You have choosen -3. (Ok)");
}

TEST_F(FrmSolidSetGrid, LessThanOneOnTheYAxisIsRefused) {
    ExpectRefusals({{"4", "0"}, {"12", "0"}, {"1", "0.5"}},
                   "box [Input Error] The minimum number of data points on the Y axis is 1|\n"
                   "You have choosen 0.|\nPlease correct entries.... (Ok)");
    ExpectRefusals({{"4", "-7"}}, "box [Input Error] The minimum number of data points on the Y axis is 1|\n"
                                  "You have choosen -7.|\nPlease correct entries.... (Ok)");
}

TEST_F(FrmSolidSetGrid, MoreThan300PointsAreRefusedWithTheirNumber) {
    const auto message = [](const char* points) {
        return std::string("box [Input Error] The maximum number of data points is 300|\nYou have choosen ") +
               points + ". (Ok)";
    };
    ExpectRefusals({{"10", "31"}}, message("310"));
    ExpectRefusals({{"7", "43"}, {"1", "301"}}, message("301"));
    ExpectRefusals({{"12", "32767"}}, message("393204"));
}

TEST_F(FrmSolidSetGrid, ACountThatIsNoNumberIsAnError) {
    for (const char* text : {"abc", " ", "1 2", "."}) {
        ExpectRaised(ErrorNumber::TypeMismatch, text, "4");
        ExpectRaised(ErrorNumber::TypeMismatch, "4", text);
    }
    ExpectRaised(ErrorNumber::Overflow, "40000", "4");
    ExpectRaised(ErrorNumber::Overflow, "4", "40000");
}

TEST_F(FrmSolidSetGrid, TheQuestionNamesBothCounts) {
    for (const Reply reply : {Reply::No, Reply::Cancel, Reply::None}) {
        EXPECT_EQ(SetUpGrid("4", "3", {reply}), (Lines{Question("4", "3")}));
    }
    EXPECT_EQ(SetUpGrid(" 12 ", "2.5", {Reply::No}), (Lines{Question("12", "2")})) << "as numbers";
    ExpectUntouched();
}

TEST_F(FrmSolidSetGrid, PositionsAreFilledYRunningFastest) {
    NumberCells(1, 5000);
    NumberCells(2, 6000);
    NumberCells(kVolume, 1000);
    EXPECT_EQ(SetUpGrid("2", "3", {Reply::Yes}), (Lines{Question("2", "3")}));
    EXPECT_EQ(Position(1), "1 1");
    EXPECT_EQ(Position(2), "1 2");
    EXPECT_EQ(Position(3), "1 3");
    EXPECT_EQ(Position(4), "2 1");
    EXPECT_EQ(Position(5), "2 2");
    EXPECT_EQ(Position(6), "2 3");
    for (int row = 7; row <= 300; ++row) {
        EXPECT_EQ(Position(row), " ");
    }
    for (int row = 1; row <= 300; ++row) {
        EXPECT_EQ(Volume(row), std::to_string(1000 + row));
        EXPECT_EQ(Grid().Cell(row, 0), std::to_string(row));
    }
    EXPECT_EQ(Position(0), "X Axis Y Axis");
}

TEST_F(FrmSolidSetGrid, TwelveBy25FillTheWholeGrid) {
    EXPECT_EQ(SetUpGrid("12", "25", {Reply::Yes}), (Lines{Question("12", "25")}));
    for (int row = 1; row <= 300; ++row) {
        EXPECT_EQ(Position(row),
                  std::to_string((row - 1) / 25 + 1) + " " + std::to_string((row - 1) % 25 + 1));
    }
}

TEST_F(FrmSolidSetGrid, OneByOneAndOneBy300AreTheLimits) {
    EXPECT_EQ(SetUpGrid("1", "300", {Reply::Yes}), (Lines{Question("1", "300")}));
    EXPECT_EQ(Position(300), "1 300");
    EXPECT_EQ(SetUpGrid("1", "1", {Reply::Yes}), (Lines{Question("1", "1")}));
    EXPECT_EQ(Position(1), "1 1");
    EXPECT_EQ(Position(2), " ");
    EXPECT_EQ(Position(300), " ");
}

TEST_F(FrmSolidSetGrid, CountsFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(SetUpGrid("3,5", "1.5", {Reply::No}), (Lines{Question("4", "2")}));
}

} // namespace

} // namespace orvel
