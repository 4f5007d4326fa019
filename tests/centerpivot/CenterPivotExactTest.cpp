// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/centerpivot/ExactPivot.h"
#include "tests/centerpivot/PivotFixture.h"
#include "tests/support/RandomEntries.h"

#include <array>
#include <cstdint>
#include <map>
#include <tuple>

namespace orvel {
namespace {

using testing::Bits;
using testing::BoxOf;
using testing::EvaluateExactly;
using testing::ExactApplicationRate;
using testing::ExactError;
using testing::ExactResults;
using testing::ExactRow;

constexpr int kTests = 10'000;

// Random tests as a user might enter them, and a few as no user should.
class TestMaker : public testing::RandomEntries {
public:
    TestMaker() : RandomEntries(19780815) {}

    CenterPivotTest Make() {
        CenterPivotTest test;
        test.GuageDiameter = Rarely(150) ? Faulty() : Decimal(40, 200, 10);
        test.DistanceToTower = Number(2000, 16000, 10);
        test.LengthOverhang = Number(0, 800, 10);
        test.EndGunRadius = Number(0, 1200, 10);
        test.RadLastSprinkler = Number(10, 700, 10);
        test.EstFlowRate = Number(1000, 200000, 100);
        test.MeasuredFlowRate = Number(1000, 200000, 100);
        test.PercentTimer = Number(10, 1000, 10);
        test.TravelSpeedFeet = Number(10, 5000, 10);
        test.TravelSpeedMinutes = Number(0, 60, 1);
        test.TravelSpeedSeconds = Number(0, 600, 10);
        test.TotalAcres = Number(1, 6400, 10);
        MakeCups(test);
        return test;
    }

private:
    static float Tenths(std::uint64_t number) { return static_cast<float>(number) / 10.0F; }

    float Volume() {
        switch (spread) {
        case 0:
            return 117.5F;
        case 1:
            return Tenths(From(900, 1100));
        case 2:
            return static_cast<float>(From(1, 400));
        default:
            return Tenths(From(1, 50000));
        }
    }

    float Distance(int cup) {
        switch (placing) {
        case 0:
            return static_cast<float>(30 + 20 * cup);
        case 1:
            return 185.0F + 22.5F * static_cast<float>(cup);
        case 2:
            return Tenths(From(0, 16000));
        case 3:
            return static_cast<float>(From(1, 1'000'000)) / 97.0F;
        default:
            return 0.0F;
        }
    }

    void MakeCups(CenterPivotTest& test) {
        spread = Below(4);
        placing = Rarely(50) ? 4 : Below(4);
        const int count = CupCount(12);
        const bool cancels = Rarely(200);
        for (int i = 1; i <= count; ++i) {
            const bool isDry = i < count && !Rarely(2) && Rarely(8);
            const float sign = cancels && i % 2 == 0 ? -1.0F : 1.0F;
            test.Gauges[i].Sequence = static_cast<float>(i);
            test.Gauges[i].Footage = Distance(i);
            test.Gauges[i].Volume = isDry ? 0.0F : sign * Volume();
        }
    }

    std::uint64_t spread = 0;
    std::uint64_t placing = 0;
};

std::string DifferencesOf(const CenterPivotResults& actual, const ExactResults& exact) {
    testing::Differences differences;
    differences.Compare("CupCount", actual.CupCount, exact.cupCount);
    differences.Compare("MaximumDepth", actual.MaximumDepth, exact.maximumDepth);
    differences.Compare("AverageDepth", actual.AverageDepth, exact.averageDepth);
    differences.Compare("ChristiansenCU", actual.ChristiansenCU, exact.christiansenCU);
    differences.Compare("HeermannHeinCU", actual.HeermannHeinCU, exact.heermannHeinCU);
    differences.Compare("LowQuarterDU", actual.LowQuarterDU, exact.lowQuarterDU);
    differences.Compare("IrrigatedAcres", actual.IrrigatedAcres, exact.irrigatedAcres);
    differences.Compare("CalculatedFlowRate", actual.CalculatedFlowRate, exact.calculatedFlowRate);
    differences.Compare("ApplicationEfficiency", actual.ApplicationEfficiency, exact.applicationEfficiency);
    for (std::size_t i = 1; i < exact.rows.size(); ++i) {
        const CupDepth& row = CupDepths()[i];
        const std::string name = "row " + std::to_string(i);
        differences.Compare(name + " Sequence", row.Sequence, exact.rows.at(i).sequence);
        differences.Compare(name + " Footage", row.Footage, exact.rows.at(i).footage);
        differences.Compare(name + " Depth", row.Depth, exact.rows.at(i).depth);
    }
    return differences.Text();
}

class CenterPivotExactTest : public testing::PivotTest {
protected:
    // Calculates a test and compares everything with the exact evaluation, which it returns.
    ExactResults Compare(const CenterPivotTest& test, const ExactResults& before) {
        ExactResults exact = EvaluateExactly(test, before);
        Test() = test;
        RunExpecting(CalculateCenterPivot, BoxOf(exact.error));
        EXPECT_EQ(DifferencesOf(PivotResults(), exact), "");
        return exact;
    }

    static void CompareRate(const CenterPivotTest& test) {
        std::optional<float> exact;
        try {
            exact = ExactApplicationRate(test);
        } catch (const ExactError& error) {
            testing::ExpectRunTimeError(static_cast<ErrorNumber>(error.number),
                                        [] { std::ignore = ApplicationRateAtLastTower(); });
            return;
        }
        const std::optional<float> actual = ApplicationRateAtLastTower();
        ASSERT_EQ(actual.has_value(), exact.has_value());
        EXPECT_EQ(Bits(actual.value_or(0)), Bits(exact.value_or(0)));
    }
};

TEST_F(CenterPivotExactTest, RandomTestsAgreeWithTheExactEvaluationToTheLastBit) {
    TestMaker maker;
    ExactResults exact;
    std::map<int, int> endings;
    int flowRates = 0;
    int keptAcres = 0;
    for (int i = 0; i < kTests && !HasFailure(); ++i) {
        SCOPED_TRACE("test " + std::to_string(i));
        const CenterPivotTest test = maker.Make();
        if (maker.Rarely(2)) {
            ResetCenterPivot();
            exact = {};
        }
        const float acresBefore = exact.irrigatedAcres;
        exact = Compare(test, exact);
        CompareRate(test);
        ++endings[exact.error.value_or(0)];
        flowRates += !exact.error && exact.calculatedFlowRate > 0 ? 1 : 0;
        keptAcres += !exact.error && exact.irrigatedAcres > 0 && exact.irrigatedAcres == acresBefore ? 1 : 0;
    }
    // The sample is worth something: every kind of ending, most tests well formed, acres kept now and then.
    EXPECT_GT(endings[0], kTests * 7 / 10);
    EXPECT_GT(endings[6], 100);
    EXPECT_GT(endings[9], 10);
    EXPECT_GT(endings[11], 10);
    EXPECT_GT(endings[13], 100);
    EXPECT_GT(flowRates, kTests / 4);
    EXPECT_GT(keptAcres, 100);
}

TEST_F(CenterPivotExactTest, LongListsOfWidelySpreadCupsAgreeToTheLastBit) {
    FillTest();
    for (const int count : testing::kListLengths) {
        SCOPED_TRACE(count);
        CenterPivotTest test = Test();
        test.Gauges = {};
        for (int i = 1; i <= count; ++i) {
            test.Gauges[i].Volume = testing::WidelySpreadVolume(i);
            test.Gauges[i].Footage = 185.0F + 4.7F * static_cast<float>(i);
        }
        const ExactResults exact = Compare(test, {});
        EXPECT_EQ(exact.error, std::nullopt);
        EXPECT_EQ(exact.cupCount, count);
        ResetCenterPivot();
    }
}

TEST_F(CenterPivotExactTest, TheTravelSpeedIsKeptInDoublePrecision) {
    struct Case {
        const char* feet;
        const char* minutes;
        const char* seconds;
    };
    // Speeds a hair beside the middle between two Singles: as a double each is that middle itself.
    constexpr std::array kCases = {
        Case{"503", "2.8292274e-07", "294.25"},
        Case{"791", "2.0484036e-07", "302.25"},
        Case{"513.5", "1.3688493e-08", "476.5"},
        Case{"534.75", "3.187669e-09", "41.75"},
    };
    FillTest();
    for (const Case& row : kCases) {
        SCOPED_TRACE(row.feet);
        CenterPivotTest test = Test();
        test.PercentTimer = "100";
        test.TravelSpeedFeet = row.feet;
        test.TravelSpeedMinutes = row.minutes;
        test.TravelSpeedSeconds = row.seconds;
        for (const char* tower : {"1380", "1290.5", "997.3", "411"}) {
            test.DistanceToTower = tower;
            EXPECT_GT(Compare(test, {}).calculatedFlowRate, 0.0F);
            ResetCenterPivot();
        }
    }
}

} // namespace
} // namespace orvel
