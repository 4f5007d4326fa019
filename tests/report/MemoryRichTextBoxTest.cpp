// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/MemoryRichTextBox.h"

#include "report/RtfWriter.h"
#include "tests/report/RichTextBoxContract.h"

namespace orvel::testing {

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(InMemory, RichTextBoxContract, MemoryRichTextBox);

TEST(MemoryRichText, ItsDocumentIsWhatItWrites) {
    MemoryRichTextBox box;
    box.SetText("a\x07\r\nb");
    EXPECT_EQ(ReadRtf(WriteRtf(box.Document())), box.Document());
    EXPECT_EQ(box.Document().paragraphs.at(0).runs.at(0).text, U"a ");
}

TEST(MemoryRichText, ALineEndIsOneWhateverTheFormatsOfItsCharacters) {
    MemoryRichTextBox box;
    box.SetText("ab\r\ncd\r\r\n\nef");
    for (const auto& [start, length] : {std::pair{0U, 3U}, {7U, 1U}, {8U, 1U}, {9U, 1U}}) {
        box.Select(start, length);
        box.SetSelectionBold(true);
    }
    const RichDocument document = box.Document();
    std::vector<std::u32string> lines;
    for (const Paragraph& paragraph : document.paragraphs) {
        lines.push_back(paragraph.runs.empty() ? U"" : paragraph.runs[0].text);
    }
    EXPECT_EQ(lines, (std::vector<std::u32string>{U"ab", U"cd", U"", U"", U"ef"}));
    EXPECT_TRUE(document.paragraphs[0].runs[0].format.isBold);
    EXPECT_FALSE(document.paragraphs[1].runs[0].format.isBold);
}

TEST(MemoryRichText, ChangesThatMeetBecomeOneRun) {
    MemoryRichTextBox box;
    box.SetText("abcdef");
    for (const std::size_t start : {2U, 0U, 4U, 1U, 3U}) {
        box.Select(start, 1);
        box.SetSelectionBold(true);
    }
    box.Select(0, 5);
    EXPECT_TRUE(box.IsSelectionBold());
    box.Select(0, 6);
    EXPECT_FALSE(box.IsSelectionBold());
    box.Select(4, 2);
    box.SetSelectionBold(false);
    const std::vector<TextRun> runs = box.Document().paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].text, U"abcd");
    EXPECT_EQ(runs[1].text, U"ef");
}

TEST(MemoryRichText, HasNoLettersToDraw) {
    MemoryRichTextBox box;
    ExpectRunTimeError(ErrorNumber::InvalidProcedureCall, [&] { (void)box.DrawRange({}); });
}

} // namespace

} // namespace orvel::testing
