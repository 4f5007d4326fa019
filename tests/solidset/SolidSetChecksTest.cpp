// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetChecks.h"

#include "tests/solidset/SolidSetFixture.h"
#include "tests/support/DataCheckTest.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

using testing::kFewMeasurements;
using testing::kNoClient;
using testing::kNoMeasurements;
using testing::LowCatch;
using testing::SolidNumberField;
using testing::ZeroCatch;

constexpr const char* kNoDiameter = "Rain Gauge (Collection Cup) Diameter Must be Entered.\r\n";
constexpr const char* kNoX = "The X Axis Must be Entered.\r\n";
constexpr const char* kNoY = "The Y Axis Must be Entered.\r\n";

class SolidSetChecks : public testing::DataCheckTest<testing::SolidTest, SolidSetDataCheck> {};

TEST_F(SolidSetChecks, PassesACompleteTestInSilence) {
    Expect("", "");
}

TEST_F(SolidSetChecks, WantsThreeMeasurements) {
    ExpectThreeMeasurementsWanted();
}

TEST_F(SolidSetChecks, WantsTheEntriesThatAReportNeeds) {
    Test().ClientName = "   ";
    Expect(kNoClient, "");
    FillTest();
    Test().GuageDiameter = "  ";
    Expect(kNoDiameter, "");
    FillTest();
    Test().NumberX = "0";
    Expect(kNoX, "");
    FillTest();
    Test().NumberY = "0";
    Expect(kNoY, "");
}

TEST_F(SolidSetChecks, FindsEveryErrorInItsOrder) {
    SetVolumes({});
    Test().ClientName = "";
    Test().GuageDiameter = "";
    Test().NumberX = "0";
    Test().NumberY = "-2";
    Expect(std::string(kNoMeasurements) + kFewMeasurements + kNoClient + kNoDiameter + kNoX + kNoY, "");
}

TEST_F(SolidSetChecks, WantsNumbersOfCupsAboveZeroOnceRounded) {
    struct Case {
        const char* entry;
        bool passes;
    };
    constexpr std::array kCases = {Case{"1", true},         Case{"32767", true}, Case{"2.5", true},
                                   Case{"0.5000001", true}, Case{"1e1", true},   Case{"0", false},
                                   Case{"-2", false},       Case{"-1", false},   Case{"0.5", false},
                                   Case{"-0.4", false},     Case{"0.0", false},  Case{"-32768", false}};
    for (const Case& row : kCases) {
        SCOPED_TRACE(row.entry);
        FillTest();
        Test().NumberX = row.entry;
        Expect(row.passes ? "" : kNoX, "");
        FillTest();
        Test().NumberY = row.entry;
        Expect(row.passes ? "" : kNoY, "");
    }
}

TEST_F(SolidSetChecks, ANumberOfCupsThatCannotBeReadEndsTheCheckWithoutABox) {
    for (const SolidNumberField axis : {&SolidSetTest::NumberX, &SolidSetTest::NumberY}) {
        for (const char* text : {"", "   ", "four", "4x", "1.2.3"}) {
            SCOPED_TRACE(text);
            // What was found before, and what would be found behind, is lost.
            FillTest();
            SetVolumes({10, 0, 40, 10});
            Test().ClientName = "";
            Test().*axis = text;
            ExpectRaised(ErrorNumber::TypeMismatch);
        }
        for (const char* text : {"32768", "-32769", "1e9"}) {
            FillTest();
            Test().*axis = text;
            ExpectRaised(ErrorNumber::Overflow);
        }
    }
}

TEST_F(SolidSetChecks, TrimsUpToTheFieldThatEndedIt) {
    Test().ClientName = "  A. Client";
    Test().GuageDiameter = "  10";
    Test().NumberX = "  four";
    Test().NumberY = "  3";
    ExpectRaised(ErrorNumber::TypeMismatch);
    EXPECT_EQ(Test().ClientName.Whole().substr(0, 2), "A.");
    EXPECT_EQ(Test().GuageDiameter.Whole().substr(0, 3), "10 ");
    EXPECT_EQ(Test().NumberX.Whole(), "four                ");
    EXPECT_EQ(Test().NumberY.Whole().substr(0, 3), "  3");
}

TEST_F(SolidSetChecks, TrimsTheFourFieldsItTestsAndNoOther) {
    for (const SolidNumberField field : {&SolidSetTest::GuageDiameter, &SolidSetTest::NumberX,
                                         &SolidSetTest::NumberY, &SolidSetTest::Duration}) {
        Test().*field = "  12";
    }
    Test().ClientName = "  A. Client";
    Test().FarmName = "  Farm";
    Expect("", "");
    for (const SolidNumberField field :
         {&SolidSetTest::GuageDiameter, &SolidSetTest::NumberX, &SolidSetTest::NumberY}) {
        EXPECT_EQ((Test().*field).Whole(), "12                  ");
    }
    EXPECT_EQ(Test().ClientName.Whole(), "A. Client                          ");
    EXPECT_EQ(Test().Duration.Whole().substr(0, 4), "  12");
    EXPECT_EQ(Test().FarmName.Whole().substr(0, 6), "  Farm");
}

TEST_F(SolidSetChecks, ReadsNoOtherEntryAsANumber) {
    Test().GuageDiameter = "wide";
    Test().Duration = "long";
    Test().TotalAcres = "";
    // Nor does it compare the grid with the list of cups.
    Test().NumberX = "99";
    Expect("", "");
}

TEST_F(SolidSetChecks, ReadsNumbersOfCupsByTheLocale) {
    UseNumberLocale(testing::GermanNumbers());
    Test().NumberX = "0,5";
    Test().NumberY = "4,0";
    Expect(kNoX, "");
}

TEST_F(SolidSetChecks, RemarksOnCatchesFarFromTheAverageVolume) {
    ExpectRemarksOnCatches();
}

TEST_F(SolidSetChecks, KeepsSumAverageAndBoundsAsSingles) {
    ExpectSumAverageAndBoundsKeptAsSingles();
}

TEST_F(SolidSetChecks, ShowsTheErrorsFirstAndTheWarningsAllTheSame) {
    SetVolumes({10, 100});
    Expect(kFewMeasurements, LowCatch(1));
    SetVolumes({10, 0, 20, 10, 10});
    Test().NumberY = "0";
    Test().ClientName = "";
    Expect(std::string(kNoClient) + kNoY, ZeroCatch(2));
}

TEST_F(SolidSetChecks, LeavesAnEndlessListToItsCaller) {
    ExpectEndlessListRaises();
}

TEST_F(SolidSetChecks, RaisesOverflowForAVolumeThatIsNoNumber) {
    ExpectVolumeThatIsNoNumberRaises(&SolidSetGauge::XAxis);
}

} // namespace

} // namespace orvel
