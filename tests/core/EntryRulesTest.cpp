// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/EntryRules.h"

#include "tests/support/LogicTest.h"

namespace orvel {
namespace {

class EntryRulesTest : public testing::LogicTest {};

Message TooLong(const std::string& maximum) {
    return {"Maximim Characters in this field is " + maximum, "Input Error", Buttons::Ok, Icon::None};
}

TEST_F(EntryRulesTest, LeavesATextUpToTheMaximumAlone) {
    EXPECT_EQ(LimitLength("", 0), "");
    EXPECT_EQ(LimitLength("", 20), "");
    EXPECT_EQ(LimitLength("abcd", 5), "abcd");
    EXPECT_EQ(LimitLength("abcde", 5), "abcde");
    EXPECT_EQ(LimitLength(" a\r\n ", 5), " a\r\n ");
}

TEST_F(EntryRulesTest, SaysTheMaximumAndCutsALongerText) {
    messageBox.Expect(TooLong("5"));
    EXPECT_EQ(LimitLength("abcdef", 5), "abcde");
    messageBox.Expect(TooLong("80"));
    EXPECT_EQ(LimitLength(std::string(200, 'x'), 80), std::string(80, 'x'));
}

// A line end counts as two characters and may be cut between them; blanks count as any other.
TEST_F(EntryRulesTest, CountsLineEndsAndBlanksAsCharacters) {
    messageBox.Expect(TooLong("3"));
    EXPECT_EQ(LimitLength("ab\r\n", 3), "ab\r");
    messageBox.Expect(TooLong("3"));
    EXPECT_EQ(LimitLength("     ", 3), "   ");
}

TEST_F(EntryRulesTest, NumericKeysPassWithoutASound) {
    for (const int key : {8, 46, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57}) {
        EXPECT_EQ(FilterNumericKey(key), key);
    }
    // Nobody counts decimal points.
    EXPECT_EQ(FilterNumericKey('.'), 46);
    EXPECT_EQ(FilterNumericKey('.'), 46);
}

TEST_F(EntryRulesTest, EveryOtherKeyIsDroppedWithABeep) {
    int passed = 0;
    for (int key = 0; key < 256; ++key) {
        const bool isNumeric = key == 8 || key == 46 || (key >= 48 && key <= 57);
        if (isNumeric) {
            ++passed;
            continue;
        }
        beeper.Expect(1);
        EXPECT_EQ(FilterNumericKey(key), 0) << key;
    }
    EXPECT_EQ(passed, 12);
}

TEST_F(EntryRulesTest, KeysThatAnswerNumbersElsewhereBeepToo) {
    for (const int key : {int{','}, int{'-'}, int{'+'}, int{'e'}, int{' '}, 13, 9, 127, 0x660, -1}) {
        beeper.Expect(1);
        EXPECT_EQ(FilterNumericKey(key), 0) << key;
    }
}

} // namespace
} // namespace orvel
