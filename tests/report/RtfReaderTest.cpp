// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfReader.h"

#include "core/CodePage.h"
#include "core/Unicode.h"
#include "tests/support/LogicTest.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel {

namespace {

class RtfReader : public testing::LogicTest {
protected:
    // The text of a document with this body, as UTF-8.
    static std::string Text(const std::string& body) {
        return Utf8Of(PlainText(ReadRtf("{\\rtf1\\ansi{}" + body + "}")));
    }

    static std::vector<TextRun> Runs(const std::string& body) {
        std::vector<TextRun> runs;
        for (const Paragraph& paragraph : ReadRtf("{\\rtf1\\ansi{}" + body + "}").paragraphs) {
            runs.insert(runs.end(), paragraph.runs.begin(), paragraph.runs.end());
        }
        return runs;
    }
};

struct Case {
    const char* body;
    const char* text;
};

void ExpectTexts(const std::vector<Case>& cases, std::string (*text)(const std::string&)) {
    for (const Case& each : cases) {
        EXPECT_EQ(text(each.body), each.text) << each.body;
    }
}

TEST_F(RtfReader, WordsTakeOneBlankAndEndAtAnythingElse) {
    ExpectTexts({{" a", " a"},
                 {"\\b a", "a"},
                 {"\\b  a", " a"},
                 {"\\fs20a", "a"},
                 {"\\fs-20 a", "a"},
                 {"\\b-a", "-a"},
                 {"\\b\r\na\nb\rc", "abc"},
                 {"\\unknownword12 a", "a"},
                 {"a\\\\b\\{c\\}", "a\\b{c}"}},
                Text);
}

TEST_F(RtfReader, LineEndsAndSpecialCharacters) {
    ExpectTexts({{"a\\par b\\line c\\tab d", "a\nb\nc\td"},
                 {"a\\\nb\\\r\nc", "a\nb\nc"},
                 {"a\\page b\\sect c\\column d", "a\nb\nc\nd"},
                 {"a\\par}", "a\n"},
                 {"\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote ",
                  "\u2014\u2013\u2022\u2018\u2019\u201C\u201D"},
                 {"a\\~b\\_c\\-d\\:e\\|f", "a\u00A0b\u2011c\u00ADdef"},
                 {"\\enspace\\emspace\\qmspace\\zwj ", "\u2002\u2003\u2005\u200D"},
                 {"a\\\tb", "a\tb"}},
                Text);
}

TEST_F(RtfReader, BytesAreInTheCodePageOfTheirFontElseOfTheDocument) {
    const std::string fonts = "{\\fonttbl{\\f0\\fcharset1 A;}{\\f1\\fcharset204 B;}{\\f2\\fcharset128 C;}"
                              "{\\f3\\cpg1253 D;}{\\f4\\fcharset2 Symbol;}}";
    ExpectTexts(
        {{"\\'e9\\'80\\'81", "\u00E9\u20AC\u0081"},
         {"\\ansicpg1251 \\'e9", "\u0439"},
         {"\\mac\\'8e", "\u00E9"},
         {"\\pc\\'82", "\u00E9"},
         {"\\ansicpg99999\\'e9", "\u00E9"},
         {"\\ansicpg932\\'93\\'fa\\'96{x}", "\u65E5\uFFFDx"},
         {"\\ansicpg936\\'d6\\'d0 \\ansicpg949\\'c7\\'d1 \\ansicpg950\\'a4\\'a4", "\u4E2D \uD55C \u4E2D"},
         {"\\ansicpg1255\\'f9\\'ec", "\u05E9\u05DC"},
         {"\\'zz\\'9", "zz9"}},
        Text);
    EXPECT_EQ(Text(fonts + "\\f1\\'e9\\f0\\'e9\\f2\\'93\\'fa\\'83A\\f3\\'e1\\f4\\'b7"),
              "\u0439\u00E9\u65E5\u30A2\u03B1\u2022");
}

TEST_F(RtfReader, UnicodeCharactersReplaceWhatStandsBehindThem) {
    ExpectTexts({{"\\u8364?x", "\u20ACx"},
                 {"\\u8364 ?x", "\u20ACx"},
                 {"\\u-4064?x", "\uF020x"},
                 {"\\uc0\\u8364 x", "\u20ACx"},
                 {"\\uc2\\u8364\\'80ax", "\u20ACx"},
                 {"\\uc3\\u8364 abcx", "\u20ACx"},
                 {"{\\uc0\\u8364}\\u8364?x", "\u20AC\u20ACx"},
                 {"\\u8364\\tab x", "\u20ACx"},
                 {"\\uc3\\u8364\\~\\{\\'3fx", "\u20ACx"},
                 {"\\u8364\\u8364?x", "\u20AC\u20ACx"},
                 {"{\\u8364}x", "\u20ACx"},
                 {"\\u-10179?\\u-8548?x", "\U0001F69Cx"},
                 {"\\u55357?\\u56988?x", "\U0001F69Cx"},
                 {"\\u128668?x", "\U0001F69Cx"},
                 {"\\u-10179?x", "\uFFFDx"},
                 {"\\u-8548?x", "\uFFFDx"},
                 {"\\u-10179?\\u-10179?\\u-8548?", "\uFFFD\U0001F69C"},
                 {"\\u-10179?\\par x", "\uFFFD\nx"},
                 {"\\u-10179?", "\uFFFD"},
                 {"\\u999999999999?x", "\uFFFDx"},
                 {"\\u-999999999999?x", "\uFFFDx"},
                 {"\\u x", "x"},
                 {"\\u10?x", "x"}},
                Text);
}

TEST_F(RtfReader, TheUnicodeVariantIsShownAlone) {
    ExpectTexts(
        {{"{\\upr{ansi}{\\*\\ud{\\u8364?uni}}}x", "\u20ACunix"}, {"{\\pict{\\upr{a}{\\*\\ud{b}}}}x", "x"}},
        Text);
}

TEST_F(RtfReader, UnknownAndInvisibleDestinationsAreSkipped) {
    ExpectTexts({{"{\\*\\mystery a{b}}x", "x"},
                 {"{\\* \\mystery a}x", " ax"},
                 {"{a\\*\\mystery b}x", "abx"},
                 {"{\\info{\\title t}}{\\stylesheet{\\s1 S;}}{\\header h}{\\footerr f}x", "x"},
                 {"\\headery720 x", "x"},
                 {"{\\pict\\pngblip 8950}{\\*\\shppict{\\pict 89}}{\\nonshppict{\\pict 89}}x", "x"},
                 {"{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt link}}x", "linkx"},
                 {"{\\field{\\fldinst HYPERLINK}{\\*\\fldrslt link}}x", "linkx"},
                 {"{\\object{\\*\\objdata 0105}{\\result seen}}x", "seenx"},
                 {"a{\\footnote f}b{\\v hidden\\par}\\v1 h\\v0 c", "abc"},
                 {"{\\listtext 1.\\tab}a\\par{\\pntext\\u-3913?\\tab}b", "1.\ta\n\u2022\tb"},
                 {"{\\*\\bkmkstart m}{\\*\\bkmkend m}{\\xe e}{\\tc c}x", "x"}},
                Text);
}

TEST_F(RtfReader, BinaryBlocksArePassedOver) {
    EXPECT_EQ(Text("{\\pict\\bin5 }}}}}}x"), "x");
    EXPECT_EQ(Text("a\\bin3 {{{b"), "ab");
    EXPECT_EQ(Text("a\\bin b"), "ab");
    EXPECT_EQ(Text("a\\bin-7 b"), "ab");
    EXPECT_EQ(Text("a\\bin99999999999 b"), "a");
}

TEST_F(RtfReader, TablesAreLinesOfTabs) {
    ExpectTexts(
        {{"\\trowd\\cellx100\\intbl a\\cell b\\cell\\row\\trowd c\\cell\\cell\\row\\pard d", "a\tb\nc\t\nd"},
         {"{\\b a\\cell b\\cell}\\row c", "a\tb\nc"},
         {"a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}c\\cell d\\cell\\row",
          "a\tb\nc\td\n"}},
        Text);
}

TEST_F(RtfReader, FormatsHoldForTheirGroup) {
    const auto runs = Runs(
        "\\deff1{\\fonttbl{\\f0 A;}{\\f1\\froman B{\\*\\falt C};}\\f7 D;}"
        "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue0;}"
        "a{\\b b\\i c}\\fs18\\cf1 d\\f7\\ulwave e\\ul0\\cf2 f\\b\\uldb g\\ulnone\\b0 h\\plain i\\cf9 j\\f5\\fs0 k");
    ASSERT_EQ(runs.size(), 10U);
    CharacterFormat plain;
    plain.font = "B";
    EXPECT_EQ(runs[0], (TextRun{U"a", plain}));
    CharacterFormat format = plain;
    format.isBold = true;
    EXPECT_EQ(runs[1], (TextRun{U"b", format}));
    format.isItalic = true;
    EXPECT_EQ(runs[2], (TextRun{U"c", format}));
    format = plain;
    format.halfPoints = 18;
    format.color = Color{255, 0, 0};
    EXPECT_EQ(runs[3], (TextRun{U"d", format}));
    format.font = "D";
    format.isUnderlined = true;
    EXPECT_EQ(runs[4], (TextRun{U"e", format}));
    format.isUnderlined = false;
    format.color = Color{0, 0, 0};
    EXPECT_EQ(runs[5], (TextRun{U"f", format}));
    format.isUnderlined = true;
    format.isBold = true;
    EXPECT_EQ(runs[6], (TextRun{U"g", format}));
    format.isUnderlined = false;
    format.isBold = false;
    EXPECT_EQ(runs[7], (TextRun{U"h", format}));
    EXPECT_EQ(runs[8], (TextRun{U"ij", plain}));
    format = plain;
    format.font = "";
    EXPECT_EQ(runs[9], (TextRun{U"k", format}));
}

TEST_F(RtfReader, TextThatNamesNoColourHasTheReadersOwn) {
    const auto runs =
        Runs("{\\colortbl\\red255\\green0\\blue0;\\red0\\green0\\blue255}a\\cf0 b\\plain c\\cf1 d\\cf-1 e");
    ASSERT_EQ(runs.size(), 5U);
    EXPECT_EQ(runs[0].format.color, std::nullopt);
    EXPECT_EQ(runs[1].format.color, (Color{255, 0, 0}));
    EXPECT_EQ(runs[2].format.color, std::nullopt);
    EXPECT_EQ(runs[3].format.color, (Color{0, 0, 255}));
    EXPECT_EQ(runs[4].format.color, std::nullopt);
}

TEST_F(RtfReader, ParagraphsTakeTheAlignmentInForceAtTheirEnd) {
    const RichDocument document = ReadRtf("{\\rtf1\\qc a\\par{\\qr b\\par}c\\par\\pard d\\par\\qj e}");
    ASSERT_EQ(document.paragraphs.size(), 5U);
    EXPECT_EQ(document.paragraphs[0].alignment, Alignment::Center);
    EXPECT_EQ(document.paragraphs[1].alignment, Alignment::Right);
    EXPECT_EQ(document.paragraphs[2].alignment, Alignment::Center);
    EXPECT_EQ(document.paragraphs[3].alignment, Alignment::Left);
    EXPECT_EQ(document.paragraphs[4].alignment, Alignment::Justified);
}

TEST_F(RtfReader, TheFontTableMayLackBracesAndTheLastSemicolon) {
    EXPECT_EQ(Runs("{\\fonttbl\\f0\\fswiss Helv;\\f1 Times}\\f1 x").at(0).format.font, "Times");
}

TEST_F(RtfReader, FontNamesAreTakenWholeAndAlone) {
    const auto font = [](const std::string& entry) {
        return Runs("{\\fonttbl{\\f9 Other;}{\\f3" + entry + "}{\\f8 Another;}}\\f3 x").at(0).format.font;
    };
    EXPECT_EQ(font("\\fcharset204 \\'c0;"), "\u0410");
    EXPECT_EQ(font("{\\*\\panose 0202}Arial{\\*\\falt Helvetica};"), "Arial");
    EXPECT_EQ(font(" Ari{\\b a}l;"), "Arial");
    EXPECT_EQ(font(" Arial; "), "Arial");
    EXPECT_EQ(font(" Arial"), "Arial");
    EXPECT_EQ(font(" Semi\\u59?colon;"), "Semi;colon");
    EXPECT_EQ(font(" \\u-10179?\\u-8548?;"), "\U0001F69C");
    EXPECT_EQ(font(" \\u-10179?x;"), "\uFFFDx");
    EXPECT_EQ(font(";"), "");
    EXPECT_EQ(font(" Old;}{\\f3 New;"), "New");
    EXPECT_EQ(font(" " + std::string(100000, 'n') + ";"), std::string(63, 'n'));
}

TEST_F(RtfReader, TheBulletsOfSymbolFontsAreBullets) {
    const std::string fonts = "{\\fonttbl{\\f0 A;}{\\f1\\fcharset2 Symbol;}}";
    EXPECT_EQ(Text(fonts + "\\f1\\u-3913?\\'b7\\f0\\u-3913?\\'b7{\\listtext\\u-3913?}"),
              "\u2022\u2022\uF0B7\u00B7\u2022");
}

TEST_F(RtfReader, WhatIsNoRichTextIsPlainTextOfTheCodePage) {
    const auto plain = [](std::string_view bytes) { return Utf8Of(PlainText(ReadRtf(bytes))); };
    EXPECT_EQ(plain(""), "");
    EXPECT_EQ(plain("a\xE9\r\nb\rc\nd"), "a\u00E9\nb\nc\nd");
    EXPECT_EQ(plain("a\t{\\b}\r\n"), "a\t{\\b}\n");
    EXPECT_EQ(plain(std::string_view("a\0b\x07", 4)), "ab");
    EXPECT_EQ(plain("\xEF\xBB\xBF\xC3\xA9\x80"), "\u00E9\uFFFD");
    EXPECT_EQ(plain("{\\urtf1 x}"), "{\\urtf1 x}");
    UseCodePage(CodePage::Named("CP1251").value());
    EXPECT_EQ(plain("\xE9"), "\u0439");
}

TEST_F(RtfReader, RichTextMayBeginWithAByteOrderMarkOrBlanksAndLackItsVersion) {
    const auto read = [](std::string_view bytes) { return Utf8Of(PlainText(ReadRtf(bytes))); };
    EXPECT_EQ(read("\xEF\xBB\xBF{\\rtf1 x}"), "x");
    EXPECT_EQ(read("\r\n {\\rtf x}"), "x");
    EXPECT_EQ(read("{\\rtf\\ansi x}"), "x");
}

} // namespace

} // namespace orvel
