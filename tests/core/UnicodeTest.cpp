// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Unicode.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

TEST(Unicode, EveryLengthOfUtf8GoesThereAndBack) {
    for (const char32_t codePoint :
         {U'\0', U'a', U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
        const std::u32string text(3, codePoint);
        EXPECT_EQ(UnicodeOf(Utf8Of(text)), text) << static_cast<unsigned long>(codePoint);
    }
    EXPECT_EQ(Utf8Of(U"\u00E9\u20AC\U0001F69C"), "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\x9C");
}

TEST(Unicode, AByteThatIsNotUtf8BecomesTheReplacementCharacter) {
    EXPECT_EQ(UnicodeOf("a\x80z"), U"a\uFFFDz");
    EXPECT_EQ(UnicodeOf("\xC3"), U"\uFFFD");
    EXPECT_EQ(UnicodeOf("\xC0\xAF"), U"\uFFFD\uFFFD");
    EXPECT_EQ(UnicodeOf("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(UnicodeOf("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Unicode, TakingACharacterLeavesTheRest) {
    std::string_view text = "\xE2\x82\xACx\x80";
    EXPECT_EQ(TakeUtf8(text), U'\u20AC');
    EXPECT_EQ(TakeUtf8(text), U'x');
    EXPECT_EQ(TakeUtf8(text), kNoCharacter);
    EXPECT_TRUE(text.empty());
}

} // namespace

} // namespace orvel
