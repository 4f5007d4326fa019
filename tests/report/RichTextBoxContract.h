// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunTimeError.h"
#include "core/SafeFile.h"
#include "report/RichTextBox.h"
#include "report/RtfReader.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace orvel::testing {

// What every rich-text box does, whoever shows it. Instantiate it with the box's type.
template <class Box>
class RichTextBoxContract : public LogicTest {
protected:
    // What the box would write.
    [[nodiscard]] RichDocument Document() const {
        box.Save(folder / "document.rtf");
        return ReadRtf(ReadFile(folder / "document.rtf"));
    }
    [[nodiscard]] std::vector<TextRun> Runs() const { return Document().paragraphs.at(0).runs; }

    TemporaryFolder folder;
    Box box;
};

TYPED_TEST_SUITE_P(RichTextBoxContract);

TYPED_TEST_P(RichTextBoxContract, IsEmptyAtFirst) {
    EXPECT_EQ(this->box.Text(), "");
    EXPECT_EQ(this->box.SelectionStart(), 0U);
    EXPECT_EQ(this->box.SelectionLength(), 0U);
    EXPECT_FALSE(this->box.IsSelectionBold());
    EXPECT_FALSE(this->box.IsSelectionItalic());
    EXPECT_FALSE(this->box.IsReadOnly());
}

TYPED_TEST_P(RichTextBoxContract, GivesBackTheTextItWasGiven) {
    for (const std::string text :
         {"a\r\nb\rc\n\xB0", "", "\r\n", "\r\r", "a\r", "\t<b>&amp;", "a\xA0 b  c\xAD"}) {
        this->box.SetText(text);
        EXPECT_EQ(this->box.Text(), text);
        EXPECT_EQ(this->box.SelectionStart(), 0U);
        EXPECT_EQ(this->box.SelectionLength(), 0U);
    }
}

TYPED_TEST_P(RichTextBoxContract, ASelectionIsCutToTheText) {
    auto& box = this->box;
    box.SetText("12345");
    box.Select(3, 10);
    EXPECT_EQ(box.SelectionStart(), 3U);
    EXPECT_EQ(box.SelectionLength(), 2U);
    box.Select(9, 1);
    EXPECT_EQ(box.SelectionStart(), 5U);
    EXPECT_EQ(box.SelectionLength(), 0U);
    box.Select(1, std::string::npos);
    EXPECT_EQ(box.SelectionLength(), 4U);
}

TYPED_TEST_P(RichTextBoxContract, PositionsCountALineEndAsTwoCharacters) {
    auto& box = this->box;
    box.SetText("ab\r\ncd\r\n\r\nef");
    for (const std::size_t start : {0U, 1U, 2U, 4U, 6U, 8U, 10U, 12U}) {
        box.Select(start, 0);
        EXPECT_EQ(box.SelectionStart(), start);
    }
    box.Select(4, 6);
    EXPECT_EQ(box.SelectionStart(), 4U);
    EXPECT_EQ(box.SelectionLength(), 6U);
    box.Select(10, 1);
    box.SetSelectionColor({255, 0, 0});
    const auto runs = this->Document().paragraphs.at(3).runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].text, U"e");
    EXPECT_TRUE(runs[0].format.color);
    EXPECT_FALSE(runs[1].format.color);
}

TYPED_TEST_P(RichTextBoxContract, ANewTextPutsTheCaretBeforeIt) {
    this->box.SetText("12345");
    this->box.Select(3, 2);
    this->box.SetText("123456789");
    EXPECT_EQ(this->box.SelectionStart(), 0U);
    EXPECT_EQ(this->box.SelectionLength(), 0U);
}

TYPED_TEST_P(RichTextBoxContract, TheCaretTakesAfterTheCharacterBeforeIt) {
    this->box.SetText("abcd");
    this->box.Select(1, 1);
    this->box.SetSelectionBold(true);
    for (const auto& [caret, isBold] : {std::pair{0U, false}, {1U, false}, {2U, true}, {3U, false}}) {
        this->box.Select(caret, 0);
        EXPECT_EQ(this->box.IsSelectionBold(), isBold) << caret;
    }
}

TYPED_TEST_P(RichTextBoxContract, FormatsTheSelectionAlone) {
    auto& box = this->box;
    box.SetText("abcdef");
    box.Select(1, 2);
    box.SetSelectionBold(true);
    box.Select(2, 2);
    box.SetSelectionItalic(true);
    box.SetSelectionColor({255, 0, 0});
    EXPECT_EQ(box.SelectionStart(), 2U);
    EXPECT_EQ(box.SelectionLength(), 2U);
    const auto runs = this->Runs();
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

TYPED_TEST_P(RichTextBoxContract, IsBoldOrItalicOnlyWhereAllOfTheSelectionIs) {
    auto& box = this->box;
    box.SetText("ab\r\n\r\ncd");
    box.Select(0, 2);
    box.SetSelectionBold(true);
    EXPECT_TRUE(box.IsSelectionBold());
    box.Select(0, 10);
    EXPECT_FALSE(box.IsSelectionBold());
    EXPECT_FALSE(box.IsSelectionItalic());
    box.SetSelectionItalic(true);
    EXPECT_TRUE(box.IsSelectionItalic());
    box.SetSelectionItalic(false);
    EXPECT_FALSE(box.IsSelectionItalic());
}

TYPED_TEST_P(RichTextBoxContract, ANewTextTakesTheFormatAtTheCaretButNoColour) {
    auto& box = this->box;
    box.SetText("old");
    box.Select(0, 3);
    box.SetSelectionColor({0, 0, 255});
    box.SetSelectionBold(true);
    box.Select(0, 0);
    EXPECT_TRUE(box.IsSelectionBold());
    box.SetSelectionBold(false);
    EXPECT_FALSE(box.IsSelectionBold());
    box.SetFontName("Courier New");
    box.SetSelectionFontSize(9);
    box.SetText("new");
    CharacterFormat expected;
    expected.font = "Courier New";
    expected.halfPoints = 18;
    EXPECT_EQ(this->Runs().at(0).format, expected);
}

TYPED_TEST_P(RichTextBoxContract, AnEmptyTextKeepsTheFormatForTheNext) {
    auto& box = this->box;
    box.SetFontName("Courier New");
    box.SetSelectionFontSize(9);
    box.SetText("first");
    box.SetText("");
    box.Select(0, 0);
    box.SetSelectionItalic(true);
    box.SetText("second");
    EXPECT_EQ(this->Runs().at(0).format.font, "Courier New");
    EXPECT_EQ(this->Runs().at(0).format.halfPoints, 18);
    EXPECT_TRUE(this->Runs().at(0).format.isItalic);
}

TYPED_TEST_P(RichTextBoxContract, TheFontOfTheSelectionAndOfEverything) {
    auto& box = this->box;
    box.SetText("abc");
    box.SetFontName("Courier New");
    box.Select(1, 1);
    box.SetSelectionFontName("Liberation Sans");
    box.SetSelectionFontSize(14);
    auto runs = this->Runs();
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[0].format.font, "Courier New");
    EXPECT_EQ(runs[1].format.font, "Liberation Sans");
    EXPECT_EQ(runs[1].format.halfPoints, 28);
    EXPECT_EQ(runs[2].format, runs[0].format);
    box.SetFontName("DejaVu Sans");
    runs = this->Runs();
    ASSERT_EQ(runs.size(), 3U) << "the size stays";
    EXPECT_EQ(runs[1].format.font, "DejaVu Sans");
    EXPECT_EQ(runs[2].format.font, "DejaVu Sans");
}

TYPED_TEST_P(RichTextBoxContract, EveryLineEndEndsAParagraphOfTheDocument) {
    this->box.SetText("\xE9\r\n\r\nb\rc\n");
    const auto paragraphs = this->Document().paragraphs;
    ASSERT_EQ(paragraphs.size(), 5U);
    EXPECT_EQ(paragraphs[0].runs.at(0).text, U"\u00E9");
    EXPECT_TRUE(paragraphs[1].runs.empty());
    EXPECT_EQ(paragraphs[2].runs.at(0).text, U"b");
    EXPECT_EQ(paragraphs[3].runs.at(0).text, U"c");
    EXPECT_TRUE(paragraphs[4].runs.empty());
}

TYPED_TEST_P(RichTextBoxContract, ControlCharactersAreBlanksOfTheDocument) {
    const std::string text("a\0b\x07"
                           "c\x0b\x0c\x1f\td",
                           10);
    this->box.SetText(text);
    EXPECT_EQ(this->box.Text(), text);
    EXPECT_EQ(this->Runs().at(0).text, U"a b c   \td");
}

TYPED_TEST_P(RichTextBoxContract, LocksAndUnlocks) {
    this->box.SetReadOnly(true);
    EXPECT_TRUE(this->box.IsReadOnly());
    this->box.SetText("locked for the user alone");
    EXPECT_EQ(this->box.Text(), "locked for the user alone");
    this->box.SetReadOnly(false);
    EXPECT_FALSE(this->box.IsReadOnly());
}

TYPED_TEST_P(RichTextBoxContract, LoadsWhatItSaved) {
    auto& box = this->box;
    box.SetFontName("Courier New");
    box.SetText("low 0.35\r\n23\xB0\r\n");
    box.Select(4, 4);
    box.SetSelectionColor({255, 0, 0});
    const RichDocument saved = this->Document();
    box.SetText("else");
    box.Select(2, 2);
    box.Load(this->folder / "document.rtf");
    EXPECT_EQ(box.Text(), "low 0.35\r\n23\xB0\r\n");
    EXPECT_EQ(box.SelectionStart(), 0U);
    EXPECT_EQ(box.SelectionLength(), 0U);
    EXPECT_EQ(this->Document(), saved);
}

TYPED_TEST_P(RichTextBoxContract, WhatTheCodePageLacksIsAQuestionMark) {
    PutContents(this->folder / "a.rtf", "{\\rtf1\\uc0 a\\u1078 b\\line c\\u-10179 \\u-9033 d}");
    this->box.Load(this->folder / "a.rtf");
    EXPECT_EQ(this->box.Text(), "a?b\r\nc?d");
    this->box.Select(7, 1);
    EXPECT_EQ(this->box.SelectionStart(), 7U);
    this->box.SetSelectionBold(true);
    const TextRun last = this->Document().paragraphs.back().runs.back();
    EXPECT_EQ(last.text, U"d");
    EXPECT_TRUE(last.format.isBold);
}

TYPED_TEST_P(RichTextBoxContract, AFileThatCannotBeReadOrWrittenRaises) {
    this->box.SetText("stays");
    EXPECT_THROW(this->box.Load(this->folder / "none.rtf"), FileError);
    EXPECT_THROW(this->box.Save(this->folder / "none/a.rtf"), FileError);
    EXPECT_EQ(this->box.Text(), "stays");
}

TYPED_TEST_P(RichTextBoxContract, AnswersAsEverWhileATextIsHeldBack) {
    auto& box = this->box;
    box.SetText("before");
    RichDocument document;
    {
        const TextHeldBack held(box);
        box.SetText("first");
        box.SetSelectionItalic(true);
        box.SetText("abcd\r\nef");
        EXPECT_EQ(box.Text(), "abcd\r\nef");
        EXPECT_EQ(box.SelectionStart(), 0U);
        box.SetFontName("Arial");
        box.Select(1, 2);
        box.SetSelectionBold(true);
        box.SetSelectionColor({255, 0, 0});
        EXPECT_EQ(box.SelectionStart(), 1U);
        EXPECT_EQ(box.SelectionLength(), 2U);
        EXPECT_TRUE(box.IsSelectionBold());
        document = this->Document();
    }
    ASSERT_EQ(document.paragraphs.size(), 2U);
    const auto& runs = document.paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[1].text, U"bc");
    EXPECT_EQ(runs[1].format.font, "Arial");
    EXPECT_EQ(runs[1].format.color, (Color{255, 0, 0}));
    EXPECT_TRUE(runs[1].format.isBold && runs[1].format.isItalic);
    EXPECT_TRUE(runs[2].format.isItalic);
    EXPECT_FALSE(runs[2].format.isBold || runs[2].format.color);
    EXPECT_EQ(this->Document(), document);
    EXPECT_EQ(box.Text(), "abcd\r\nef");
    EXPECT_EQ(box.SelectionStart(), 1U);
    EXPECT_EQ(box.SelectionLength(), 2U);
    box.SetSelectionBold(false);
    EXPECT_FALSE(box.IsSelectionBold());
}

TYPED_TEST_P(RichTextBoxContract, WhatWasSetAtTheCaretOutlastsTheHoldingBack) {
    auto& box = this->box;
    {
        const TextHeldBack held(box);
        box.SetText("ab");
        box.SetSelectionBold(true);
    }
    EXPECT_TRUE(box.IsSelectionBold());
    box.SetText("c");
    EXPECT_TRUE(this->Runs().at(0).format.isBold);
}

TYPED_TEST_P(RichTextBoxContract, AFileCanBeHeldBack) {
    auto& box = this->box;
    box.SetText("of the file");
    box.Save(this->folder / "file.rtf");
    {
        const TextHeldBack held(box);
        box.SetText("before it");
        box.Load(this->folder / "file.rtf");
        EXPECT_EQ(box.Text(), "of the file");
    }
    EXPECT_EQ(box.Text(), "of the file");
    EXPECT_EQ(this->Runs().at(0).text, U"of the file");
}

TYPED_TEST_P(RichTextBoxContract, WithoutANewTextNothingIsHeldBack) {
    auto& box = this->box;
    box.SetText("ab");
    {
        const TextHeldBack held(box);
        box.Select(1, 1);
        box.SetSelectionBold(true);
    }
    EXPECT_EQ(box.Text(), "ab");
    EXPECT_EQ(box.SelectionStart(), 1U);
    EXPECT_TRUE(box.IsSelectionBold());
    box.SetText("c");
    EXPECT_EQ(box.Text(), "c");
}

REGISTER_TYPED_TEST_SUITE_P(RichTextBoxContract, AnswersAsEverWhileATextIsHeldBack,
                            WhatWasSetAtTheCaretOutlastsTheHoldingBack, AFileCanBeHeldBack,
                            WithoutANewTextNothingIsHeldBack, IsEmptyAtFirst, GivesBackTheTextItWasGiven,
                            ASelectionIsCutToTheText, PositionsCountALineEndAsTwoCharacters,
                            ANewTextPutsTheCaretBeforeIt, TheCaretTakesAfterTheCharacterBeforeIt,
                            FormatsTheSelectionAlone, IsBoldOrItalicOnlyWhereAllOfTheSelectionIs,
                            ANewTextTakesTheFormatAtTheCaretButNoColour, AnEmptyTextKeepsTheFormatForTheNext,
                            TheFontOfTheSelectionAndOfEverything, EveryLineEndEndsAParagraphOfTheDocument,
                            ControlCharactersAreBlanksOfTheDocument, LocksAndUnlocks, LoadsWhatItSaved,
                            WhatTheCodePageLacksIsAQuestionMark, AFileThatCannotBeReadOrWrittenRaises);

} // namespace orvel::testing
