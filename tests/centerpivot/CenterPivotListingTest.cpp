// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotListing.h"

#include "tests/centerpivot/PivotFixture.h"
#include "tests/support/ListingCases.h"

#include <algorithm>
#include <limits>
#include <string>
#include <tuple>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::kRuleLine;
using testing::SameText;

const std::string kHead = "     Cup   Footage    Volume\r\n";

class CenterPivotListingTest : public testing::PivotTest {
protected:
    // The part that lists the cups, without its rules.
    static std::string Cups() { return testing::CupsOfListing(CenterPivotListingText(), kHead); }
};

TEST_F(CenterPivotListingTest, ListsEveryFieldUnderItsLabel) {
    FillTest();
    Test().ClientName = "  Alder Creek Farms";
    SetVolumes({141, 159.5F});
    EXPECT_TRUE(SameText(
        CenterPivotListingText(),
        "                                Center Pivot Data                               \r\n" + kRuleLine +
            "Client Name:                      Alder Creek Farms\r\n"
            "Date of Test:                     08/15/1978\r\n"
            "Farm Name:                        Home Place\r\n"
            "Farm Operator:                    R. Lindqvist\r\n"
            "Address:                          1200 County Road 14\r\n"
            "City:                             Alder Creek\r\n"
            "County:                           Sample\r\n"
            "Zip Code:                         00000\r\n"
            "State:                            XX\r\n"
            "Phone:                            555-0114\r\n"
            "E-Mail:                           office@farm.example\r\n"
            "Client Farm Name:                 Home Place (copy)\r\n"
            "Field Name or Identifier:         North quarter\r\n"
            "Soil Type:                        4 - Loam\r\n"
            "Soil Slope:                       1-3 Percent\r\n"
            "Predominate Crops:                Corn-Alfalfa\r\n"
            "Common Tillage:                   No Till\r\n"
            "Comments:\r\n"
            "Stubble.\r\n"
            "Comments:\r\n"
            "Serviced.\r\n"
            "System Manufacturer:              Reinke\r\n"
            "Type Sprinkler:                   LEPA\r\n"
            "System Age:                       6 years\r\n"
            "Sprinker Age:                     2 years\r\n"
            "Distance to Last Tower (feet):    1380\r\n"
            "Estimated Flow Rate (GPM):        900\r\n"
            "Measured Flow Rate (GPM):         1000\r\n"
            "Estimated Pressure:               45\r\n"
            "Measured Pressure:                42\r\n"
            "Has End Gun                       True\r\n"
            "Has End Gun Shutoff               False\r\n"
            "End Gun Arc:                      180\r\n"
            "Leaks Observed                    True\r\n"
            "Operation Times:                  Daytime Only\r\n"
            "Percent Timer Setting:            40\r\n"
            "Rain Gauge Diameter (cm):         10\r\n"
            "Distance to First Gauge (feet):   30\r\n"
            "Distance in Feet:                 36\r\n"
            "In Minutes:                       10\r\n"
            "and Seconds:                      0\r\n"
            "Gauge Spacing (feet):             20\r\n"
            "Estimated Acres:                  150\r\n"
            "Estimated Acres - End Gun:        6\r\n"
            "General Comments\r\n"
            "Repeat.\r\n"
            "End Gun Overhang (feet):          40\r\n"
            "End Gun Radius (feet):            30\r\n"
            "Radius of Last Sprinkler (feet):  35\r\n" +
            kRuleLine + kHead +
            "      01        30       141\r\n"
            "      02        50       160\r\n" +
            kRuleLine));
}

TEST_F(CenterPivotListingTest, TakesEachValueFromItsOwnField) {
    testing::ExpectEachFieldOnItsLine(Test(), kCenterPivotFields, 43, CenterPivotListingText);
}

TEST_F(CenterPivotListingTest, LeavesTheRecordAsItIs) {
    FillTest();
    Test().ClientName = "  Alder";
    Test().PercentTimer = " 40";
    testing::ExpectListingLeavesRecord(Test(), CenterPivotListingText);
}

TEST_F(CenterPivotListingTest, ListsUpToTheLastEntryThatHoldsAnything) {
    EXPECT_EQ(Cups(), "");
    Test().Gauges[1].Footage = 30;
    Test().Gauges[2].Volume = 5;
    Test().Gauges[5].Sequence = 5;
    EXPECT_TRUE(SameText(Cups(), "      01        30          \r\n"
                                 "      02                   5\r\n"
                                 "      03                    \r\n"
                                 "      04                    \r\n"
                                 "      05                    \r\n"));
}

TEST_F(CenterPivotListingTest, GoesByTheBytesAndNotByTheNumbers) {
    Test().Gauges[1].Spare = 1;
    Test().Gauges[2].Volume = -0.0F;
    EXPECT_TRUE(SameText(Cups(), "      01                    \r\n"
                                 "      02                    \r\n"));
    Test().Gauges[0].Volume = 7;
    Test().Gauges[1].Spare = 0;
    Test().Gauges[2].Volume = 0;
    EXPECT_EQ(Cups(), "") << "entry 0 is not used";
}

TEST_F(CenterPivotListingTest, ListsAllThreeHundredEntries) {
    SetEqualVolumes(300);
    const std::string cups = Cups();
    EXPECT_EQ(std::ranges::count(cups, '\n'), 300);
    EXPECT_TRUE(cups.starts_with("      01        30       100\r\n"));
    EXPECT_NE(cups.find("      99      1990       100\r\n     100      2010       100\r\n"),
              std::string::npos);
    EXPECT_TRUE(cups.ends_with("     300      6010       100\r\n"));
}

TEST_F(CenterPivotListingTest, RoundsToWholeNumbersHalvesAway) {
    SetCups({2.5F, 0.4F, 123456.5F, -3}, {22.5F, 0.5F, 1234567.0F, -0.2F});
    EXPECT_TRUE(SameText(Cups(), "      01        23         3\r\n"
                                 "      02         1          \r\n"
                                 "      03   1234567    123457\r\n"
                                 "      04                  -3\r\n"));
}

TEST_F(CenterPivotListingTest, WidensALineForANumberThatIsWiderThanItsColumn) {
    SetCups({5, 123456792.0F, 1e10F}, {1e10F, 1234567936.0F, 30});
    EXPECT_TRUE(SameText(Cups(), "      01 10000000000         5\r\n"
                                 "      02 1234568000 123456800\r\n"
                                 "      03        30 10000000000\r\n"));
}

TEST_F(CenterPivotListingTest, RaisesOverflowForANumberThatIsNone) {
    for (const float value :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        SetCups({value}, {30});
        ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CenterPivotListingText(); });
        SetCups({100}, {value});
        ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CenterPivotListingText(); });
    }
}

} // namespace
} // namespace orvel
