// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfWriter.h"

#include "report/RtfReader.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>

namespace orvel {

namespace {

CharacterFormat Format(const std::string& font, int halfPoints) {
    CharacterFormat format;
    format.font = font;
    format.halfPoints = halfPoints;
    return format;
}

// One paragraph of one run.
RichDocument Document(std::u32string_view text, const CharacterFormat& format) {
    RichDocument document;
    document.paragraphs[0].Append(text, format);
    return document;
}

void ExpectRoundTrip(const RichDocument& document) {
    const std::string rtf = WriteRtf(document);
    EXPECT_TRUE(std::ranges::all_of(rtf, [](char each) { return each > 0; })) << rtf;
    EXPECT_EQ(ReadRtf(rtf), document) << rtf;
}

TEST(RtfWriter, WritesWhatWordProcessorsRead) {
    RichDocument document = Document(U"low 0.35 {a\\b}", Format("Courier New", 18));
    CharacterFormat red = Format("Courier New", 18);
    red.color = Color{255, 0, 0};
    document.paragraphs[0].Append(U"|__|", red);
    document.paragraphs.emplace_back();
    document.paragraphs.emplace_back().Append(U"\t23\u00B0\u2028\u20AC\U0001F69C", Format("Arial", 21));
    document.paragraphs.back().alignment = Alignment::Center;
    EXPECT_EQ(WriteRtf(document),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1"
              "{\\fonttbl{\\f0\\fmodern\\fcharset0\\fprq1 Courier New;}{\\f1\\fnil\\fcharset0 Arial;}}"
              "{\\colortbl;\\red255\\green0\\blue0;}\r\n"
              "\\plain\\f0\\fs18 low 0.35 \\{a\\\\b\\}\\plain\\f0\\fs18\\cf1 |__|\\par\r\n"
              "\\par\r\n"
              "\\pard\\qc \\plain\\f1\\fs21 \\tab 23\\u176?\\line \\u8364?\\u-10179?\\u-8548?}\r\n");
}

TEST(RtfWriter, AnEmptyDocumentStillNamesItsFont) {
    EXPECT_EQ(WriteRtf({}),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1"
              "{\\fonttbl{\\f0\\fmodern\\fcharset0\\fprq1 Courier New;}}{\\colortbl;}\r\n}\r\n");
    ExpectRoundTrip({});
}

TEST(RtfWriter, EmptyParagraphsComeBack) {
    for (std::size_t count = 1; count < 5; ++count) {
        RichDocument document;
        document.paragraphs.resize(count);
        ExpectRoundTrip(document);
        document.paragraphs[0].Append(U"text", Format("Arial", 20));
        ExpectRoundTrip(document);
    }
}

TEST(RtfWriter, OddFontNamesComeBack) {
    for (const char* name : {"", " ", "Semi;colon", "Back\\slash", "{Braces}", "Tab\tand\u2028line", "\n",
                             "\u30B4\u30B7\u30C3\u30AF", "\U0001F69C"}) {
        ExpectRoundTrip(Document(U"text", Format(name, 24)));
    }
}

TEST(RtfWriter, EveryCharacterComesBack) {
    std::u32string text;
    for (char32_t character = U' '; character < 0x11000; ++character) {
        if (character < 0xD800 || character > 0xDFFF) {
            text += character;
        }
    }
    text += U"\U0010FFFF";
    ExpectRoundTrip(Document(text, Format("Courier New", 18)));
}

TEST(RtfWriter, WhatIsNoCharacterIsWrittenAsTheReplacementCharacter) {
    const std::u32string text{0xD800, U'a', 0xDFFF, 0x110000};
    EXPECT_EQ(ReadRtf(WriteRtf(Document(text, {}))), Document(U"\uFFFDa\uFFFD\uFFFD", {}));
}

TEST(RtfWriter, RandomDocumentsComeBack) {
    constexpr std::array kFonts = {"Courier New", "Arial", "A;b", "\u00C9t\u00E9"};
    constexpr std::u32string_view kCharacters =
        U"ab 0?\\{};'\t\u2028\u00E9\u20AC\U0001F69C\u0416\u007F\u0081";
    std::mt19937 random(20261121);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 2000; ++round) {
        RichDocument document;
        document.paragraphs.resize(1 + below(6));
        for (Paragraph& paragraph : document.paragraphs) {
            paragraph.alignment = static_cast<Alignment>(below(4));
            for (std::size_t run = below(5); run > 0; --run) {
                CharacterFormat format =
                    Format(kFonts[below(kFonts.size())], static_cast<int>(1 + below(60)));
                format.isBold = below(2) == 0;
                format.isItalic = below(2) == 0;
                format.isUnderlined = below(2) == 0;
                if (below(2) == 0) {
                    format.color =
                        Color{static_cast<std::uint8_t>(below(3)), 0, static_cast<std::uint8_t>(below(256))};
                }
                std::u32string text;
                for (std::size_t length = 1 + below(8); length > 0; --length) {
                    text += kCharacters[below(kCharacters.size())];
                }
                paragraph.Append(text, format);
            }
        }
        ExpectRoundTrip(document);
    }
}

} // namespace

} // namespace orvel
