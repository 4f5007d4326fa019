// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Masks.h"

#include "tests/support/LogicTest.h"

#include <cfloat>
#include <initializer_list>
#include <limits>
#include <string>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;
using testing::GermanNumbers;

template <class Float>
struct Row {
    Float value;
    const char* mask;
    const char* expected;
};

template <class Float>
void ExpectMasked(std::initializer_list<Row<Float>> rows,
                  const NumberLocale& locale = InvariantNumberLocale()) {
    for (const Row<Float>& row : rows) {
        EXPECT_EQ(FormatMask(row.value, row.mask, locale), row.expected)
            << row.value << " by \"" << row.mask << "\"";
    }
}

TEST(Masks, WriteTheDigitsThatTheyAskFor) {
    ExpectMasked<float>({{0, "##", ""},
                         {0, "#,###", ""},
                         {85, "##.##", "85."},
                         {0.5F, "##.00", ".50"},
                         {1234.5F, "#,###.00", "1,234.50"},
                         {7.4F, "00", "07"},
                         {0.796F, "00%", "80%"},
                         {-0.001F, "0.00", "0.00"},
                         {2, "0.##", "2."}});
}

TEST(Masks, ZeroShowsOnlyTheDigitsOfZeros) {
    for (const float zero : {0.0F, -0.0F, 0.0001F, -0.0001F}) {
        ExpectMasked<float>({{zero, "0", "0"},
                             {zero, "00", "00"},
                             {zero, "##", ""},
                             {zero, "#,###", ""},
                             {zero, "0.00", "0.00"},
                             {zero, "##.00", ".00"},
                             {zero, "#,###.00", ".00"},
                             {zero, "##.##", "."},
                             {zero, "0.##", "0."},
                             {zero, "00%", "00%"},
                             {zero, "0%", "0%"}});
    }
}

TEST(Masks, NegativeNumbersHaveTheSignInFront) {
    ExpectMasked<float>({{-0.5F, "##.00", "-.50"},
                         {-7.4F, "00", "-07"},
                         {-1234.5F, "#,###.00", "-1,234.50"},
                         {-0.796F, "00%", "-80%"},
                         {-85, "##.##", "-85."},
                         {-123.0F, "#,###", "-123"},
                         {-0.005F, "0.00", "-0.01"},
                         {-0.00499F, "0.00", "0.00"},
                         {-0.4F, "##", ""},
                         {-0.5F, "##", "-1"}});
}

TEST(Masks, RoundingCarriesThroughAllDigits) {
    ExpectMasked<float>({{9.995F, "0.00", "10.00"},
                         {9.994F, "0.00", "9.99"},
                         {999999.5F, "0", "1000000"},
                         {999999.5F, "#,###", "1,000,000"},
                         {999.5F, "#,###", "1,000"},
                         {999.995F, "#,###.00", "1,000.00"},
                         {0.995F, "##.00", "1.00"},
                         {0.995F, "00%", "100%"},
                         {0.96F, "##", "1"},
                         {99.5F, "00", "100"},
                         {1.996F, "0.##", "2."},
                         {-9.995F, "0.00", "-10.00"}});
}

// The value is brought to its decimal text first, whatever its binary form lies below or above.
TEST(Masks, RoundHalvesAwayFromZeroAfterTheDecimalText) {
    ExpectMasked<float>({{0.125F, "0.00", "0.13"},
                         {0.135F, "0.00", "0.14"},
                         {2.675F, "0.00", "2.68"},
                         {0.045F, "0.00", "0.05"},
                         {1.005F, "0.00", "1.01"},
                         {0.5F, "0", "1"},
                         {1.5F, "##", "2"},
                         {2.5F, "##", "3"},
                         {-2.5F, "00", "-03"},
                         {7.5F, "00", "08"},
                         {0.785F, "00%", "79%"},
                         {0.005F, "00%", "01%"},
                         {0.0049F, "00%", "00%"},
                         {1234.5F, "#,###", "1,235"},
                         // 1.49999988 has the seven digits of one and a half.
                         {1.4999999F, "0", "2"},
                         {1.499999F, "0", "1"}});
    ExpectMasked<double>({{0.125, "0.00", "0.13"},
                          {2.675, "0.00", "2.68"},
                          {0.045, "0.00", "0.05"},
                          {1.005, "0.00", "1.01"},
                          {-2.5, "0", "-3"},
                          {1.4999999, "0", "1"},
                          {1.4999999999999998, "0", "2"}});
}

TEST(Masks, KeepSevenDigitsOfASingleAndFifteenOfADouble) {
    ExpectMasked<float>({{1234567.89F, "0.00", "1234568.00"},
                         {12345.678F, "0.00", "12345.68"},
                         {16777216, "#,###", "16,777,220"},
                         {0.1F, "0.000000000", "0.100000000"},
                         {1.0F / 3.0F, "0.000000000", "0.333333300"},
                         {FLT_MAX, "##", "340282300000000000000000000000000000000"},
                         {FLT_TRUE_MIN, "0.00", "0.00"},
                         {1e10F, "0.00", "10000000000.00"}});
    ExpectMasked<double>({{1234567.89, "0.00", "1234567.89"},
                          {16777216, "#,###", "16,777,216"},
                          {static_cast<double>(0.1F), "0.000000000", "0.100000001"},
                          {1.0 / 3.0, "0.00000000000000000", "0.33333333333333300"},
                          {1234567890123456.0, "#,###", "1,234,567,890,123,460"},
                          {0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"}});
}

// The places on the right of a "0" always show, too.
TEST(Masks, EveryPlaceFromTheFirstZeroOnShows) {
    ExpectMasked<float>({{5, "0#", "05"},
                         {7, "0,000", "0,007"},
                         {7, "#,##0.00", "7.00"},
                         {0, "#,##0.00", "0.00"},
                         {1234.5F, "#,##0.00", "1,234.50"},
                         {2, "0.#0", "2.00"}});
}

TEST(Masks, MoreIntegerDigitsThanPlacesAreAllShown) {
    ExpectMasked<float>({{12345, "00", "12345"},
                         {12345, "##", "12345"},
                         {12345, "0.00", "12345.00"},
                         {1234567, "#,###", "1,234,567"},
                         {12345, "00%", "1234500%"},
                         {123, "#,###", "123"},
                         {12, "#,###.00", "12.00"},
                         {100, "#,###", "100"},
                         {1, "00%", "100%"},
                         {123456, "#,###.00", "123,456.00"},
                         {10, "##", "10"},
                         {5, "00", "05"}});
}

TEST(Masks, NumberSignsShowOnlySignificantDecimals) {
    ExpectMasked<float>({{2.5F, "0.##", "2.5"},
                         {2.25F, "0.##", "2.25"},
                         {2.255F, "0.##", "2.26"},
                         {0.004F, "0.##", "0."},
                         {85.1F, "##.##", "85.1"},
                         {0.25F, "##.##", ".25"},
                         {85.05F, "##.##", "85.05"},
                         {10.0F, "##.##", "10."},
                         {2.5F, "0.0#", "2.5"},
                         {2, "0.0#", "2.0"}});
}

TEST(Masks, WriteTheSeparatorsOfTheLocale) {
    ExpectMasked<float>({{1234.5F, "#,###.00", "1.234,50"},
                         {0.5F, "0.00", "0,50"},
                         {85, "##.##", "85,"},
                         {1234567, "#,###", "1.234.567"},
                         {0, "##.##", ","},
                         {-0.25F, "##.00", "-,25"},
                         {0.796F, "00%", "80%"}},
                        GermanNumbers());
    ExpectMasked<float>({{1234.5F, "#,###.00", "1234,50"}, {1234567, "#,###", "1234567"}}, {',', '\0', "\3"});
    ExpectMasked<float>({{1234567, "#,###.00",
                          "1\xA0"
                          "234\xA0"
                          "567,00"}},
                        {',', '\xA0', "\3"});
}

// The comma of a mask means thousands, also where the locale groups otherwise.
TEST(Masks, GroupByThousandsInEveryLocale) {
    ExpectMasked<float>({{1234567, "#,###", "1,234,567"}}, {'.', ',', "\3\2"});
}

TEST(Masks, FollowTheLocaleInForceUnlessTold) {
    UseNumberLocale(GermanNumbers());
    EXPECT_EQ(FormatMask(1234.5F, "#,###.00"), "1.234,50");
    EXPECT_EQ(FormatMask(1234.5, "#,###.00"), "1.234,50");
    UseNumberLocale(InvariantNumberLocale());
    EXPECT_EQ(FormatMask(1234.5F, "#,###.00"), "1,234.50");
    EXPECT_EQ(FormatMask(1234.5, "#,###.00"), "1,234.50");
}

TEST(Masks, OfWhatIsNotFiniteOverflow) {
    for (const char* mask : {"0.00", "##", "#,###.00", "00%", "##.##", "0.##"}) {
        for (const float value :
             {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
              std::numeric_limits<float>::quiet_NaN()}) {
            SCOPED_TRACE(mask);
            ExpectRunTimeError(ErrorNumber::Overflow, [&] { static_cast<void>(FormatMask(value, mask)); });
            ExpectRunTimeError(ErrorNumber::Overflow,
                               [&] { static_cast<void>(FormatMask(static_cast<double>(value), mask)); });
        }
    }
}

TEST(Masks, TakeNoOtherCharacter) {
    for (const char* mask : {"0.00x", " 0", "0-", "0E+00", "@", "\"0\"", "0;0", "$0", "1", "0\xA0"}) {
        SCOPED_TRACE(mask);
        ExpectRunTimeError(ErrorNumber::InvalidProcedureCall,
                           [&] { static_cast<void>(FormatMask(1.0F, mask)); });
        ExpectRunTimeError(ErrorNumber::InvalidProcedureCall,
                           [&] { static_cast<void>(FormatMask(1.0, mask)); });
    }
}

} // namespace
} // namespace orvel
