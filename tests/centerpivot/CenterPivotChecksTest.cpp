// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotChecks.h"

#include "tests/centerpivot/PivotFixture.h"

#include <array>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::NumberField;

constexpr const char* kNoMeasurements = "You Have Not Entered Any Irrigation Measurements.\r\n";
constexpr const char* kFewMeasurements = "You Have Entered Less Than 3 Irrigation Measurements.\r\n";
constexpr const char* kNoClient = "You Should Enter the Client Name.\r\n";
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

class CenterPivotChecksTest : public testing::PivotTest {
protected:
    CenterPivotChecksTest() { FillTest(); }

    // Runs the checks, which must find exactly these errors and warnings.
    void Expect(const std::string& errors, const std::string& warnings) {
        std::string lastText = Program().messageText;
        if (!errors.empty()) {
            lastText = "You Have Errors That Will Prevent Report Creation.\r\n\r\n" + errors +
                       "\r\n\r\nPlease Correct Entries.";
            messageBox.Expect({lastText, "Errors in Data", Buttons::Ok, Icon::Critical}, Reply::Ok);
        }
        if (!warnings.empty()) {
            lastText = "Potention Input Problems Were Found.\r\n\r\n" + warnings +
                       "\r\n\r\nThese May Not Be Errors, But Should Be Checked.";
            messageBox.Expect({lastText, "Possible Errors in Data", Buttons::Ok, Icon::Critical}, Reply::Ok);
        }
        EXPECT_EQ(CheckCenterPivotData(), errors.empty());
        EXPECT_EQ(Program().messageText, lastText);
    }

    void ExpectWarnings(const std::vector<float>& volumes, const std::string& warnings) {
        SetVolumes(volumes);
        Expect("", warnings);
    }
};

TEST_F(CenterPivotChecksTest, PassesACompleteTestInSilence) {
    Expect("", "");
    EXPECT_EQ(Program().messageReply, Reply::None);
}

TEST_F(CenterPivotChecksTest, KeepsTheReplyOfTheLastBox) {
    Test().ClientName = "";
    Expect(kNoClient, "");
    EXPECT_EQ(Program().messageReply, Reply::Ok);
}

TEST_F(CenterPivotChecksTest, WantsThreeMeasurements) {
    SetVolumes({10, 0, 0});
    Expect(kFewMeasurements, "");
    SetVolumes({10, 10, 0, 0, 10, 10});
    Expect(kFewMeasurements, "");
    SetVolumes({10, 10, 10});
    Expect("", "");
    SetVolumes({});
    Expect(std::string(kNoMeasurements) + kFewMeasurements, "");
    SetVolumes({0, 0, 10, 10, 10});
    Expect(std::string(kNoMeasurements) + kFewMeasurements, "");
}

TEST_F(CenterPivotChecksTest, WantsTheEntriesThatAReportNeeds) {
    Test().ClientName = "   ";
    Expect(kNoClient, "");
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
    const auto zero = [](int cup) {
        return "No Value Was Entered For Gauge: " + std::to_string(cup) + "\r\n";
    };
    const auto high = [](int cup) {
        return "The Value For Gauge " + std::to_string(cup) + " May be High (>200% of Average).\r\n";
    };
    const auto low = [](int cup) {
        return "The Value For Gauge " + std::to_string(cup) + " May be Low (<50% of Average).\r\n";
    };
    // Each list averages 10 cc.
    ExpectWarnings({20, 5, 5, 10}, "");
    ExpectWarnings({20.5F, 5, 9.5F, 5}, high(1));
    ExpectWarnings({4.9F, 15.1F, 10, 10}, low(1));
    ExpectWarnings({10, 0, 20, 10, 10}, zero(2));
    ExpectWarnings({0, 12, 0, 28, 4, 16}, zero(1) + zero(3) + high(4) + low(5));
    // What lies behind the list is neither counted nor remarked on.
    ExpectWarnings({10, 10, 10, 0, 0, 900, 1}, "");
    ExpectWarnings({-5, 15, 20}, low(1));
}

TEST_F(CenterPivotChecksTest, KeepsTheSumOfVolumesAsASingle) {
    constexpr float kTwo21 = 2097152.0F;
    constexpr float kTwo24 = 16777216.0F;
    const std::string highFirst = "The Value For Gauge 1 May be High (>200% of Average).\r\n";
    const auto low = [](int cup) {
        return "The Value For Gauge " + std::to_string(cup) + " May be Low (<50% of Average).\r\n";
    };
    // Added behind 2^24 the two ones are lost, and half of the average is exactly 2^21, which is not low ...
    ExpectWarnings({kTwo24, kTwo21, kTwo21, 1, 1}, highFirst + low(4) + low(5));
    // ... but added before it they count.
    ExpectWarnings({1, 1, kTwo24, kTwo21, kTwo21},
                   low(1) + low(2) + "The Value For Gauge 3 May be High (>200% of Average).\r\n" + low(4) +
                       low(5));
    // The bounds themselves, and a hair outside of them.
    ExpectWarnings({0.5F, 0.25F, 0.125F, 0.125F}, "");
    ExpectWarnings({0.5F + 0x1p-24F, 0.25F, 0.125F, 0.125F - 0x1p-24F}, highFirst + low(4));
}

TEST_F(CenterPivotChecksTest, ShowsErrorsThenWarnings) {
    Test().GuageSpacing = "";
    Test().RadLastSprinkler = "";
    SetVolumes({10, 0, 20, 10, 10});
    Expect(kNoSpacing, kRate + "No Value Was Entered For Gauge: 2\r\n");
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
    Test().ClientName = "";
    for (const int readings : {299, 300}) {
        SetEqualVolumes(readings);
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [] { std::ignore = CheckCenterPivotData(); });
    }
    SetEqualVolumes(298);
    Expect(kNoClient, "");
}

TEST_F(CenterPivotChecksTest, RaisesOverflowForAVolumeThatIsNoNumber) {
    for (const float volume :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        SetVolumes({10, volume, 10});
        ExpectRunTimeError(ErrorNumber::Overflow, [] { std::ignore = CheckCenterPivotData(); });
    }
    // One that is not counted is not looked at; a distance never is.
    SetVolumes({10, 10, 10, 0, 0, std::numeric_limits<float>::quiet_NaN()});
    Test().Gauges[1].Footage = std::numeric_limits<float>::infinity();
    Expect("", "");
}

} // namespace
} // namespace orvel
