// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/DataGraph.h"

#include "core/Text.h"
#include "tests/report/ReportFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace orvel {

namespace {

using testing::GermanNumbers;
using testing::RunsText;
using testing::SameText;

class DataGraph : public testing::ReportTest {
protected:
    struct Cup {
        float footage;
        float depth;
    };

    static void SetCups(float average, const std::vector<Cup>& cups) {
        PivotResults().AverageDepth = average;
        PivotResults().CupCount = static_cast<std::int16_t>(cups.size());
        for (std::size_t i = 0; i < cups.size(); ++i) {
            CupDepths()[i + 1] = {Single(static_cast<float>(i + 1)), cups[i].footage, cups[i].depth};
        }
    }

    std::string Draw() {
        AppendDataGraph(text, runs);
        return text;
    }

    std::size_t Longest() {
        std::istringstream lines(Draw());
        std::size_t longest = 0;
        for (std::string line; std::getline(lines, line);) {
            longest = std::max(longest, line.size() - 1);
        }
        return longest;
    }

    std::string text;
    ColorRunTable runs;
};

TEST_F(DataGraph, DrawsAScaleABarForEachCupAndTheAverage) {
    Pivot().PercentTimer = " 40 ";
    SetCups(0.5F, {{30.0F, 0.5F}, {50.4F, 0.35F}, {70.5F, 0.65F}});
    EXPECT_TRUE(
        SameText(Draw(), "Data and Graph Summary\r\n"
                         "\r\n"
                         "                           Inches of Water (40% timer setting)\r\n"
                         "             0.00      0.15      0.30      0.45      0.60      0.75      0.90\r\n"
                         " Feet   Meas  ||_________|_________|_________|_________|_________|_________|\r\n"
                         "   30   0.50  |_________________________________|\r\n"
                         "   50   0.35  |_______________________|\r\n"
                         "   71   0.65  |___________________________________________|\r\n"
                         "Average 0.50  |_________________________________|\r\n" +
                             RuleLine()));
    EXPECT_EQ(RunsText(runs, text), "1 306+31 '0.35  |_______________________|'\n"
                                    "2 347+51 '0.65  |___________________________________________|'\n");
}

TEST_F(DataGraph, TheRunsCountFromTheBeginningOfTheReport) {
    SetCups(1.0F, {{30.0F, 2.0F}});
    text = "\r\n\r\n";
    Draw();
    const auto start = static_cast<std::size_t>(runs.ColorRunStart[1]);
    EXPECT_EQ(start, text.find("2.00  |___"));
    EXPECT_EQ(text.substr(start + static_cast<std::size_t>(runs.ColorRunLength[1]) - 1, 3), "|\r\n");
}

TEST_F(DataGraph, ABlankTimerSettingLeavesItsPartOfTheHeadingOut) {
    SetCups(0.5F, {{30.0F, 0.5F}});
    Pivot().PercentTimer = "  ";
    EXPECT_NE(Draw().find("  Inches of Water\r\n"), std::string::npos);
    text.clear();
    Pivot().PercentTimer = "forty";
    EXPECT_NE(Draw().find("  Inches of Water\r\n"), std::string::npos);
    text.clear();
    Pivot().PercentTimer = "62.5";
    EXPECT_NE(Draw().find("  Inches of Water (63% timer setting)\r\n"), std::string::npos);
}

TEST_F(DataGraph, TheScaleFitsTheLargestDepth) {
    struct Scale {
        float depth;
        const char* lastTicks;
    };
    for (const Scale& each : std::initializer_list<Scale>{{0.0F, "      0.05      0.06\r\n"},
                                                          {0.06F, "      0.05      0.06\r\n"},
                                                          {0.07F, "      0.10      0.12\r\n"},
                                                          {0.13F, "      0.15      0.18\r\n"},
                                                          {0.2F, "      0.25      0.30\r\n"},
                                                          {0.31F, "      0.50      0.60\r\n"},
                                                          {0.6F, "      0.50      0.60\r\n"},
                                                          {0.6001F, "      0.75      0.90\r\n"},
                                                          {0.61F, "      0.75      0.90\r\n"},
                                                          {1.0F, "      1.00      1.20\r\n"},
                                                          {1.3F, "      1.50      1.80\r\n"},
                                                          {2.0F, "      2.50      3.00\r\n"},
                                                          {3.1F, "      5.00      6.00\r\n"},
                                                          {55.0F, "     50.00     60.00\r\n"},
                                                          {99.0F, "    100.00    120.00\r\n"}}) {
        SetCups(0.0F, {{30.0F, each.depth}});
        text.clear();
        EXPECT_NE(Draw().find(each.lastTicks), std::string::npos) << each.depth << "\n" << text;
    }
}

TEST_F(DataGraph, TheScaleFitsAnAverageThatNoCupReaches) {
    // What a calculation that ended early left.
    SetCups(0.7F, {{30.0F, 0.5F}});
    Draw();
    EXPECT_NE(text.find("      0.75      0.90\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nAverage 0.70  |" + std::string(47, '_') + "|\r\n"), std::string::npos) << text;
}

TEST_F(DataGraph, ABarEndsWhereTheScaleHasItsDepth) {
    SetCups(0.0F, {{30.0F, 0.3F}, {50.0F, 0.6F}, {70.0F, 0.0F}});
    Draw();
    const auto columnOf = [this](const std::string& part) {
        const std::size_t place = text.find(part) + part.size();
        return place - text.rfind('\n', place) - 1;
    };
    const std::size_t scale = columnOf(" Feet   Meas  |");
    EXPECT_EQ(columnOf("   30   0.30  |______________________________"), scale + 30);
    EXPECT_EQ(columnOf("   50   0.60  |____________________________________________________________"),
              scale + 60);
    EXPECT_EQ(columnOf("   70   0.00  |"), scale);
    EXPECT_NE(text.find("   70   0.00  ||\r\n"), std::string::npos);
}

TEST_F(DataGraph, LinesStayWithinEightyColumnsBelowAHundredInchesAndAHundredThousandFeet) {
    SetCups(99.99F, {{99999.0F, 99.99F}, {0.0F, 0.01F}});
    EXPECT_LE(Longest(), 80U);
    text.clear();
    SetCups(-99.999F, {{-99999.9F, -99.999F}, {99999.9F, 99.999F}});
    EXPECT_LE(Longest(), 80U);
}

TEST_F(DataGraph, WiderNumbersWidenTheirLineAndAreNeverCut) {
    SetCups(12345678.0F, {{1.0e10F, 12345678.0F}, {30.0F, 0.5F}});
    Draw();
    EXPECT_NE(text.find("\r\n10000000000 12345680.00  |_"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\n         30        0.50  ||\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nAverage     12345680.00  |_"), std::string::npos) << text;
}

TEST_F(DataGraph, AWideTimerSettingWidensTheHeadingAndIsNeverCut) {
    SetCups(0.5F, {{30.0F, 0.5F}});
    Pivot().PercentTimer = "1e30";
    EXPECT_NE(Draw().find("  Inches of Water (1" + std::string(30, '0') + "% timer setting)\r\n"),
              std::string::npos)
        << text;
}

TEST_F(DataGraph, DrawsNoCupsZerosAndNegativeDepths) {
    SetCups(0.0F, {});
    EXPECT_NE(Draw().find("_|\r\nAverage 0.00  ||\r\n"), std::string::npos);
    text.clear();
    SetCups(-0.5F, {{30.0F, -0.5F}, {50.0F, -0.9F}});
    Draw();
    EXPECT_NE(text.find("   30   -0.50  ||\r\n   50   -0.90  ||\r\nAverage -0.50  ||\r\n"), std::string::npos)
        << text;
    EXPECT_EQ(runs.ColorRunCount, 0);
}

TEST_F(DataGraph, ADistanceThatIsNoNumberIsShownAsAQuestionMark) {
    SetCups(0.5F, {{std::numeric_limits<float>::quiet_NaN(), 0.5F},
                   {std::numeric_limits<float>::infinity(), 0.5F}});
    Draw();
    EXPECT_NE(text.find("\r\n    ?   0.50  |_"), std::string::npos);
}

TEST_F(DataGraph, NumbersFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    SetCups(0.5F, {{30.0F, 0.5F}});
    EXPECT_NE(Draw().find("   30   0,50  |_"), std::string::npos);
}

} // namespace

} // namespace orvel
