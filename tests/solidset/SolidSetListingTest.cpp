// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetListing.h"

#include "tests/solidset/SolidSetFixture.h"
#include "tests/support/ListingCases.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::kRuleLine;
using testing::SameText;

const std::string kHead = "     Cup    X Axis    Y Axis    Volume\r\n";

class SolidSetListing : public testing::SolidTest {
protected:
    SolidSetListing() { FillTest(); }

    // The part that lists the cups, without its rules.
    static std::string Cups() { return testing::CupsOfListing(SolidSetListingText(), kHead); }
};

TEST_F(SolidSetListing, ListsEveryFieldAndEveryMeasurement) {
    Test().ClientName = "  Marsh Hollow Nursery";
    Test().ObservedLeaks = true;
    SetVolumes({113.7F, 0, 1234567.0F, 9});
    Test().Gauges[2].XAxis = 0.0F;
    EXPECT_TRUE(SameText(
        SolidSetListingText(),
        "                                 Solid Set Data                                 \r\n" + kRuleLine +
            "Client Name:                      Marsh Hollow Nursery\r\n"
            "Date of Test:                     06/12/1997\r\n"
            "Farm Operator:                    D. Okafor\r\n"
            "Address:                          48 Sawmill Lane\r\n"
            "City:                             Marsh Hollow\r\n"
            "County:                           Sample\r\n"
            "Zip Code:                         00000\r\n"
            "State:                            XX\r\n"
            "Phone:                            555-0139\r\n"
            "E-Mail:                           yard@nursery.example\r\n"
            "Farm Name:                        River Block\r\n"
            "Field Name or Identifier:         Block 7\r\n"
            "Soil Type:                        Sandy Loam\r\n"
            "Soil Slope:                       0-1 Percent\r\n"
            "Predominate Crops:                Container stock\r\n"
            "Common Tillage:                   No Till\r\n"
            "Comments:\r\n"
            "Level.\r\n"
            "Sprinkler Manufacturer:           Nelson\r\n"
            "Sprinker Age:                     4 years\r\n"
            "Sprinkler Comments:\r\n"
            "All turn.\r\n"
            "Estimated Flow Rate:              12\r\n"
            "Measured Flow Rate:               11.5\r\n"
            "Estimated Pressure:               50\r\n"
            "Measured Pressure:                48\r\n"
            "Number Gauges (X Axis):           4\r\n"
            "Number Gauges (Y Axis):           3\r\n"
            "Leaks Observed                    True\r\n"
            "Operation Times:                  Nighttime Only\r\n"
            "Rain Gauge Diameter (cm):         10\r\n"
            "Estimated Area:                   2.5\r\n"
            "Comments Recomendations\r\n"
            "Repeat.\r\n"
            "Sprinkler Head Configuration:     T\r\n"
            "Sprinkler Spacing:                80 by 80 ft\r\n"
            "Duration of Test (minutes):       60\r\n" +
            kRuleLine + kHead +
            "      01         1         1       114\r\n"
            "      02                   2          \r\n"
            "      03         1         3   1234567\r\n"
            "      04         2         1         9\r\n" +
            kRuleLine));
}

TEST_F(SolidSetListing, TakesEachValueFromItsOwnField) {
    testing::ExpectEachFieldOnItsLine(Test(), kSolidSetFields, 32, SolidSetListingText);
}

TEST_F(SolidSetListing, OfABlankTestHasEveryLabel) {
    Test() = {};
    const std::string blank = SolidSetListingText();
    EXPECT_EQ(std::ranges::count(blank, '\n'), 42);
    EXPECT_NE(blank.find("\r\nLeaks Observed                    False\r\n"), std::string::npos);
    EXPECT_NE(blank.find("\r\nSprinkler Head Configuration:     \r\n"), std::string::npos);
    EXPECT_NE(blank.find("\r\nComments Recomendations\r\n\r\n"), std::string::npos);
    EXPECT_EQ(Cups(), "");
}

TEST_F(SolidSetListing, ListsUpToTheLastEntryThatHoldsAnything) {
    SetVolumes({});
    Test().Gauges[1].XAxis = 30;
    Test().Gauges[2].Volume = 5;
    Test().Gauges[4].Spare = 1;
    EXPECT_TRUE(SameText(Cups(), "      01        30                    \r\n"
                                 "      02                             5\r\n"
                                 "      03                              \r\n"
                                 "      04                              \r\n"));
    Test().Gauges[4].Spare = 0;
    Test().Gauges[2].Volume = 0;
    Test().Gauges[0].Volume = 7;
    EXPECT_TRUE(SameText(Cups(), "      01        30                    \r\n")) << "entry 0 is not used";
}

TEST_F(SolidSetListing, ListsAllThreeHundredEntries) {
    SetEqualVolumes(300);
    const std::string cups = Cups();
    EXPECT_EQ(std::ranges::count(cups, '\n'), 300);
    EXPECT_NE(
        cups.find("      99        33         3       100\r\n     100        34         1       100\r\n"),
        std::string::npos);
    EXPECT_TRUE(cups.ends_with("     300       100         3       100\r\n"));
}

TEST_F(SolidSetListing, RoundsToWholeNumbersHalvesAway) {
    SetVolumes({2.5F, 0.4F, 123456.5F, -3});
    Test().Gauges[1].XAxis = 22.5F;
    Test().Gauges[1].YAxis = 0.5F;
    Test().Gauges[2].XAxis = -0.2F;
    EXPECT_TRUE(SameText(Cups(), "      01        23         1         3\r\n"
                                 "      02                   2          \r\n"
                                 "      03         1         3    123457\r\n"
                                 "      04         2         1        -3\r\n"));
}

TEST_F(SolidSetListing, CutsNoNumberHoweverWide) {
    SetVolumes({1.0e10F, 5});
    Test().Gauges[1].YAxis = -1234567.0F * 1000;
    Test().Gauges[2].XAxis = 1.0e9F;
    EXPECT_TRUE(SameText(Cups(), "      01         1 -1234567000 10000000000\r\n"
                                 "      02 1000000000         2         5\r\n"));
}

TEST_F(SolidSetListing, LeavesTheRecordAsItIs) {
    Test().ClientName = "  Name";
    Test().Duration = " 60";
    Test().Gauges[5].Volume = -0.0F;
    testing::ExpectListingLeavesRecord(Test(), SolidSetListingText);
}

TEST_F(SolidSetListing, RaisesOverflowForANumberThatIsNone) {
    for (const float value :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        for (const auto number : {&SolidSetGauge::XAxis, &SolidSetGauge::YAxis, &SolidSetGauge::Volume}) {
            SetVolumes({100});
            Test().Gauges[1].*number = value;
            ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = SolidSetListingText(); });
        }
    }
}

} // namespace

} // namespace orvel
