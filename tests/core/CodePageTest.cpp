// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <string>

namespace orvel {
namespace {

class CodePageTest : public testing::LogicTest {};

// All 256 characters in the order of their bytes.
std::string AllBytes() {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    return bytes;
}

TEST(CodePage, IsWindows1252UntilSet) {
    EXPECT_EQ(CurrentCodePage().ToUnicode('\x80'), U'€');
    EXPECT_FALSE(CurrentCodePage().IsOfSystem());
}

TEST_F(CodePageTest, Windows1252HasItsSpecialCharacters) {
    EXPECT_EQ(ToUtf8("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(ToUtf8("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"), "‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(FromUtf8("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"), "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E");
    EXPECT_EQ(FromUtf8("‘’“”•–—˜™š›œžŸ"), "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F");
}

TEST_F(CodePageTest, Windows1252KeepsTheOtherNumbers) {
    const CodePage page = CodePage::Windows1252();
    for (int byte = 0; byte < 256; ++byte) {
        const bool isUnassigned =
            byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
        if (byte < 0x80 || byte >= 0xA0 || isUnassigned) {
            EXPECT_EQ(page.ToUnicode(static_cast<char>(byte)), static_cast<char32_t>(byte));
        } else {
            // A control character that a special one displaced is not in the page.
            EXPECT_EQ(page.FromUnicode(static_cast<char32_t>(byte)), std::nullopt) << byte;
        }
    }
}

TEST_F(CodePageTest, EveryByteSurvivesTheRoundTripInAnyPage) {
    for (const char* name : {"CP1252", "ISO-8859-1", "ISO-8859-2", "ISO-8859-7", "ISO-8859-15", "CP1250",
                             "CP1251", "CP1253", "CP1257", "KOI8-R", "KOI8-U", "CP437"}) {
        SCOPED_TRACE(name);
        const auto page = CodePage::Named(name);
        ASSERT_TRUE(page);
        UseCodePage(*page);
        EXPECT_EQ(FromUtf8(ToUtf8(AllBytes())), AllBytes());
        EXPECT_EQ(FirstLackingCharacter(ToUtf8(AllBytes())), std::nullopt);
    }
    UseCodePage(CodePage::Windows1252());
    EXPECT_EQ(FromUtf8(ToUtf8(AllBytes())), AllBytes());
}

// Sets in which a byte without a character has the number of another byte's character, and others at the
// edge.
TEST_F(CodePageTest, NoSetMakesTheProgramLoseAByte) {
    for (const char* name : {"ISO-8859-8", "KOI8-T", "CP1255", "CP1258", "TIS-620", "ARMSCII-8",
                             "GEORGIAN-PS", "ISO-8859-6", "ISO-8859-3", "CP864", "HP-ROMAN8", "MACINTOSH"}) {
        SCOPED_TRACE(name);
        UseCodePage(CodePage::Named(name).value_or(CodePage::Windows1252()));
        EXPECT_EQ(FromUtf8(ToUtf8(AllBytes())), AllBytes());
    }
}

TEST_F(CodePageTest, NamedPagesHaveTheirCharacters) {
    struct Row {
        const char* name;
        char byte;
        char32_t codePoint;
    };
    static constexpr std::array kRows = {
        Row{"ISO-8859-1", '\xE4', U'ä'},
        Row{"ISO-8859-1", '\x80', 0x80},
        Row{"ISO-8859-1", '\xA4', U'¤'},
        Row{"ISO-8859-15", '\xA4', U'€'},
        Row{"ISO-8859-15", '\xBD', U'œ'},
        Row{"KOI8-R", '\xC1', U'а'},
        Row{"KOI8-R", '\x9A', 0xA0},
        Row{"CP1251", '\xE0', U'а'},
        Row{"CP1251", '\x88', U'€'},
        Row{"CP1252", '\x80', U'€'},
        Row{"CP1252", '\x81', 0x81},
        // Bytes to which a page assigns nothing.
        Row{"ISO-8859-7", '\xD2', 0xD2},
        Row{"CP1251", '\x98', 0x98},
        Row{"CP1253", '\xAA', 0xAA},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        const auto page = CodePage::Named(row.name);
        ASSERT_TRUE(page);
        EXPECT_EQ(page->ToUnicode(row.byte), row.codePoint);
        EXPECT_EQ(page->FromUnicode(row.codePoint), row.byte);
        EXPECT_FALSE(page->IsOfSystem());
    }
}

TEST_F(CodePageTest, OnlyEightBitExtensionsOfAsciiArePages) {
    for (const char* name :
         {"UTF-8", "UTF-7", "UTF-16", "UTF-32", "ANSI_X3.4-1968", "US-ASCII", "EUC-JP", "EUC-KR", "SHIFT_JIS",
          "GBK", "GB18030", "BIG5", "ISO-2022-JP", "IBM037", "ISO646-DE", "no such set"}) {
        EXPECT_FALSE(CodePage::Named(name)) << name;
    }
}

TEST_F(CodePageTest, WhatThePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(FromUtf8("Größe 5 €"), "Gr\xF6\xDF"
                                     "e 5 \x80");
    EXPECT_EQ(FromUtf8("Жук"), "???");
    EXPECT_EQ(FromUtf8("a😀b"), "a?b");
    EXPECT_EQ(FromUtf8("e\u0301"), "e?");
    EXPECT_EQ(FromUtf8("\uFFFF\U0010FFFF"), "??");
    EXPECT_EQ(FromUtf8("\xC2\x80"), "?");
    EXPECT_EQ(FromUtf8("?"), "?");
    EXPECT_EQ(FromUtf8(""), "");
    EXPECT_EQ(FromUtf8(std::string_view("a\0b", 3)), std::string_view("a\0b", 3));
}

TEST_F(CodePageTest, WhatIsNotUtf8BecomesAQuestionMarkForEachByte) {
    struct Row {
        const char* utf8;
        const char* text;
    };
    static constexpr std::array kRows = {
        Row{"a\x80z", "a?z"}, // a continuation alone
        Row{"a\xBFz", "a?z"},
        Row{"a\xC3z", "a?z"}, // cut short
        Row{"a\xE2\x82z", "a??z"},
        Row{"a\xF0\x9F\x98z", "a???z"},
        Row{"a\xC3", "a?"}, // at the end
        Row{"a\xE2\x82", "a??"},
        Row{"a\xF0\x9F\x98", "a???"},
        Row{"a\xC0\xAFz", "a??z"}, // overlong
        Row{"a\xC1\xBFz", "a??z"},
        Row{"a\xE0\x80\xAFz", "a???z"},
        Row{"a\xE0\x9F\xBFz", "a???z"},
        Row{"a\xF0\x80\x80\xAFz", "a????z"},
        Row{"a\xF0\x8F\xBF\xBFz", "a????z"},
        Row{"a\xED\xA0\x80z", "a???z"}, // surrogates
        Row{"a\xED\xBF\xBFz", "a???z"},
        Row{"a\xF4\x90\x80\x80z", "a????z"}, // beyond U+10FFFF
        Row{"a\xF7\xBF\xBF\xBFz", "a????z"},
        Row{"a\xF8\x88\x80\x80\x80z", "a?????z"},
        Row{"a\xF8\x90\x80\x80z", "a????z"},
        Row{"a\xFF\x90\x80\x80z", "a????z"},
        Row{"a\xFE\xFFz", "a??z"},
        Row{"\xC3\xC3\xA4", "?\xE4"}, // the next character is read again
        Row{"\xE2\xC3\xA4", "?\xE4"},
    };
    for (const Row& row : kRows) {
        EXPECT_EQ(FromUtf8(row.utf8), row.text);
    }
    // The neighbours of what is refused are characters.
    UseCodePage(*CodePage::Named("ISO-8859-1"));
    EXPECT_EQ(
        FromUtf8("\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
        "\x80??????");
}

TEST_F(CodePageTest, ANarrowNoBreakSpaceBecomesTheNoBreakSpace) {
    EXPECT_EQ(FromUtf8("1\u202F234\u00A0567"), "1\xA0"
                                               "234\xA0"
                                               "567");
    UseCodePage(*CodePage::Named("KOI8-R"));
    EXPECT_EQ(FromUtf8("\u202F"), "\x9A");
}

TEST_F(CodePageTest, WritesUtf8OfEveryLength) {
    EXPECT_EQ(ToUtf8("A\x7F"), "A\x7F");
    EXPECT_EQ(ToUtf8("\x81\xA0\xFF"), "\xC2\x81\xC2\xA0\xC3\xBF");
    EXPECT_EQ(ToUtf8("\x9F\x80"), "\xC5\xB8\xE2\x82\xAC");
    EXPECT_EQ(ToUtf8(std::string_view("\0", 1)), std::string_view("\0", 1));
    EXPECT_EQ(ToUtf8(""), "");
}

TEST_F(CodePageTest, NamesTheFirstCharacterThatThePageLacks) {
    EXPECT_EQ(FirstLackingCharacter(""), std::nullopt);
    EXPECT_EQ(FirstLackingCharacter("plain, größer, 5 €"), std::nullopt);
    EXPECT_EQ(FirstLackingCharacter("aЖb☃"), "Ж");
    EXPECT_EQ(FirstLackingCharacter("ab☃Ж"), "☃");
    EXPECT_EQ(FirstLackingCharacter("😀"), "😀");
    EXPECT_EQ(FirstLackingCharacter("a\xFFЖ"), "\xFF");
    EXPECT_EQ(FirstLackingCharacter("a\xE2\x82"), "\xE2");
    UseCodePage(*CodePage::Named("CP1251"));
    EXPECT_EQ(FirstLackingCharacter("Жук ä"), "ä");
}

TEST_F(CodePageTest, SystemTextsAreUtf8WhereThePageIsNotTheSystems) {
    EXPECT_EQ(SystemToText("größe.cpd"), "gr\xF6\xDF"
                                         "e.cpd");
    EXPECT_EQ(SystemToText("Ж\xE4.cpd"), "??.cpd");
}

} // namespace
} // namespace orvel
