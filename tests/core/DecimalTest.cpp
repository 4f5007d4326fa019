// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Decimal.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <cfloat>
#include <limits>
#include <string>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;

// "-0.125e3" for the digits 125 with the point behind the third.
std::string Shown(const Decimal& number) {
    return std::string(number.isNegative ? "-" : "") + "0." + number.digits + "e" +
           std::to_string(number.point);
}

TEST(Decimal, HasZerosOutsideItsDigits) {
    const Decimal number{false, "125", 1}; // 1.25
    EXPECT_EQ(number.DigitAt(2), '0');
    EXPECT_EQ(number.DigitAt(1), '0');
    EXPECT_EQ(number.DigitAt(0), '1');
    EXPECT_EQ(number.DigitAt(-1), '2');
    EXPECT_EQ(number.DigitAt(-2), '5');
    EXPECT_EQ(number.DigitAt(-3), '0');
    const Decimal small{false, "7", -2}; // 0.007
    EXPECT_EQ(small.DigitAt(0), '0');
    EXPECT_EQ(small.DigitAt(-2), '0');
    EXPECT_EQ(small.DigitAt(-3), '7');
    const Decimal large{false, "7", 3}; // 700
    EXPECT_EQ(large.DigitAt(2), '7');
    EXPECT_EQ(large.DigitAt(0), '0');
    EXPECT_EQ(Decimal{}.DigitAt(0), '0');
}

TEST(Decimal, NormalisesToDigitsWithoutOuterZeros) {
    struct Row {
        const char* digits;
        long point;
        const char* shown;
    };
    static constexpr std::array kRows = {
        Row{"125", 1, "0.125e1"},     Row{"00125", 3, "0.125e1"}, Row{"12500", 1, "0.125e1"},
        Row{"0010500", 4, "0.105e2"}, Row{"000", 5, "0.e0"},      Row{"", 7, "0.e0"},
    };
    for (const Row& row : kRows) {
        Decimal number{false, row.digits, row.point};
        number.Normalise();
        EXPECT_EQ(Shown(number), row.shown);
        EXPECT_EQ(number.IsZero(), number.digits.empty());
    }
}

TEST(Decimal, TakesTheShortestDigitsOfASingle) {
    struct Row {
        float value;
        const char* shown;
    };
    static constexpr std::array kRows = {
        Row{0.1F, "0.1e0"},
        Row{100000.0F, "0.1e6"},
        Row{-32.5F, "-0.325e2"},
        Row{16777216.0F, "0.16777216e8"},
        Row{FLT_MAX, "0.34028235e39"},
        Row{FLT_TRUE_MIN, "0.1e-44"},
        Row{0.0F, "0.e0"},
        Row{-0.0F, "-0.e0"},
        Row{1.0F / 3.0F, "0.33333334e0"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(Shown(ShortestDecimal(row.value)), row.shown);
    }
}

TEST(Decimal, TakesSevenDigitsOfASingleAndFifteenOfADouble) {
    EXPECT_EQ(Shown(SignificantDecimal(1.0F / 3.0F)), "0.3333333e0");
    EXPECT_EQ(Shown(SignificantDecimal(1.0 / 3.0)), "0.333333333333333e0");
    EXPECT_EQ(Shown(SignificantDecimal(2.0F / 3.0F)), "0.6666667e0");
    EXPECT_EQ(Shown(SignificantDecimal(-2.0 / 3.0)), "-0.666666666666667e0");
    EXPECT_EQ(Shown(SignificantDecimal(0.1F)), "0.1e0");
    EXPECT_EQ(Shown(SignificantDecimal(static_cast<double>(0.1F))), "0.100000001490116e0");
    EXPECT_EQ(Shown(SignificantDecimal(16777216.0F)), "0.1677722e8");
    EXPECT_EQ(Shown(SignificantDecimal(16777216.0)), "0.16777216e8");
    EXPECT_EQ(Shown(SignificantDecimal(9999999.9)), "0.99999999e7");
    EXPECT_EQ(Shown(SignificantDecimal(0.01F)), "0.1e-1");
    EXPECT_EQ(Shown(SignificantDecimal(0.1 + 0.2)), "0.3e0");
    EXPECT_EQ(Shown(SignificantDecimal(0.0)), "0.e0");
}

TEST(Decimal, OfWhatIsNotFiniteOverflows) {
    for (const float value : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()}) {
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ShortestDecimal(value)); });
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(SignificantDecimal(value)); });
        ExpectRunTimeError(ErrorNumber::Overflow,
                           [&] { static_cast<void>(SignificantDecimal(static_cast<double>(value))); });
    }
}

TEST(Decimal, RoundsHalvesAwayFromZeroAndZeroHasNoSign) {
    struct Row {
        Decimal number;
        long decimals = 0;
        const char* shown = "";
    };
    const std::array rows = {
        Row{{false, "125", 0}, 2, "0.13e0"},
        Row{{true, "125", 0}, 2, "-0.13e0"},
        Row{{false, "135", 0}, 2, "0.14e0"},
        Row{{false, "1249999", 0}, 2, "0.12e0"},
        Row{{false, "125", 0}, 3, "0.125e0"},
        Row{{false, "125", 0}, 9, "0.125e0"},
        Row{{false, "9995", 1}, 2, "0.1e2"},
        Row{{true, "9995", 1}, 2, "-0.1e2"},
        Row{{false, "9994", 1}, 2, "0.999e1"},
        Row{{false, "1004", 1}, 2, "0.1e1"},
        Row{{false, "5", 0}, 0, "0.1e1"},
        Row{{false, "25", 1}, 0, "0.3e1"},
        Row{{false, "5", -1}, 1, "0.1e0"},
        Row{{false, "49", -1}, 1, "0.e0"},
        Row{{true, "49", -1}, 1, "0.e0"},
        Row{{true, "5", -8}, 2, "0.e0"},
        Row{{true, "", 0}, 2, "0.e0"},
        Row{{false, "7", 20}, 2, "0.7e20"},
        Row{{false, "12345", 5}, 0, "0.12345e5"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Shown(RoundedHalfAway(row.number, row.decimals)), row.shown)
            << Shown(row.number) << " at " << row.decimals;
    }
}

} // namespace
} // namespace orvel
