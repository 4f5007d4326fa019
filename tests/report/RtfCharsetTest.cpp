// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfCharset.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace orvel {

namespace {

std::u32string Decoded(std::string_view bytes, int codePage) {
    RtfCharsets charsets;
    std::u32string text;
    charsets.Decode(bytes, codePage, text);
    return text;
}

TEST(RtfCharset, KnowsTheCodePageOfAFontsCharset) {
    struct Case {
        int charset;
        int codePage;
    };
    for (const Case& each : {Case{0, 1252},
                             {77, 10000},
                             {128, 932},
                             {129, 949},
                             {134, 936},
                             {136, 950},
                             {161, 1253},
                             {162, 1254},
                             {163, 1258},
                             {177, 1255},
                             {178, 1256},
                             {186, 1257},
                             {204, 1251},
                             {222, 874},
                             {238, 1250},
                             {254, 437},
                             {1, 0},
                             {-1, 0},
                             {999, 0}}) {
        EXPECT_EQ(CodePageOfCharset(each.charset), each.codePage) << each.charset;
    }
}

TEST(RtfCharset, DecodesSingleBytePages) {
    struct Case {
        int codePage;
        std::string_view bytes;
        std::u32string_view text;
    };
    for (const Case& each : {
             Case{1252, "a\xE9\x80", U"a\u00E9\u20AC"},
             {1250, "\xF8", U"\u0159"},
             {1251, "\xE9", U"\u0439"},
             {1253, "\xE1", U"\u03B1"},
             {1254, "\xFE", U"\u015F"},
             {1255, "\xF9", U"\u05E9"},
             {1256, "\xC8", U"\u0628"},
             {1257, "\xE8", U"\u010D"},
             {1258, "\xFE", U"\u20AB"},
             {874, "\xA1", U"\u0E01"},
             {437, "\x82", U"\u00E9"},
             {850, "\xB5", U"\u00C1"},
             {866, "\x80", U"\u0410"},
             {10000, "\x8E", U"\u00E9"},
             {20866, "\xC1", U"\u0430"},
             {kSymbolPage, "\xB7\xE9", U"\u2022\u00E9"},
             {0, "\xE9", U"\u00E9"},
             {-1, "\xE9", U"\u00E9"},
             {4711, "\xE9", U"\u00E9"},
         }) {
        EXPECT_TRUE(Decoded(each.bytes, each.codePage) == each.text) << each.codePage;
    }
}

TEST(RtfCharset, DecodesMultiBytePages) {
    EXPECT_EQ(Decoded("\x93\xFA\x96{a", 932), U"\u65E5\u672Ca");
    EXPECT_EQ(Decoded("\xB1", 932), U"\uFF71");
    EXPECT_EQ(Decoded("\x83\x5C", 932), U"\u30BD");
    EXPECT_EQ(Decoded("\xD6\xD0", 936), U"\u4E2D");
    EXPECT_EQ(Decoded("\xC7\xD1", 949), U"\uD55C");
    EXPECT_EQ(Decoded("\xA4\xA4", 950), U"\u4E2D");
    EXPECT_EQ(Decoded("\xC3\xA9\xF0\x9F\x9A\x9C", 65001), U"\u00E9\U0001F69C");
}

TEST(RtfCharset, WrongBytesOfAMultiBytePageAreShownAsSuch) {
    EXPECT_EQ(Decoded("\x93", 932), U"\uFFFD");
    EXPECT_EQ(Decoded("a\x93", 932), U"a\uFFFD");
    EXPECT_EQ(Decoded("\xC3(\xA9", 65001), U"\uFFFD(\uFFFD");
}

TEST(RtfCharset, BytesThatASingleBytePageLacksHaveTheirOwnNumbers) {
    EXPECT_EQ(Decoded("\x81\x8D\x8F\x90\x9D", 1252), U"\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(Decoded("\xD2", 1253), U"\u00D2");
}

// Longer than any buffer in between, with a character across each of its ends.
TEST(RtfCharset, DecodesTextsOfAnyLength) {
    std::string bytes = "a";
    std::u32string text = U"a";
    for (int i = 0; i < 5000; ++i) {
        bytes += "\x93\xFA";
        text += U'\u65E5';
    }
    EXPECT_EQ(Decoded(bytes, 932), text);
}

} // namespace

} // namespace orvel
