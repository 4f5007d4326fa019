// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include <array>
#include <gtest/gtest.h>

namespace orvel {
namespace {

struct Padding {
    std::string_view text;
    std::size_t width;
    std::string_view expected;
};

void ExpectPadded(const Padding& row, char letter, char fill) {
    EXPECT_EQ(PadText(row.text, row.width, letter, fill), row.expected)
        << "\"" << row.text << "\" in " << row.width << " by " << letter;
}

TEST(Text, TrimsBlanksAndNothingElse) {
    struct Row {
        std::string_view text;
        std::string_view trimmed;
        std::string_view trimmedRight;
    };
    static constexpr std::array kRows = {
        Row{"", "", ""},
        Row{"   ", "", ""},
        Row{"a", "a", "a"},
        Row{"  a b  ", "a b", "  a b"},
        Row{"a   ", "a", "a"},
        Row{"   a", "a", "   a"},
        Row{" \ta\t ", "\ta\t", " \ta\t"},
        Row{" \r\n ", "\r\n", " \r\n"},
        Row{"\xA0 a \xA0", "\xA0 a \xA0", "\xA0 a \xA0"},
        Row{{" \0 ", 3}, {"\0", 1}, {" \0", 2}},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(Trim(row.text), row.trimmed);
        EXPECT_EQ(TrimRight(row.text), row.trimmedRight);
    }
}

TEST(Text, PadsOnTheRightForR) {
    static constexpr std::array kRows = {
        Padding{"abc", 6, "abc***"},      Padding{"  a b ", 6, "a b***"}, Padding{"abcdef", 6, "abcdef"},
        Padding{"abcdefgh", 6, "abcdef"}, Padding{"", 3, "***"},          Padding{"abc", 0, ""},
    };
    for (const Padding& row : kRows) {
        ExpectPadded(row, 'R', '*');
        ExpectPadded(row, 'r', '*');
    }
}

TEST(Text, PadsOnTheLeftForL) {
    static constexpr std::array kRows = {
        Padding{"abc", 6, "***abc"},      Padding{"  a b ", 6, "***a b"}, Padding{"abcdef", 6, "abcdef"},
        Padding{"abcdefgh", 6, "abcdef"}, Padding{"", 3, "***"},          Padding{"abc", 0, ""},
    };
    for (const Padding& row : kRows) {
        ExpectPadded(row, 'L', '*');
        ExpectPadded(row, 'l', '*');
    }
}

// Half of what is missing, a half rounded to the even number, stands on the left.
TEST(Text, CentresForCWithAnOddRestToTheEvenSide) {
    static constexpr std::array kRows = {
        Padding{"abcd", 4, "abcd"},         // 0
        Padding{"abcd", 5, "abcd*"},        // 0.5 -> 0
        Padding{"abcd", 6, "*abcd*"},       // 1
        Padding{"abcd", 7, "**abcd*"},      // 1.5 -> 2, cut on the right
        Padding{"abcd", 8, "**abcd**"},     // 2
        Padding{"abcd", 9, "**abcd***"},    // 2.5 -> 2, filled up on the right
        Padding{"abcd", 10, "***abcd***"},  // 3
        Padding{"abcd", 11, "****abcd***"}, // 3.5 -> 4
        Padding{"  abcd ", 6, "*abcd*"},
        Padding{"abcdefgh", 6, "abcdef"},
        Padding{"", 3, "***"},
        Padding{"abc", 0, ""},
    };
    for (const Padding& row : kRows) {
        ExpectPadded(row, 'C', '*');
        ExpectPadded(row, 'c', '*');
    }
}

TEST(Text, CentresFortyFiveCharactersInEightyBehindEighteen) {
    const std::string text(45, 'x');
    EXPECT_EQ(PadText(text, 80, 'C', ' '), std::string(18, ' ') + text + std::string(17, ' '));
}

TEST(Text, TrimsBlanksBeforePaddingWhateverTheFillIs) {
    EXPECT_EQ(PadText("--a--", 7, 'R', '-'), "--a----");
    EXPECT_EQ(PadText(" a ", 4, 'L', '0'), "000a");
    // The cut comes after the trimming, so blanks inside stay.
    EXPECT_EQ(PadText("  ab   cd", 4, 'L', '*'), "ab  ");
}

TEST(Text, LeavesAnyOtherLetterUnpaddedButTrimmedAndCut) {
    for (const char letter : {'X', ' ', '\0', 'B', 'q'}) {
        ExpectPadded({" abc ", 6, "abc"}, letter, '*');
        ExpectPadded({" abcdefgh ", 6, "abcdef"}, letter, '*');
    }
}

TEST(Text, ARightColumnWidensRatherThanCut) {
    EXPECT_EQ(RightColumn("12", 5), "   12");
    EXPECT_EQ(RightColumn("1234", 5), " 1234");
    EXPECT_EQ(RightColumn("12345", 5), " 12345");
    EXPECT_EQ(RightColumn("1234567", 5), " 1234567");
    EXPECT_EQ(RightColumn("", 3), "   ");
}

TEST(Text, BooleansAreWords) {
    EXPECT_EQ(BooleanWord(true), "True");
    EXPECT_EQ(BooleanWord(false), "False");
}

TEST(Text, RuleLineIsEightyEqualSignsAndALineEnd) {
    EXPECT_EQ(RuleLine(), std::string(80, '=') + "\r\n");
    EXPECT_EQ(Rule(), std::string(80, '='));
}

TEST(Text, LineEndsAreCarriageReturnAndLineFeed) {
    EXPECT_EQ(kCr, "\x0D");
    EXPECT_EQ(kCrLf, "\x0D\x0A");
    EXPECT_EQ(kReportColumns, 80U);
}

} // namespace
} // namespace orvel
