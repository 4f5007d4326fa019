// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FixedText.h"

#include <gtest/gtest.h>

namespace orvel {
namespace {

TEST(FixedText, BeginsAsBlanksWhichMeanEmpty) {
    const FixedText<4> field;
    EXPECT_EQ(field.Whole(), "    ");
    EXPECT_EQ(field.Trimmed(), "");
    EXPECT_TRUE(field.IsBlank());
}

TEST(FixedText, TakesExactlyItsWidthInMemory) {
    EXPECT_EQ(FixedText<20>::Width(), 20U);
    EXPECT_EQ(sizeof(FixedText<20>), 20U);
    EXPECT_EQ(FixedText<1>::Width(), 1U);
}

TEST(FixedText, PadsAShorterTextWithBlanks) {
    FixedText<6> field;
    field = "abcdef";
    field = "xy";
    EXPECT_EQ(field.Whole(), "xy    ");
    field = "";
    EXPECT_EQ(field.Whole(), "      ");
    EXPECT_TRUE(field.IsBlank());
}

TEST(FixedText, CutsALongerText) {
    FixedText<4> field;
    field = "abcd";
    EXPECT_EQ(field.Whole(), "abcd");
    field = "stuvwxyz";
    EXPECT_EQ(field.Whole(), "stuv");
}

// Storing trims nothing: the blanks a text begins with push its end out of the field.
TEST(FixedText, KeepsLeadingBlanks) {
    FixedText<4> field;
    field = "  abc";
    EXPECT_EQ(field.Whole(), "  ab");
    EXPECT_EQ(field.Trimmed(), "ab");
}

TEST(FixedText, KeepsEveryByte) {
    FixedText<4> field;
    field = std::string_view{"\0\xFF\x9F", 3};
    EXPECT_EQ(field.Whole(), std::string_view("\0\xFF\x9F ", 4));
}

TEST(FixedText, IsBlankOnlyWhenItHoldsNothingButBlanks) {
    FixedText<3> field;
    for (const std::string_view text : {"\t", "\r\n", "\xA0", "0"}) {
        field = text;
        EXPECT_FALSE(field.IsBlank()) << text;
    }
    field = std::string_view{"\0", 1};
    EXPECT_FALSE(field.IsBlank());
    field = "   ";
    EXPECT_TRUE(field.IsBlank());
}

TEST(FixedText, WritesTheTrimmedTextBackWhenAsked) {
    FixedText<8> field;
    field = "  1 2 ";
    EXPECT_EQ(field.TrimInPlace(), "1 2");
    EXPECT_EQ(field.Whole(), "1 2     ");
    EXPECT_EQ(field.TrimInPlace(), "1 2");
    EXPECT_EQ(field.Whole(), "1 2     ");
}

TEST(FixedText, TrimsAFieldFullOfBlanksToNothing) {
    FixedText<8> field;
    EXPECT_EQ(field.TrimInPlace(), "");
    EXPECT_EQ(field.Whole(), "        ");
    field = "\t5     ";
    EXPECT_EQ(field.TrimInPlace(), "\t5");
}

} // namespace
} // namespace orvel
