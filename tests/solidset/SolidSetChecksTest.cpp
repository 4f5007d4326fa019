// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetChecks.h"

#include "tests/solidset/SolidSetFixture.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::SolidNumberField;

constexpr const char* kNoMeasurements = "You Have Not Entered Any Irrigation Measurements.\r\n";
constexpr const char* kFewMeasurements = "You Have Entered Less Than 3 Irrigation Measurements.\r\n";
constexpr const char* kNoClient = "You Should Enter the Client Name.\r\n";
constexpr const char* kNoDiameter = "Rain Gauge (Collection Cup) Diameter Must be Entered.\r\n";
constexpr const char* kNoX = "The X Axis Must be Entered.\r\n";
constexpr const char* kNoY = "The Y Axis Must be Entered.\r\n";

std::string Zero(int cup) {
    return "No Value Was Entered For Gauge: " + std::to_string(cup) + "\r\n";
}

std::string High(int cup) {
    return "The Value For Gauge " + std::to_string(cup) + " May be High (>200% of Average).\r\n";
}

std::string Low(int cup) {
    return "The Value For Gauge " + std::to_string(cup) + " May be Low (<50% of Average).\r\n";
}

class SolidSetChecks : public testing::SolidTest {
protected:
    SolidSetChecks() { FillTest(); }

    // Runs the check, which must find exactly these errors and warnings, and keep the last box.
    void Expect(const std::string& errors, const std::string& warnings) {
        std::string lastText = "what was said before";
        Program().messageText = lastText;
        Program().messageReply = Reply::No;
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
        EXPECT_EQ(SolidSetDataCheck(), errors.empty());
        EXPECT_EQ(Program().messageText, lastText);
        EXPECT_EQ(Program().messageReply, errors.empty() && warnings.empty() ? Reply::No : Reply::Ok);
    }

    void ExpectWarnings(const std::vector<float>& volumes, const std::string& warnings) {
        SetVolumes(volumes);
        Expect("", warnings);
    }

    // The check ends before it shows anything.
    static void ExpectRaised(ErrorNumber number) {
        ExpectRunTimeError(number, [] { std::ignore = SolidSetDataCheck(); });
        EXPECT_EQ(Program().messageText, "");
    }
};

TEST_F(SolidSetChecks, PassesACompleteTestInSilence) {
    Expect("", "");
}

TEST_F(SolidSetChecks, WantsThreeMeasurements) {
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
    ExpectWarnings({1, 0, 3, 0, 0}, Zero(2) + High(3));
    // Each of these lists averages 10 cc.
    ExpectWarnings({20, 5, 5, 10}, "");
    ExpectWarnings({20.5F, 5, 9.5F, 5}, High(1));
    ExpectWarnings({4.9F, 15.1F, 10, 10}, Low(1));
    ExpectWarnings({10, 0, 20, 10, 10}, Zero(2));
    ExpectWarnings({0, 12, 0, 28, 4, 16}, Zero(1) + Zero(3) + High(4) + Low(5));
    // What lies behind the list is neither counted nor remarked on.
    ExpectWarnings({10, 10, 10, 0, 0, 900, 1}, "");
    ExpectWarnings({-5, 15, 20}, Low(1));
    // A gauge's number has no padding.
    std::vector<float> volumes(100, 10.0F);
    volumes.at(99) = 30;
    ExpectWarnings(volumes, High(100));
}

TEST_F(SolidSetChecks, KeepsSumAverageAndBoundsAsSingles) {
    constexpr float kTwo21 = 2097152.0F;
    constexpr float kTwo24 = 16777216.0F;
    // Added behind 2^24 the two ones are lost, and half of the average is exactly 2^21, which is not low ...
    ExpectWarnings({kTwo24, kTwo21, kTwo21, 1, 1}, High(1) + Low(4) + Low(5));
    // ... but added before it they count.
    ExpectWarnings({1, 1, kTwo24, kTwo21, kTwo21}, Low(1) + Low(2) + High(3) + Low(4) + Low(5));
    // The bounds themselves, and a hair outside of them.
    ExpectWarnings({0.5F, 0.25F, 0.125F, 0.125F}, "");
    ExpectWarnings({0.5F + 0x1p-24F, 0.25F, 0.125F, 0.125F - 0x1p-24F}, High(1) + Low(4));
}

TEST_F(SolidSetChecks, ShowsTheErrorsFirstAndTheWarningsAllTheSame) {
    SetVolumes({10, 100});
    Expect(kFewMeasurements, Low(1));
    SetVolumes({10, 0, 20, 10, 10});
    Test().NumberY = "0";
    Test().ClientName = "";
    Expect(std::string(kNoClient) + kNoY, Zero(2));
}

TEST_F(SolidSetChecks, LeavesAnEndlessListToItsCaller) {
    Test().ClientName = "  A. Client";
    for (const int readings : {299, 300}) {
        SetEqualVolumes(readings);
        ExpectRaised(ErrorNumber::SubscriptOutOfRange);
    }
    EXPECT_EQ(Test().ClientName.Whole().substr(0, 3), "  A") << "it counts before it trims";
    SetEqualVolumes(298);
    Expect("", "");
}

TEST_F(SolidSetChecks, RaisesOverflowForAVolumeThatIsNoNumber) {
    for (const float volume :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        SetVolumes({10, volume, 10});
        ExpectRaised(ErrorNumber::Overflow);
    }
    // One that is not counted is not looked at; a position never is.
    SetVolumes({10, 10, 10, 0, 0, std::numeric_limits<float>::quiet_NaN()});
    Test().Gauges[1].XAxis = std::numeric_limits<float>::infinity();
    Expect("", "");
}

} // namespace

} // namespace orvel
