// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/MemoryRichTextBox.h"

#include "core/RunTimeError.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace orvel {

namespace {

class MemoryRichText : public testing::LogicTest {
protected:
    MemoryRichTextBox box;
};

TEST_F(MemoryRichText, GivesBackTheTextItWasGiven) {
    box.SetText("a\r\nb\rc\n\xB0");
    EXPECT_EQ(box.Text(), "a\r\nb\rc\n\xB0");
    EXPECT_EQ(box.SelectionStart(), 0U);
    EXPECT_EQ(box.SelectionLength(), 0U);
}

TEST_F(MemoryRichText, ASelectionIsCutToTheText) {
    box.SetText("12345");
    box.Select(3, 10);
    EXPECT_EQ(box.SelectionStart(), 3U);
    EXPECT_EQ(box.SelectionLength(), 2U);
    box.Select(9, 1);
    EXPECT_EQ(box.SelectionStart(), 5U);
    EXPECT_EQ(box.SelectionLength(), 0U);
}

TEST_F(MemoryRichText, ANewTextPutsTheCaretBeforeIt) {
    box.SetText("12345");
    box.Select(3, 2);
    box.SetText("123456789");
    EXPECT_EQ(box.SelectionStart(), 0U);
    EXPECT_EQ(box.SelectionLength(), 0U);
}

TEST_F(MemoryRichText, TheCaretTakesAfterTheCharacterBeforeIt) {
    box.SetText("abcd");
    box.Select(1, 1);
    box.SetSelectionBold(true);
    for (const auto& [caret, isBold] : {std::pair{0U, false}, {1U, false}, {2U, true}, {3U, false}}) {
        box.Select(caret, 0);
        EXPECT_EQ(box.IsSelectionBold(), isBold) << caret;
    }
}

TEST_F(MemoryRichText, FormatsTheSelectionAlone) {
    box.SetText("abcdef");
    box.Select(1, 2);
    box.SetSelectionBold(true);
    box.Select(2, 2);
    box.SetSelectionItalic(true);
    box.SetSelectionColor({255, 0, 0});
    const RichDocument document = box.Document();
    ASSERT_EQ(document.paragraphs.size(), 1U);
    const auto& runs = document.paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 5U);
    EXPECT_EQ(runs[0].text, U"a");
    EXPECT_EQ(runs[1].text, U"b");
    EXPECT_TRUE(runs[1].format.isBold);
    EXPECT_FALSE(runs[1].format.isItalic);
    EXPECT_EQ(runs[2].text, U"c");
    EXPECT_TRUE(runs[2].format.isBold && runs[2].format.isItalic);
    EXPECT_EQ(runs[2].format.color, (Color{255, 0, 0}));
    EXPECT_EQ(runs[3].text, U"d");
    EXPECT_FALSE(runs[3].format.isBold);
    EXPECT_EQ(runs[4].text, U"ef");
    EXPECT_EQ(runs[4].format, runs[0].format);
}

TEST_F(MemoryRichText, IsBoldOnlyWhereAllOfTheSelectionIs) {
    box.SetText("abcd");
    box.Select(0, 2);
    box.SetSelectionBold(true);
    EXPECT_TRUE(box.IsSelectionBold());
    box.Select(0, 4);
    EXPECT_FALSE(box.IsSelectionBold());
    EXPECT_FALSE(box.IsSelectionItalic());
    box.SetSelectionItalic(true);
    EXPECT_TRUE(box.IsSelectionItalic());
}

TEST_F(MemoryRichText, ANewTextTakesTheFormatAtTheCaretButNoColour) {
    box.SetText("old");
    box.Select(0, 3);
    box.SetSelectionColor({0, 0, 255});
    box.SetSelectionBold(true);
    box.Select(0, 0);
    EXPECT_TRUE(box.IsSelectionBold());
    box.SetSelectionBold(false);
    box.SetFontName("Courier New");
    box.SetSelectionFontSize(9);
    box.SetText("new");
    const CharacterFormat format = box.Document().paragraphs.at(0).runs.at(0).format;
    CharacterFormat expected;
    expected.font = "Courier New";
    expected.halfPoints = 18;
    EXPECT_EQ(format, expected);
}

TEST_F(MemoryRichText, TheFontOfTheSelectionAndOfEverything) {
    box.SetText("abc");
    box.SetFontName("Courier New");
    box.Select(1, 1);
    box.SetSelectionFontName("Liberation Sans");
    box.SetSelectionFontSize(14);
    const auto runs = box.Document().paragraphs.at(0).runs;
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].format.font, "Courier New");
    EXPECT_EQ(runs[1].format.font, "Liberation Sans");
    EXPECT_EQ(runs[1].format.halfPoints, 28);
    EXPECT_EQ(runs[2].format, runs[0].format);
}

TEST_F(MemoryRichText, EveryLineEndEndsAParagraphOfTheDocument) {
    box.SetText("\xE9\r\n\r\nb\rc\n");
    const auto paragraphs = box.Document().paragraphs;
    ASSERT_EQ(paragraphs.size(), 5U);
    EXPECT_EQ(paragraphs[0].runs.at(0).text, U"\u00E9");
    EXPECT_TRUE(paragraphs[1].runs.empty());
    EXPECT_EQ(paragraphs[2].runs.at(0).text, U"b");
    EXPECT_EQ(paragraphs[3].runs.at(0).text, U"c");
    EXPECT_TRUE(paragraphs[4].runs.empty());
}

TEST_F(MemoryRichText, ControlCharactersAreBlanksOfTheDocument) {
    const std::string text("a\0b\x07"
                           "c\x0b\x0c\x1f\td",
                           10);
    box.SetText(text);
    EXPECT_EQ(box.Text(), text);
    EXPECT_EQ(box.Document().paragraphs.at(0).runs.at(0).text, U"a b c   \td");
    EXPECT_EQ(ReadRtf(WriteRtf(box.Document())), box.Document());
}

TEST_F(MemoryRichText, LocksAndUnlocks) {
    EXPECT_FALSE(box.IsReadOnly());
    box.SetReadOnly(true);
    EXPECT_TRUE(box.IsReadOnly());
}

TEST_F(MemoryRichText, LoadsWhatItSaved) {
    const testing::TemporaryFolder folder;
    box.SetFontName("Courier New");
    box.SetText("low 0.35\r\n23\xB0\r\n");
    box.Select(4, 4);
    box.SetSelectionColor({255, 0, 0});
    box.Save(folder / "report.rtf");

    MemoryRichTextBox other;
    other.Load(folder / "report.rtf");
    EXPECT_EQ(other.Text(), "low 0.35\r\n23\xB0\r\n");
    EXPECT_EQ(other.Document(), box.Document());
}

TEST_F(MemoryRichText, WhatTheCodePageLacksIsAQuestionMark) {
    const testing::TemporaryFolder folder;
    testing::PutContents(folder / "a.rtf", "{\\rtf1\\uc0 a\\u1078 b\\line c}");
    box.Load(folder / "a.rtf");
    EXPECT_EQ(box.Text(), "a?b\r\nc");
}

TEST_F(MemoryRichText, AFileThatCannotBeReadOrWrittenRaises) {
    const testing::TemporaryFolder folder;
    EXPECT_THROW(box.Load(folder / "none.rtf"), FileError);
    EXPECT_THROW(box.Save(folder / "none/a.rtf"), FileError);
}

} // namespace

} // namespace orvel
