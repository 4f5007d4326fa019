// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotChecks.h"

#include "tests/centerpivot/PivotFixture.h"
#include "tests/support/DataCheckTest.h"

#include <array>
#include <string>

namespace orvel {
namespace {

using testing::kFewMeasurements;
using testing::kNoClient;
using testing::kNoMeasurements;
using testing::NumberField;
using testing::ZeroCatch;

constexpr const char* kNoDiameter = "Rain Gauge Diameter Must be Entered.\r\n";
constexpr const char* kNoFirstDistance = "Distance to First Gauge Must be Entered.\r\n";
constexpr const char* kNoSpacing = "Gauge Spacing Must be Entered.\r\n";

const std::string kTimer =
    "The distance to the last tower;travel speed of the last tower; or percentage timer "
    "setting has not been entered. Without this information an application chart ( "
    "percentage timer chart) can not be generated. \r\n\r\n";
const std::string kRate =
    "The distance to the last tower, flow rate, overhang length, and radius of last sprinkler must beentered to "
    "calculate the Application Rate at the Last Tower.\r\n\r\n";
const std::string kAcres =
    "The distance to last tower, length of overhang, and end gun radius must be entered to "
    "compute the number acres irrigated.\r\n\r\n";
const std::string kFlow =
    "In order to calculate the GPM flow rate, the items required to compute the acreage and "
    "timer chart must be entered.\r\n\r\n";
const std::string kEfficiency =
    "In order to calculate the Water Application Efficiency data required to calculate the GPM flow rate and "
    "either estimated or measured flow rate must be entered.\r\n\r\n";

class CenterPivotChecksTest : public testing::DataCheckTest<testing::PivotTest, CheckCenterPivotData> {};

TEST_F(CenterPivotChecksTest, PassesACompleteTestInSilence) {
    Expect("", "");
}

TEST_F(CenterPivotChecksTest, WantsThreeMeasurements) {
    ExpectThreeMeasurementsWanted();
}

TEST_F(CenterPivotChecksTest, WantsTheEntriesThatAReportNeeds) {
    for (const char* blank : {"", "   "}) {
        Test().ClientName = blank;
        Expect(kNoClient, "");
    }
    FillTest();
    Test().GuageDiameter = "";
    Expect(kNoDiameter, "");
    FillTest();
    Test().DistanceToFirstGuage = "";
    Expect(kNoFirstDistance, "");
    FillTest();
    Test().GuageSpacing = "";
    Expect(kNoSpacing, "");
}

TEST_F(CenterPivotChecksTest, FindsEverythingInABlankTestErrorsFirst) {
    Test() = {};
    Expect(std::string(kNoMeasurements) + kFewMeasurements + kNoClient + kNoDiameter + kNoFirstDistance +
               kNoSpacing,
           kTimer + kRate + kAcres + kFlow + kEfficiency);
}

TEST_F(CenterPivotChecksTest, WarnsOfEachMissingInput) {
    struct Case {
        NumberField blank;
        std::string warnings;
    };
    const std::array cases = {
        Case{&CenterPivotTest::PercentTimer, kTimer + kFlow + kEfficiency},
        Case{&CenterPivotTest::TravelSpeedFeet, kTimer + kFlow + kEfficiency},
        Case{&CenterPivotTest::TravelSpeedMinutes, kTimer + kFlow + kEfficiency},
        Case{&CenterPivotTest::TravelSpeedSeconds, ""},
        Case{&CenterPivotTest::DistanceToTower, kTimer + kRate + kAcres + kFlow + kEfficiency},
        Case{&CenterPivotTest::LengthOverhang, kRate + kAcres + kFlow + kEfficiency},
        Case{&CenterPivotTest::EndGunRadius, kAcres + kFlow + kEfficiency},
        Case{&CenterPivotTest::RadLastSprinkler, kRate},
        Case{&CenterPivotTest::EstFlowRate, ""},
        Case{&CenterPivotTest::MeasuredFlowRate, ""},
        Case{&CenterPivotTest::TotalAcres, ""},
        Case{&CenterPivotTest::EstimatedPressure, ""},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(i);
        FillTest();
        Test().*cases.at(i).blank = "    ";
        Expect("", cases.at(i).warnings);
    }
}

TEST_F(CenterPivotChecksTest, WarnsWhenBothFlowRatesAreMissing) {
    Test().EstFlowRate = "";
    Test().MeasuredFlowRate = "";
    Expect("", kRate + kEfficiency);
    Test().EndGunRadius = "";
    Expect("", kRate + kAcres + kFlow + kEfficiency);
}

TEST_F(CenterPivotChecksTest, DoesNotReadTheEntriesAsNumbers) {
    Test().PercentTimer = "abc";
    Test().GuageDiameter = "0";
    Test().EstFlowRate = "none";
    Expect("", "");
}

TEST_F(CenterPivotChecksTest, RemarksOnCatchesFarFromTheAverageVolume) {
    ExpectRemarksOnCatches();
}

TEST_F(CenterPivotChecksTest, KeepsSumAverageAndBoundsAsSingles) {
    ExpectSumAverageAndBoundsKeptAsSingles();
}

TEST_F(CenterPivotChecksTest, ShowsErrorsThenWarnings) {
    Test().GuageSpacing = "";
    Test().RadLastSprinkler = "";
    SetVolumes({10, 0, 20, 10, 10});
    Expect(kNoSpacing, kRate + ZeroCatch(2));
}

TEST_F(CenterPivotChecksTest, TrimsEveryFieldItLooksAt) {
    constexpr std::array kLookedAt = {
        &CenterPivotTest::GuageDiameter,      &CenterPivotTest::DistanceToFirstGuage,
        &CenterPivotTest::GuageSpacing,       &CenterPivotTest::PercentTimer,
        &CenterPivotTest::DistanceToTower,    &CenterPivotTest::TravelSpeedFeet,
        &CenterPivotTest::TravelSpeedMinutes, &CenterPivotTest::EstFlowRate,
        &CenterPivotTest::MeasuredFlowRate,   &CenterPivotTest::LengthOverhang,
        &CenterPivotTest::RadLastSprinkler,   &CenterPivotTest::EndGunRadius,
    };
    for (NumberField field : kLookedAt) {
        Test().*field = "  12";
    }
    Test().ClientName = "  A. Client";
    Test().FarmName = "  Farm";
    Test().TravelSpeedSeconds = "  12";
    Test().TotalAcres = "  12";
    Expect("", "");
    for (NumberField field : kLookedAt) {
        EXPECT_EQ((Test().*field).Whole(), "12                  ");
    }
    EXPECT_EQ(Test().ClientName.Whole(), "A. Client                          ");
    // Those it does not look at stay.
    EXPECT_EQ(Test().FarmName.Whole().substr(0, 6), "  Farm");
    EXPECT_EQ(Test().TravelSpeedSeconds.Whole().substr(0, 4), "  12");
    EXPECT_EQ(Test().TotalAcres.Whole().substr(0, 4), "  12");
}

TEST_F(CenterPivotChecksTest, LooksAtAllFieldsThoughTheFirstIsBlank) {
    Test().PercentTimer = "";
    Test().EstFlowRate = "";
    Test().TravelSpeedMinutes = " 10";
    Test().MeasuredFlowRate = " 10";
    Test().DistanceToTower = "";
    Test().EndGunRadius = " 10";
    Test().RadLastSprinkler = " 10";
    Expect("", kTimer + kRate + kAcres + kFlow + kEfficiency);
    for (NumberField field : {&CenterPivotTest::TravelSpeedMinutes, &CenterPivotTest::MeasuredFlowRate,
                              &CenterPivotTest::EndGunRadius, &CenterPivotTest::RadLastSprinkler}) {
        EXPECT_EQ((Test().*field).Whole().substr(0, 3), "10 ");
    }
}

TEST_F(CenterPivotChecksTest, LeavesAnEndlessListToItsCaller) {
    ExpectEndlessListRaises();
}

TEST_F(CenterPivotChecksTest, RaisesOverflowForAVolumeThatIsNoNumber) {
    ExpectVolumeThatIsNoNumberRaises(&PivotGauge::Footage);
}

} // namespace
} // namespace orvel
