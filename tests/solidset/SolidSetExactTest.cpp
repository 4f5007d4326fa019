// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/solidset/ExactSolidSet.h"
#include "tests/solidset/SolidSetFixture.h"
#include "tests/support/RandomEntries.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <string_view>

namespace orvel {

namespace {

using testing::Bits;
using testing::DescriptionOf;
using testing::EvaluateExactly;
using testing::ExactSolidSetResults;
using testing::GenerationErrorMessage;

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
        const int count = CupCount();
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

    int CupCount() {
        if (Rarely(200)) {
            return static_cast<int>(From(299, 300));
        }
        return static_cast<int>(Rarely(20) ? From(0, 298) : From(0, 32));
    }

    std::uint64_t spread = 0;
};

// What differs, one line each; empty when all is equal to the last bit.
std::string Differences(const SolidSetResults& actual, const ExactSolidSetResults& exact) {
    std::ostringstream text;
    text.precision(std::numeric_limits<float>::max_digits10);
    const auto compare = [&text](const std::string& name, float left, float right) {
        if (Bits(left) != Bits(right)) {
            text << name << ": " << left << " instead of " << right << "\n";
        }
    };
    compare("SolidSetCupCount", actual.SolidSetCupCount, exact.cupCount);
    compare("SolidSetMaximumDepth", actual.SolidSetMaximumDepth, exact.maximumDepth);
    compare("SolidSetAverageDepth", actual.SolidSetAverageDepth, exact.averageDepth);
    compare("SolidSetCU", actual.SolidSetCU, exact.cu);
    compare("SolidSetDU", actual.SolidSetDU, exact.du);
    compare("SolidSetApplicationRate", actual.SolidSetApplicationRate, exact.applicationRate);
    for (std::size_t i = 0; i < exact.depths.size(); ++i) {
        compare("depth " + std::to_string(i), actual.SolidSetDepths.at(i), exact.depths.at(i));
    }
    return text.str();
}

class SolidSetExactTest : public testing::SolidTest {
protected:
    // Calculates a test and compares everything with the exact evaluation, which it returns.
    ExactSolidSetResults Compare(const SolidSetTest& test, const ExactSolidSetResults& before) {
        ExactSolidSetResults exact = EvaluateExactly(test, before);
        Test() = test;
        Program().messageText.clear();
        std::string expectedText;
        if (exact.error) {
            const Message box = GenerationErrorMessage(*exact.error, DescriptionOf(*exact.error));
            messageBox.Expect(box);
            expectedText = box.text;
        }
        CalculateSolidSet();
        EXPECT_EQ(Program().messageText, expectedText);
        EXPECT_EQ(Test().Duration.Whole(), exact.duration);
        EXPECT_EQ(Differences(SolidResults(), exact), "")
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
    for (const int count : {2, 3, 5, 6, 7, 13, 50, 99, 150, 297, 298}) {
        SCOPED_TRACE(count);
        SolidSetTest test = Test();
        test.Gauges = {};
        for (int i = 1; i <= count; ++i) {
            // 0.1 to 5000 cc over the list, in an order that no sort likes.
            const int place = i * 151 % 307;
            test.Gauges[i].Volume = 0.1F * std::pow(50000.0F, static_cast<float>(place) / 307.0F);
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
