// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberText.h"

#include "tests/support/LogicTest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <limits>
#include <random>
#include <string>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;

class NumberTextTest : public testing::LogicTest {};

template <class Number>
struct Row {
    std::string_view text;
    Number value;
};

using Single = Row<float>;
using Double = Row<double>;
using Whole = Row<int>;

constexpr float kTiny = FLT_TRUE_MIN;

// Compares the signs of zeros too.
void ExpectSingles(std::initializer_list<Single> rows) {
    for (const Single& row : rows) {
        const float value = ToSingle(row.text);
        EXPECT_EQ(value, row.value) << row.text;
        EXPECT_EQ(std::signbit(value), std::signbit(row.value)) << row.text;
    }
}

void ExpectAll(ErrorNumber error, std::initializer_list<std::string_view> texts) {
    for (const std::string_view text : texts) {
        SCOPED_TRACE(text);
        ExpectRunTimeError(error, [&] { static_cast<void>(ToSingle(text)); });
        ExpectRunTimeError(error, [&] { static_cast<void>(ToDouble(text)); });
        ExpectRunTimeError(error, [&] { static_cast<void>(ToInteger(text)); });
        ExpectRunTimeError(error, [&] { static_cast<void>(ToLong(text)); });
    }
}

TEST_F(NumberTextTest, PlainNumbersMeanTheSameInEveryLocale) {
    for (const NumberLocale& locale :
         {InvariantNumberLocale(), GermanNumbers(), NumberLocale{',', '\xA0', "\3"},
          NumberLocale{'.', ',', "\3\2"}, NumberLocale{',', '\0', "\3"}, NumberLocale{'.', '\x92', "\3"}}) {
        SCOPED_TRACE(locale.decimalSeparator);
        UseNumberLocale(locale);
        ExpectSingles({{"0", 0},
                       {"12.5", 12.5F},
                       {"1.250", 1.25F},
                       {".5", 0.5F},
                       {"5.", 5},
                       {"007", 7},
                       {"-.25", -0.25F},
                       {"+3.5", 3.5F},
                       {"-0", -0.0F},
                       {"1e3", 1000},
                       {"1E3", 1000},
                       {"1.5e+2", 150},
                       {"25e-1", 2.5F},
                       {".5E1", 5},
                       {"5.e1", 50},
                       {"-2.5e-3", -0.0025F},
                       {"  12.5", 12.5F},
                       {"12.5   ", 12.5F},
                       {" 12.5 ", 12.5F},
                       {"1e00003", 1000},
                       {"100000", 100000},
                       {"1.234567", 1.234567F},
                       {"1234.567", 1234.567F}});
    }
}

TEST_F(NumberTextTest, WhatIsNoNumberMismatchesInEveryLocale) {
    for (const NumberLocale& locale : {InvariantNumberLocale(), GermanNumbers(),
                                       NumberLocale{',', '\xA0', "\3"}, NumberLocale{',', '\0', "\3"}}) {
        SCOPED_TRACE(locale.decimalSeparator);
        UseNumberLocale(locale);
        ExpectAll(ErrorNumber::TypeMismatch,
                  {"",      " ",     "    ", ".",        ",",     "+",    "-",      "e5",    ".e5",   "-.",
                   "1e",    "1e+",   "1e-",  "1e5.5",    "1e 5",  "1ee5", "--1",    "+-1",   "- 1",   "1-",
                   "1 2",   "1 234", "\t5",  "5\t",      "5\n",   "\r5",  "\xA0.5", "5\xA0", "0x10",  "&H10",
                   "0x1p3", "inf",   "-inf", "Infinity", "nan",   "NaN",  "1d5",    "1f",    "12abc", "abc",
                   "$5",    "5%",    "(5)",  "1/2",      "1'000", "\xBD", "1\xB2"});
        ExpectAll(ErrorNumber::TypeMismatch, {{"5\0", 2}, {"\0", 1}});
    }
}

TEST_F(NumberTextTest, InvariantGroupsStandInTheirPlaces) {
    ExpectSingles({{"1,234", 1234},
                   {"1,234.5", 1234.5F},
                   {"12,345,678", 12345678},
                   {"123,456", 123456},
                   {"-1,234.5e-1", -123.45F},
                   {"1,234.", 1234},
                   {"0,123", 123},
                   {" +1,234 ", 1234},
                   {"1,234e2", 123400}});
    ExpectAll(ErrorNumber::TypeMismatch,
              {"12,34", ",123", "1,,000", "1,2", "1,000,", "1,000,00", "1234,567", "1,0000", "1.5,000",
               "1.234,567", "1,234,56.7", "1e1,000", "-,123", ",", "12,5", "1.2.3", "1,234.5.6"});
}

TEST_F(NumberTextTest, GermanGroupsStandInTheirPlaces) {
    UseNumberLocale(GermanNumbers());
    ExpectSingles({{"12,5", 12.5F},
                   {",5", 0.5F},
                   {"5,", 5},
                   {"1.250,5", 1250.5F},
                   {"1.234.567", 1234567},
                   {"1.234.567,5", 1234567.5F},
                   {"-1.234,5e1", -12345},
                   {"1.250,", 1250},
                   {"1,5E+1", 15},
                   {"1,250", 1.25F},
                   {"1234,5", 1234.5F}});
    ExpectAll(ErrorNumber::TypeMismatch,
              {".5,3", "1.25.0", "12.34,5", ".500,3", "1..000", "1.000.", "1.000.00", "1234.567,8",
               "1.2345,6", "1,2,3", "1,250.5", "1,250,000", "1.250e1,5", "1,.5"});
}

// The text with a no-break space of the page for every "_".
std::string Spaced(std::string text) {
    std::ranges::replace(text, '_', '\xA0');
    return text;
}

TEST_F(NumberTextTest, NoBreakSpacesGroupWhereTheLocaleSaysSo) {
    UseNumberLocale({',', '\xA0', "\3"});
    ExpectSingles({{Spaced("1_234"), 1234},
                   {Spaced("1_234,5"), 1234.5F},
                   {Spaced("-12_345_678"), -12345678},
                   {Spaced(" 1_234 "), 1234},
                   {"1,5", 1.5F}});
    ExpectAll(ErrorNumber::TypeMismatch, {Spaced("12_34"), Spaced("_123"), Spaced("123_"), Spaced("1__234"),
                                          Spaced("1_234.5"), Spaced("- 1_234"), "1 234,5", "1.234,5"});
}

TEST_F(NumberTextTest, IndianGroupsAreThreeThenTwo) {
    UseNumberLocale({'.', ',', "\3\2"});
    ExpectSingles({{"12,34,567", 1234567},
                   {"1,23,45,678.5", 12345678.5F},
                   {"1,234", 1234},
                   {"12,345", 12345},
                   {"1,23,456", 123456}});
    ExpectAll(ErrorNumber::TypeMismatch, {"1,234,567", "123,456", "12,34", "1,2,345", ",34,567", "1,23,45"});
}

TEST_F(NumberTextTest, GroupsEndWhereTheGroupingEnds) {
    UseNumberLocale({'.', ',', "\3\x7F"});
    ExpectSingles({{"1,234", 1234}, {"123456,789", 123456789.0F}});
    ExpectSingles({{std::string(200, '0') + "1,234", 1234}});
    ExpectAll(ErrorNumber::TypeMismatch, {"1,234,567", "12,34"});
}

TEST_F(NumberTextTest, ADecimalCommaWithoutGroupSeparatorGroupsNothing) {
    UseNumberLocale({',', '\0', "\3"});
    ExpectSingles({{"1,5", 1.5F}, {"1234,5", 1234.5F}, {",5e1", 5}});
    ExpectAll(ErrorNumber::TypeMismatch, {"1.234,5", "1.234.567", "1 234,5", "1,234,567", "1,234.5"});
    ExpectAll(ErrorNumber::TypeMismatch, {std::string_view{"1\0.5", 4}});
}

TEST_F(NumberTextTest, ASingleIsRoundedOnceFromTheDecimals) {
    const std::string zeros(900, '0');
    const std::string nines(900, '9');
    const std::string tie = "1.000000059604644775390625";    // 1 + 2^-24
    const std::string oddTie = "1.000000178813934326171875"; // 1 + 3 * 2^-24
    ExpectSingles({{"0.1", 0.1F},
                   {"16777217", 16777216},
                   {"16777219", 16777220.0F},
                   {"16777217.0000000000000000000000000001", 16777218.0F},
                   {"16777216.9999999999999999999999999999", 16777216},
                   {"16777218.9999999999999999999999999999", 16777218.0F},
                   {tie, 1},
                   {oddTie, 0x1.000004p0F},
                   // Closer to the tie than a double can tell.
                   {tie + "00000000000000000001", 0x1.000002p0F},
                   {tie.substr(0, tie.size() - 1) + "4999999999999999999", 1},
                   {oddTie.substr(0, oddTie.size() - 1) + "4999999999999999999", 0x1.000002p0F}});
    // Texts beyond any buffer.
    const std::string above = tie + zeros + "1";
    const std::string below = oddTie.substr(0, oddTie.size() - 1) + "4" + nines;
    const std::string shifted = zeros + "." + zeros + "25e901";
    const std::string large = "125" + zeros + "e-901";
    ExpectSingles({{above, 0x1.000002p0F}, {below, 0x1.000002p0F}, {shifted, 2.5F}, {large, 12.5F}});
}

TEST_F(NumberTextTest, TheLargestSingleEndsHalfAStepBelowTheNextPower) {
    ExpectSingles({{"3.4028235e38", FLT_MAX},
                   {"-340282346638528859811704183484516925440", -FLT_MAX},
                   {"340282356779733661637539395458142568447.9999", FLT_MAX},
                   {"0.00034028235e42", FLT_MAX}});
    for (const std::string_view text :
         {"3.4028236e38", "-3.4028236e38", "340282356779733661637539395458142568448", "1e39", "1e400",
          "-1e400", "1e999999999999", "-1e99999999999999999999999999", "0.0001e43"}) {
        SCOPED_TRACE(text);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToSingle(text)); });
    }
    const std::string digits(400, '1');
    ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToSingle(digits)); });
    ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToDouble(digits)); });
}

TEST_F(NumberTextTest, ASingleTooSmallForASubnormalIsZero) {
    ExpectSingles({{"1e-45", kTiny},
                   {"1.4e-45", kTiny},
                   {"7.1e-46", kTiny},
                   {"7e-46", 0},
                   {"-7e-46", -0.0F},
                   {"2.2e-45", 2 * kTiny},
                   {"-1e-40", -1e-40F},
                   {"1.17549435e-38", FLT_MIN},
                   {"1e-50", 0},
                   {"1e-400", 0},
                   {"1e-999999999999", 0},
                   {"0e999999999999", 0},
                   {"0.000e-999999999999", 0},
                   // Half of the smallest subnormal, 2^-150, and a little more.
                   {"7.006492321624085354618e-46", 0},
                   {"7.006492321624085354619e-46", kTiny}});
}

TEST_F(NumberTextTest, ADoubleIsRoundedOnceFromTheDecimals) {
    for (const Double& row :
         std::initializer_list<Double>{{"0.1", 0.1},
                                       {"1,234.5", 1234.5},
                                       {"9007199254740993", 9007199254740992.0},
                                       {"9007199254740995", 9007199254740996.0},
                                       {"9007199254740993.00000000000000000001", 9007199254740994.0},
                                       {"1.7976931348623157e308", DBL_MAX},
                                       {"1.7976931348623158e308", DBL_MAX},
                                       {"1e39", 1e39},
                                       {"4.9e-324", DBL_TRUE_MIN},
                                       {"2.5e-324", DBL_TRUE_MIN},
                                       {"2.4e-324", 0},
                                       {"1e-400", 0},
                                       {"1e-999999999999", 0}}) {
        EXPECT_EQ(ToDouble(row.text), row.value) << row.text;
    }
    for (const std::string_view text : {"1.7976931348623159e308", "1e309", "-1e400", "1e999999999999"}) {
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToDouble(text)); });
    }
}

TEST_F(NumberTextTest, IntegersRoundHalvesToEven) {
    for (const Whole& row : std::initializer_list<Whole>{{"0", 0},
                                                         {"-0", 0},
                                                         {"12", 12},
                                                         {"0.5", 0},
                                                         {"1.5", 2},
                                                         {"2.5", 2},
                                                         {"3.5", 4},
                                                         {"-2.5", -2},
                                                         {"-3.5", -4},
                                                         {"-0.5", 0},
                                                         {"0.5e0", 0},
                                                         {"0.49999", 0},
                                                         {"0.05", 0},
                                                         {".51", 1},
                                                         {"25e-1", 2},
                                                         {"0.35e1", 4},
                                                         {"1e3", 1000},
                                                         {"1,234.5", 1234},
                                                         {"1,235.5", 1236},
                                                         {"9.5", 10},
                                                         {"99.5", 100},
                                                         {" 7 ", 7},
                                                         {"+7.0", 7},
                                                         {"1e-999999999999", 0},
                                                         {"2.500000000000000000000000001", 3},
                                                         {"2.4999999999999999999999999999", 2},
                                                         {"0.50000000000000000000000000001", 1},
                                                         {"-2.500000000000000000000000001", -3},
                                                         {"10.5", 10},
                                                         {"100", 100},
                                                         {"0e999999999999", 0}}) {
        EXPECT_EQ(ToInteger(row.text), row.value) << row.text;
        EXPECT_EQ(ToLong(row.text), row.value) << row.text;
    }
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(ToInteger("1.234,5"), 1234);
    EXPECT_EQ(ToInteger("1.250"), 1);
}

TEST_F(NumberTextTest, IntegersStayWithinTheirType) {
    EXPECT_EQ(ToInteger("32767.4"), 32767);
    EXPECT_EQ(ToInteger("32766.5"), 32766);
    EXPECT_EQ(ToInteger("-32768.5"), -32768);
    for (const std::string_view text : {"32767.5", "32768", "-32768.50001", "-32769", "99999", "100000",
                                        "1e5", "65536", "1e30", "1e400", "-1e999999999999"}) {
        SCOPED_TRACE(text);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToInteger(text)); });
    }
    EXPECT_EQ(ToLong("32767.5"), 32768);
    EXPECT_EQ(ToLong("2147483647.4999"), 2147483647);
    EXPECT_EQ(ToLong("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToLong("2147483646.5"), 2147483646);
    for (const std::string_view text : {"2147483647.5", "2147483648", "-2147483648.50001", "-2147483649",
                                        "9999999999", "1e10", "4294967296", "1e400", "-1e999999999999"}) {
        SCOPED_TRACE(text);
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(ToLong(text)); });
    }
}

TEST_F(NumberTextTest, WritesTheShortestDigitsWithoutExponent) {
    struct Written {
        float value;
        std::string text;
    };
    for (const Written& row :
         std::initializer_list<Written>{{100000, "100000"},
                                        {32.5F, "32.5"},
                                        {30, "30"},
                                        {0.1F, "0.1"},
                                        {0, "0"},
                                        {-0.0F, "0"},
                                        {-0.1F, "-0.1"},
                                        {-1234.5F, "-1234.5"},
                                        {1.0F / 3.0F, "0.33333334"},
                                        {0.3F, "0.3"},
                                        {1234.567F, "1234.567"},
                                        {1000000, "1000000"},
                                        {16777216, "16777216"},
                                        {33554432.0F, "33554432"},
                                        {8589934592.0F, "8589935000"},
                                        {0.0001F, "0.0001"},
                                        {1e-5F, "0.00001"},
                                        {1e30F, "1" + std::string(30, '0')},
                                        {1e-30F, "0." + std::string(29, '0') + "1"},
                                        {FLT_MAX, "34028235" + std::string(31, '0')},
                                        {-FLT_MAX, "-34028235" + std::string(31, '0')},
                                        {FLT_MIN, "0." + std::string(37, '0') + "11754944"},
                                        {FLT_TRUE_MIN, "0." + std::string(44, '0') + "1"}}) {
        EXPECT_EQ(PlainText(row.value), row.text);
    }
}

TEST_F(NumberTextTest, WritesTheDecimalSeparatorOfTheLocaleButNoGroups) {
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(PlainText(32.5F), "32,5");
    EXPECT_EQ(PlainText(1234567), "1234567");
    EXPECT_EQ(PlainText(-0.25F), "-0,25");
    EXPECT_EQ(PlainText(32.5F, InvariantNumberLocale()), "32.5");
    EXPECT_EQ(PlainText(100000, InvariantNumberLocale()), "100000");
}

TEST_F(NumberTextTest, WhatIsNotFiniteHasNoPlainText) {
    for (const float value : {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()}) {
        ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(PlainText(value)); });
    }
}

// The number of digits between the first and the last that is not zero.
std::size_t SignificantDigits(std::string_view text) {
    std::string digits;
    for (const char character : text) {
        if (character >= '0' && character <= '9') {
            digits += character;
        }
    }
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? 0 : digits.find_last_not_of('0') - first + 1;
}

// The fewest digits at which the C library writes a text that it reads back as the same value.
std::size_t FewestDigits(float value) {
    std::array<char, 32> buffer{};
    for (int precision = 1; precision < 9; ++precision) {
        static_cast<void>(
            std::snprintf(buffer.data(), buffer.size(), "%.*g", precision, static_cast<double>(value)));
        if (std::strtof(buffer.data(), nullptr) == value) {
            return static_cast<std::size_t>(precision);
        }
    }
    return 9;
}

TEST_F(NumberTextTest, EverySingleReadsBackFromItsShortestText) {
    constexpr int kPatterns = 200'000;
    std::mt19937 patterns(20260704);
    int finite = 0;
    for (int i = 0; i < kPatterns; ++i) {
        const auto bits = static_cast<std::uint32_t>(patterns());
        const auto value = std::bit_cast<float>(bits);
        if (!std::isfinite(value)) {
            continue;
        }
        ++finite;
        const std::string text = PlainText(value);
        ASSERT_EQ(std::bit_cast<std::uint32_t>(ToSingle(text)), bits) << text;
        ASSERT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
        ASSERT_LE(SignificantDigits(text), FewestDigits(value)) << text;
    }
    EXPECT_GT(finite, kPatterns * 9 / 10);
}

} // namespace
} // namespace orvel
