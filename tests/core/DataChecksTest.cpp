// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataChecks.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;

template <class Gauge = PivotGauge>
MeasurementList<Gauge> Measurements(const std::vector<float>& volumes) {
    MeasurementList<Gauge> gauges;
    int i = 0;
    for (const float volume : volumes) {
        gauges[++i].Volume = volume;
    }
    return gauges;
}

Message ErrorBox(const std::string& lines) {
    return {"You Have Errors That Will Prevent Report Creation.\r\n\r\n" + lines +
                "\r\n\r\nPlease Correct Entries.",
            "Errors in Data", Buttons::Ok, Icon::Critical};
}

Message WarningBox(const std::string& lines) {
    return {"Potention Input Problems Were Found.\r\n\r\n" + lines +
                "\r\n\r\nThese May Not Be Errors, But Should Be Checked.",
            "Possible Errors in Data", Buttons::Ok, Icon::Critical};
}

class DataChecksTest : public testing::LogicTest {
protected:
    // Expects the check of these catches around an average to warn with exactly these lines.
    void ExpectWarnings(const std::vector<float>& volumes, float average, const std::string& lines) {
        DataChecks checks;
        checks.CheckCatches(Measurements(volumes), static_cast<std::int16_t>(volumes.size()), average);
        if (!lines.empty()) {
            messageBox.Expect(WarningBox(lines));
        }
        EXPECT_TRUE(checks.Report());
    }
};

TEST_F(DataChecksTest, SaysNothingWhenNothingWasFound) {
    Program().messageText = "said before";
    EXPECT_TRUE(DataChecks().Report());
    EXPECT_EQ(Program().messageText, "said before");
    EXPECT_EQ(Program().messageReply, Reply::None);
}

TEST_F(DataChecksTest, ShowsErrorsAndStopsTheReport) {
    DataChecks checks;
    checks.AddError("First.");
    checks.AddError("Second.");
    const Message box = ErrorBox("First.\r\nSecond.\r\n");
    messageBox.Expect(box);
    EXPECT_FALSE(checks.Report());
    EXPECT_EQ(Program().messageText, box.text);
    EXPECT_EQ(Program().messageReply, Reply::Ok);
}

TEST_F(DataChecksTest, ShowsWarningsAndLetsTheReportBeBuilt) {
    DataChecks checks;
    checks.AddWarning("First.\r\n");
    checks.AddWarning("Second.");
    const Message box = WarningBox("First.\r\n\r\nSecond.\r\n");
    messageBox.Expect(box);
    EXPECT_TRUE(checks.Report());
    EXPECT_EQ(Program().messageText, box.text);
    EXPECT_EQ(Program().messageReply, Reply::Ok);
}

TEST_F(DataChecksTest, ShowsErrorsBeforeWarningsInWhateverOrderTheyWereFound) {
    DataChecks checks;
    checks.AddWarning("A warning.");
    checks.AddError("An error.");
    messageBox.Expect(ErrorBox("An error.\r\n"), Reply::Ok);
    const Message last = WarningBox("A warning.\r\n");
    messageBox.Expect(last, Reply::Cancel);
    EXPECT_FALSE(checks.Report());
    EXPECT_EQ(Program().messageText, last.text);
    EXPECT_EQ(Program().messageReply, Reply::Cancel) << "the last box decides";
}

TEST_F(DataChecksTest, CountsAListOfTwoCharactersAsEmpty) {
    DataChecks checks;
    checks.AddError("");
    checks.AddWarning("");
    EXPECT_TRUE(checks.Report());
    // Three are a list.
    DataChecks more;
    more.AddError("!");
    more.AddWarning("?");
    messageBox.Expect(ErrorBox("!\r\n"));
    messageBox.Expect(WarningBox("?\r\n"));
    EXPECT_FALSE(more.Report());
}

TEST_F(DataChecksTest, DemandsThreeMeasurements) {
    const std::string none = "You Have Not Entered Any Irrigation Measurements.\r\n";
    const std::string few = "You Have Entered Less Than 3 Irrigation Measurements.\r\n";
    const std::array<std::string, 5> expected = {none + few, few, few, "", ""};
    for (std::size_t count = 0; count < expected.size(); ++count) {
        SCOPED_TRACE(count);
        DataChecks checks;
        checks.CheckCupCount(static_cast<std::int16_t>(count));
        if (!expected[count].empty()) {
            messageBox.Expect(ErrorBox(expected[count]));
        }
        EXPECT_EQ(checks.Report(), expected[count].empty());
    }
}

TEST_F(DataChecksTest, RemarksOnCatchesBeyondTwiceOrBelowHalfOfTheAverage) {
    const std::string high = "The Value For Gauge 1 May be High (>200% of Average).\r\n";
    const std::string low = "The Value For Gauge 1 May be Low (<50% of Average).\r\n";
    const std::string none = "No Value Was Entered For Gauge: 1\r\n";

    struct Case {
        float volume;
        float average;
        std::string lines;
    };

    const std::vector<Case> cases = {
        {10.0F, 10.0F, ""},   {20.0F, 10.0F, ""},   {0x1.400002p4F, 10.0F, high},
        {20.5F, 10.0F, high}, {5.0F, 10.0F, ""},    {0x1.3ffffep2F, 10.0F, low},
        {4.9F, 10.0F, low},   {-3.0F, 10.0F, low},  {0.0F, 10.0F, none},
        {-0.0F, 10.0F, none}, {0.0F, 0.0F, none},   {0.1F + 0.1F, 0.1F, ""},
        {0.05F, 0.1F, ""},    {1e-45F, 1e-45F, ""},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(::testing::Message() << one.volume << " around " << one.average);
        ExpectWarnings({one.volume}, one.average, one.lines);
    }
}

TEST_F(DataChecksTest, RemarksOnEachCupOnceInTheirOrder) {
    ExpectWarnings({10, 0, 30, 1, 10, 0, 10, 10, 10, 21, 20, 5}, 10.0F,
                   "No Value Was Entered For Gauge: 2\r\n"
                   "The Value For Gauge 3 May be High (>200% of Average).\r\n"
                   "The Value For Gauge 4 May be Low (<50% of Average).\r\n"
                   "No Value Was Entered For Gauge: 6\r\n"
                   "The Value For Gauge 10 May be High (>200% of Average).\r\n");
}

TEST_F(DataChecksTest, LooksAtTheCountedCupsOnly) {
    DataChecks checks;
    checks.CheckCatches(Measurements<SolidSetGauge>({10, 10, 90, 0, 0, 1}), 2, 10.0F);
    checks.CheckCatches(Measurements<SolidSetGauge>({90, 0, 1}), 0, 10.0F);
    EXPECT_TRUE(checks.Report());
}

TEST_F(DataChecksTest, RoundsTheBoundsToSinglePrecision) {
    // In the smallest units that a Single has, half of 3 is 1.5, which is a tie and rounds to the even 2: a
    // catch of 1 is low and one of 2 is not.
    constexpr float kUnit = std::numeric_limits<float>::denorm_min();
    ExpectWarnings({kUnit}, 3 * kUnit, "The Value For Gauge 1 May be Low (<50% of Average).\r\n");
    ExpectWarnings({2 * kUnit}, 3 * kUnit, "");
    // Half of 5 is 2 and not 2.5.
    ExpectWarnings({2 * kUnit}, 5 * kUnit, "");
    const float huge = std::numeric_limits<float>::max();
    ExpectRunTimeError(ErrorNumber::Overflow,
                       [&] { DataChecks().CheckCatches(Measurements({huge}), 1, huge); });
}

TEST_F(DataChecksTest, AveragesTheCountedVolumes) {
    EXPECT_EQ(AverageVolume(Measurements({1, 0, 3, 0, 0}), 3), 4.0F / 3.0F);
    EXPECT_EQ(AverageVolume(Measurements<SolidSetGauge>({10, 20, 90}), 2), 15.0F);
    EXPECT_EQ(AverageVolume(Measurements({10, 20}), 0), 0.0F);
}

TEST_F(DataChecksTest, SumsVolumesInSinglePrecision) {
    // Each 1 is lost in a sum of 24 bits; a longer one would give 5592406.
    EXPECT_EQ(AverageVolume(Measurements({16777216, 1, 1}), 3), 5592405.5F);
    // The other way round the two ones have grown to a 2 before.
    EXPECT_EQ(AverageVolume(Measurements({1, 1, 16777216}), 3), 5592406.0F);
}

TEST_F(DataChecksTest, HasNoAverageOfWhatIsNoNumber) {
    for (const float volume :
         {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { (void)AverageVolume(Measurements({1, volume}), 2); });
        EXPECT_EQ(AverageVolume(Measurements({1, volume}), 1), 1.0F);
    }
    const float huge = std::numeric_limits<float>::max();
    ExpectRunTimeError(ErrorNumber::Overflow, [&] { (void)AverageVolume(Measurements({huge, huge}), 2); });
}

} // namespace
} // namespace orvel
