// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/ExactArithmetic.h"

#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace orvel::testing {

namespace {

TEST(ExactArithmetic, RoundsToTheNearestAndTiesToEven) {
    const Rational two24(16777216);
    EXPECT_EQ(RoundToSingle(two24 + 1), 16777216.0F);
    EXPECT_EQ(RoundToSingle(two24 + 3), 16777220.0F);
    EXPECT_EQ(RoundToSingle(-(two24 + 3)), -16777220.0F);
    EXPECT_EQ(RoundToSingle(two24 + 1 + Rational(1, 1'000'000'000)), 16777218.0F);
    EXPECT_EQ(RoundToSingle(two24 - 1), 16777215.0F);
    EXPECT_EQ(RoundToSingle(Rational(1, 3)), 1.0F / 3.0F);
    EXPECT_EQ(RoundToSingle(ReadDecimal("0.1")), 0.1F);
    EXPECT_EQ(RoundToDouble(ReadDecimal("0.1")), 0.1);
    EXPECT_EQ(RoundToDouble(ReadDecimal("9007199254740993")), 9007199254740992.0);
    EXPECT_EQ(RoundToSingle(0), 0.0F);
}

TEST(ExactArithmetic, RoundsAtTheEndsOfTheRange) {
    constexpr float kSmallest = std::numeric_limits<float>::denorm_min();
    constexpr float kLargest = std::numeric_limits<float>::max();
    const Rational smallest(kSmallest);
    EXPECT_EQ(RoundToSingle(smallest / 2), 0.0F);
    EXPECT_EQ(RoundToSingle(smallest * 3 / 4), kSmallest);
    EXPECT_EQ(RoundToSingle(smallest * 3 / 2), 2 * kSmallest);
    EXPECT_EQ(RoundToSingle(Rational(kLargest)), kLargest);
    EXPECT_THROW(std::ignore = RoundToSingle(ReadDecimal("3.4028236e38")), ExactError);
    EXPECT_EQ(RoundToDouble(Rational(5e-324)), 5e-324);
    EXPECT_THROW(std::ignore = RoundToDouble(ReadDecimal("1.8e308")), ExactError);
}

TEST(ExactArithmetic, RoundsToTheExtendedType) {
    const Rational two64 = Rational(4294967296.0) * 4294967296.0;
    EXPECT_EQ(RoundToExtended(two64 - 1), two64 - 1);
    EXPECT_EQ(RoundToExtended(two64 + 1), two64);
    EXPECT_EQ(RoundToExtended(Rational(-two64 - 3)), -two64 - 4);
    EXPECT_EQ(RoundToExtended(Rational(2, 3)) * two64, Rational::OfDigits("12297829382473034411"));
}

TEST(ExactArithmetic, ComparesBitsButKnowsNoMinusZero) {
    EXPECT_EQ(Bits(1.0F), 0x3F800000U);
    EXPECT_EQ(Bits(-0.0F), 0U);
    EXPECT_NE(Bits(std::numeric_limits<float>::denorm_min()), 0U);
}

TEST(ExactArithmetic, ReadsDecimals) {
    EXPECT_EQ(ReadDecimal("  12.50 "), Rational(25, 2));
    EXPECT_EQ(ReadDecimal("-.5"), Rational(-1, 2));
    EXPECT_EQ(ReadDecimal("+5."), Rational(5));
    EXPECT_EQ(ReadDecimal("1e3"), Rational(1000));
    EXPECT_EQ(ReadDecimal("25E-1"), Rational(5, 2));
    EXPECT_EQ(ReadDecimal("1e+2"), Rational(100));
    EXPECT_EQ(ReadDecimal("0e99999999999"), Rational(0));
    EXPECT_EQ(ReadDecimal("1e99999999999"), ReadDecimal("1e5000"));
    EXPECT_EQ(ReadDecimal("1e-99999999999"), ReadDecimal("1e-5000"));
    for (const char* text :
         {"", ".", "abc", "1.2.3", "12 3", "-", "e5", ".e5", "1e", "1e+", "1e2.", "+-1", "1e 2", "--1"}) {
        EXPECT_THROW(std::ignore = ReadDecimal(text), ExactError) << text;
    }
}

} // namespace

} // namespace orvel::testing
