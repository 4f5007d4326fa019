// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/solidset/ExactSolidSet.h"
#include "tests/solidset/SolidSetFixture.h"
#include "tests/support/RandomEntries.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>

namespace orvel {

namespace {

using testing::BoxOf;
using testing::EvaluateExactly;
using testing::ExactSolidSetResults;

constexpr int kTests = 12'000;

// Random tests as a user might enter them, and a few as no user should.
class TestMaker : public testing::RandomEntries {
public:
    TestMaker() : RandomEntries(19970612) {}

    SolidSetTest Make() {
        SolidSetTest test;
        test.GuageDiameter = Rarely(40) ? Scribble() : Rarely(150) ? Faulty() : Decimal(40, 200, 10);
        test.Duration = Rarely(12) ? Scribble() : Number(10, 7200, 10);
        spread = Below(5);
        const int count = CupCount(20);
        const bool cancels = Rarely(100);
        for (int i = 1; i <= count; ++i) {
            const bool isDry = i < count && !Rarely(2) && Rarely(8);
            const float sign = (cancels && i % 2 == 0) || Rarely(100) ? -1.0F : 1.0F;
            test.Gauges[i].Volume = isDry ? 0.0F : sign * Volume();
        }
        return test;
    }

private:
    // A few characters of those that numbers are made of, which now and then are a number.
    std::string Scribble() {
        constexpr std::string_view kCharacters = "0123456789012345678901234567890123456789....+-eE x";
        std::string text;
        for (std::uint64_t length = From(1, 6); length > 0; --length) {
            text += kCharacters[Below(kCharacters.size())];
        }
        return text;
    }

    float Volume() {
        switch (spread) {
        case 0:
            return 117.5F;
        case 1:
            return static_cast<float>(From(900, 1100)) / 10.0F;
        case 2:
            return static_cast<float>(From(1, 400));
        case 3:
            return std::ldexp(static_cast<float>(From(1, 1U << 24U)), static_cast<int>(From(0, 40)) - 30);
        default:
            return static_cast<float>(From(1, 500000)) / 97.0F;
        }
    }

    std::uint64_t spread = 0;
};

std::string DifferencesOf(const SolidSetResults& actual, const ExactSolidSetResults& exact) {
    testing::Differences differences;
    differences.Compare("SolidSetCupCount", actual.SolidSetCupCount, exact.cupCount);
    differences.Compare("SolidSetMaximumDepth", actual.SolidSetMaximumDepth, exact.maximumDepth);
    differences.Compare("SolidSetAverageDepth", actual.SolidSetAverageDepth, exact.averageDepth);
    differences.Compare("SolidSetCU", actual.SolidSetCU, exact.cu);
    differences.Compare("SolidSetDU", actual.SolidSetDU, exact.du);
    differences.Compare("SolidSetApplicationRate", actual.SolidSetApplicationRate, exact.applicationRate);
    for (std::size_t i = 0; i < exact.depths.size(); ++i) {
        differences.Compare("depth " + std::to_string(i), actual.SolidSetDepths.at(i), exact.depths.at(i));
    }
    return differences.Text();
}

class SolidSetExactTest : public testing::SolidTest {
protected:
    // Calculates a test and compares everything with the exact evaluation, which it returns.
    ExactSolidSetResults Compare(const SolidSetTest& test, const ExactSolidSetResults& before) {
        ExactSolidSetResults exact = EvaluateExactly(test, before);
        Test() = test;
        RunExpecting(CalculateSolidSet, BoxOf(exact.error));
        EXPECT_EQ(Test().Duration.Whole(), exact.duration);
        EXPECT_EQ(DifferencesOf(SolidResults(), exact), "")
            << "diameter \"" << test.GuageDiameter.Trimmed() << "\", duration \"" << exact.duration << "\"";
        return exact;
    }
};

TEST_F(SolidSetExactTest, RandomTestsAgreeWithTheExactEvaluationToTheLastBit) {
    TestMaker maker;
    ExactSolidSetResults exact;
    std::map<int, int> endings;
    int rates = 0;
    int faultyDurations = 0;
    for (int i = 0; i < kTests && !HasFailure(); ++i) {
        SCOPED_TRACE("test " + std::to_string(i));
        const SolidSetTest test = maker.Make();
        if (maker.Rarely(2)) {
            ResetSolidSet();
            exact = {};
        }
        const float lowQuarterBefore = exact.du;
        exact = Compare(test, exact);
        ++endings[exact.error.value_or(0)];
        rates += !exact.error && exact.applicationRate > 0 ? 1 : 0;
        faultyDurations += exact.error && exact.du != lowQuarterBefore ? 1 : 0;
    }
    // The sample is worth something: every kind of ending, most tests well formed, some that end only at the
    // duration.
    EXPECT_GT(endings[0], kTests * 7 / 10);
    EXPECT_GT(endings[6], 100);
    EXPECT_GT(endings[9], 10);
    EXPECT_GT(endings[11], 10);
    EXPECT_GT(endings[13], 100);
    EXPECT_GT(rates, kTests / 2);
    EXPECT_GT(faultyDurations, 100);
}

TEST_F(SolidSetExactTest, LongListsOfWidelySpreadCupsAgreeToTheLastBit) {
    FillTest();
    for (const int count : testing::kListLengths) {
        SCOPED_TRACE(count);
        SolidSetTest test = Test();
        test.Gauges = {};
        for (int i = 1; i <= count; ++i) {
            test.Gauges[i].Volume = testing::WidelySpreadVolume(i);
        }
        const ExactSolidSetResults exact = Compare(test, {});
        EXPECT_EQ(exact.error, std::nullopt);
        EXPECT_EQ(exact.cupCount, count);
        ResetSolidSet();
    }
}

TEST_F(SolidSetExactTest, DurationsAtTheEndsOfTheRangeAgree) {
    FillTest();
    constexpr std::array kDurations = {"1e-37", "1e-38", "1e38", "1e44",   "1e46",     "1e307",  "1e308",
                                       "1e309", "1e-44", "1e-5", "1e-307", "4.9e-324", "1e-400", "0e9",
                                       "20",    "40",    "80",   "100",    "150",      "225"};
    for (const char* duration : kDurations) {
        SolidSetTest test = Test();
        test.Duration = duration;
        for (int i = 0; i < 50; ++i) {
            test.Gauges[1].Volume = 80.0F + static_cast<float>(i) / 16.0F;
            Compare(test, {});
            ResetSolidSet();
        }
    }
}

} // namespace

} // namespace orvel
