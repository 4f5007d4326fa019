// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CharsetDecoder.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace orvel {

namespace {

TEST(CharsetDecoder, TakesTheBytesUpToAWrongOrUnfinishedCharacter) {
    struct Case {
        const char* charset;
        std::string_view bytes;
        std::u32string text;
        std::size_t taken;
        bool hasStoppedInside;
    };
    for (const Case& each : {
             Case{"CP1252", "a\xE9\x80", U"a\u00E9\u20AC", 3, false},
             {"CP1252", "a\x81z", U"a", 1, false},
             {"CP932", "\x93\xFA\x96\x7B", U"\u65E5\u672C", 4, false},
             {"CP932", "a\x93", U"a", 1, true},
             {"UTF-8", "\xF0\x9F\x9A\x9C", U"\U0001F69C", 4, false},
             {"UTF-8", "", U"", 0, false},
             {"no such set", "abc", U"", 0, false},
             // An accent could follow the letter, and does not.
             {"CP1258", "a", U"a", 1, false},
             {"CP1258", "a\xEC", U"\u00E1", 2, false},
         }) {
        CharsetDecoder decoder(each.charset);
        std::u32string text;
        EXPECT_EQ(decoder.Decode(each.bytes, text), each.taken) << each.charset;
        EXPECT_EQ(text, each.text) << each.charset;
        EXPECT_EQ(decoder.HasStoppedInside(), each.hasStoppedInside) << each.charset;
    }
}

TEST(CharsetDecoder, EveryCallBeginsAnewAndAppends) {
    CharsetDecoder decoder("CP932");
    std::u32string text = U"=";
    EXPECT_EQ(decoder.Decode("\x93", text), 0U);
    EXPECT_EQ(decoder.Decode("a", text), 1U);
    EXPECT_EQ(text, U"=a");
    EXPECT_FALSE(decoder.HasStoppedInside());
}

TEST(CharsetDecoder, TakesTextsOfAnyLength) {
    CharsetDecoder decoder("CP1252");
    std::u32string text;
    EXPECT_EQ(decoder.Decode(std::string(100001, '\xE9'), text), 100001U);
    EXPECT_EQ(text, std::u32string(100001, U'\u00E9'));
}

} // namespace

} // namespace orvel
