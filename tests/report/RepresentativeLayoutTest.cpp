// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RepresentativeLayout.h"

#include "tests/report/ReportFixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;
using testing::RunsText;
using testing::SameText;

class RepresentativeLayout : public testing::ReportTest {
protected:
    static void SetGrid(int numberX, int numberY, const char* layout, const std::vector<float>& depths) {
        Solid().NumberX = std::to_string(numberX);
        Solid().NumberY = std::to_string(numberY);
        Solid().Layout = layout;
        SolidResults().SolidSetAverageDepth = 1.0F;
        SolidResults().SolidSetCupCount = static_cast<std::int16_t>(depths.size());
        std::ranges::copy(depths, SolidResults().SolidSetDepths.begin() + 1);
    }

    std::string Draw() {
        text.clear();
        runs = {};
        AppendRepresentativeLayout(text, runs);
        return text;
    }

    // The lines of the drawing from the first row of cups on.
    std::vector<std::string> Rows() {
        std::istringstream stream(Draw());
        std::vector<std::string> rows;
        for (std::string line; std::getline(stream, line);) {
            line.pop_back();
            rows.push_back(line);
        }
        rows.erase(rows.begin(), rows.begin() + 4);
        return rows;
    }

    std::string text;
    ColorRunTable runs;
};

TEST_F(RepresentativeLayout, DrawsXAcrossAndYDownBetweenTheHeadsOfASquare) {
    SetGrid(2, 3, "S", {1.0F, 1.1F, 1.2F, 1.3F, 0.75F, 0.8F});
    EXPECT_TRUE(SameText(Draw(), "Uniformity Analysis - Representative Layout\r\n"
                                 "\r\n"
                                 "       X Axis\r\n"
                                 "Y Axis      1     2\r\n"
                                 "      +            +\r\n"
                                 "     1   1.00  1.30\r\n"
                                 "     2   1.10  0.75\r\n"
                                 "     3   1.20  0.80\r\n"
                                 "      +            +\r\n"
                                 "\r\n"
                                 "+ denotes relative sprinkler head location\r\n"));
    EXPECT_EQ(RunsText(runs, text), "2 120+4 '1.30'\n1 141+4 '0.75'\n");
}

TEST_F(RepresentativeLayout, TheThirdHeadOfATriangleIsInTheMiddle) {
    SetGrid(4, 1, "T", {1.0F, 1.0F, 1.0F, 1.0F});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"      +                        +",
                                                "     1   1.00  1.00  1.00  1.00", "                  +", "",
                                                "+ denotes relative sprinkler head location"}));
}

TEST_F(RepresentativeLayout, WithoutALayoutThereAreNoHeadsAndNoNote) {
    for (const char* layout : {"", "s", "X"}) {
        SetGrid(1, 1, layout, {1.0F});
        EXPECT_EQ(Rows(), (std::vector<std::string>{"     1   1.00"})) << layout;
        EXPECT_EQ(text.find('+'), std::string::npos);
    }
}

TEST_F(RepresentativeLayout, PointsBehindTheCountedCupsAreBlankAndUncoloured) {
    SetGrid(2, 2, "", {1.0F, 2.0F, 0.5F});
    SolidResults().SolidSetDepths[4] = 9.0F;
    EXPECT_EQ(Rows(), (std::vector<std::string>{"     1   1.00  0.50", "     2   2.00      "}));
    EXPECT_EQ(runs.ColorRunCount, 2);
}

TEST_F(RepresentativeLayout, EveryGridThatTheProgramAllowsFitsInEightyColumns) {
    for (int x = 1; x <= 12; ++x) {
        for (const int y : {1, 2, 300 / x}) {
            SetGrid(x, y, "S", std::vector<float>(static_cast<std::size_t>(x * y), 99.99F));
            const std::vector<std::string> rows = Rows();
            EXPECT_EQ(rows.size(), static_cast<std::size_t>(y) + 4);
            for (const std::string& row : rows) {
                EXPECT_LE(row.size(), 80U) << row;
            }
            EXPECT_EQ(runs.ColorRunCount, x * y) << x << " by " << y;
        }
    }
}

TEST_F(RepresentativeLayout, WiderDepthsWidenTheirLineAndAreNeverCut) {
    SetGrid(2, 1, "", {12345.678F, 1.0F});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"     1  12345.68     1.00"}));
    SetGrid(1, 1, "T", {12345.678F});
    EXPECT_EQ(Rows().at(2), "           +") << "a middle between two columns is the right one of them";
}

TEST_F(RepresentativeLayout, PointsBehindTheThreeHundredthAreLeftOut) {
    SetGrid(32767, 32767, "S", std::vector<float>(298, 1.0F));
    EXPECT_EQ(Rows().size(), 300U + 4U);
    SetGrid(3, 200, "", std::vector<float>(298, 1.0F));
    const std::vector<std::string> rows = Rows();
    EXPECT_EQ(rows.size(), 200U);
    EXPECT_EQ(rows[97], "    98   1.00  1.00");
    EXPECT_EQ(rows[98], "    99   1.00      ");
    SetGrid(32767, 1, "", std::vector<float>(298, 1.0F));
    EXPECT_EQ(Rows().at(0).size(), 7U + 300U * 6U);
}

TEST_F(RepresentativeLayout, DrawsNoCupsZerosAndAnAverageOfZero) {
    SetGrid(2, 1, "", {});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"     1             "}));
    SetGrid(2, 1, "", {0.0F, -0.5F});
    SolidResults().SolidSetAverageDepth = 0.0F;
    EXPECT_EQ(Rows(), (std::vector<std::string>{"     1   0.00 -0.50"}));
    EXPECT_EQ(runs.ColorRunCount, 0);
}

TEST_F(RepresentativeLayout, NumbersFollowTheLocale) {
    UseNumberLocale(GermanNumbers());
    SetGrid(1, 1, "", {1.5F});
    EXPECT_EQ(Rows(), (std::vector<std::string>{"     1   1,50"}));
    EXPECT_EQ(RunsText(runs, text), "2 86+4 '1,50'\n");
}

TEST_F(RepresentativeLayout, AnAxisThatIsNoNumberIsARunTimeError) {
    SetGrid(1, 1, "", {1.0F});
    Solid().NumberY = "many";
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { Draw(); });
}

} // namespace

} // namespace orvel
