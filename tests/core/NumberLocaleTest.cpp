// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberLocale.h"

#include "core/CodePage.h"
#include "tests/core/InvariantNumbers.h"
#include "tests/support/LogicTest.h"

#include <climits>
#include <string>

namespace orvel {
namespace {

using testing::ExpectInvariant;

class NumberLocaleTest : public testing::LogicTest {};

TEST(NumberLocale, IsInvariantUntilSet) {
    ExpectInvariant(InvariantNumberLocale());
    ExpectInvariant(CurrentNumberLocale());
}

TEST_F(NumberLocaleTest, TheOneInForceIsTheOneSet) {
    UseNumberLocale({',', '\xA0', "\3\2"});
    EXPECT_EQ(CurrentNumberLocale().decimalSeparator, ',');
    EXPECT_EQ(CurrentNumberLocale().groupSeparator, '\xA0');
    EXPECT_EQ(CurrentNumberLocale().grouping, "\3\2");
    ExpectInvariant(InvariantNumberLocale());
}

TEST_F(NumberLocaleTest, ALocaleByItsSeparatorsIsWrittenInTheCodePage) {
    const NumberLocale french = NumberLocaleWith(U',', U'\u202F', "\3");
    EXPECT_EQ(french.decimalSeparator, ',');
    EXPECT_EQ(french.groupSeparator, '\xA0') << "the page lacks the narrow one";
    EXPECT_EQ(french.grouping, "\3");
    const NumberLocale swiss = NumberLocaleWith(U'.', U'\u2019', "\3");
    EXPECT_EQ(swiss.groupSeparator, '\x92');
    EXPECT_EQ(NumberLocaleWith(U'\u066B', U',', "\3").decimalSeparator, '.') << "the page lacks it";
}

TEST_F(NumberLocaleTest, ALocaleThatGroupsNothingHasTheComma) {
    for (const std::string& grouping : {std::string(), std::string(1, '\0'), std::string(1, CHAR_MAX)}) {
        ExpectInvariant(NumberLocaleWith(U'.', U'\0', grouping));
        EXPECT_EQ(NumberLocaleWith(U',', U'\0', grouping).groupSeparator, '\0');
    }
}

} // namespace
} // namespace orvel
