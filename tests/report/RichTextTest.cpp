// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RichText.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

CharacterFormat Bold() {
    CharacterFormat format;
    format.isBold = true;
    return format;
}

TEST(RichText, AnEmptyDocumentIsOneEmptyParagraph) {
    const RichDocument document;
    EXPECT_EQ(document.paragraphs.size(), 1U);
    EXPECT_EQ(PlainText(document), U"");
}

TEST(RichText, AppendingJoinsRunsOfOneFormat) {
    Paragraph paragraph;
    paragraph.Append(U"a", {});
    paragraph.Append(U"b", {});
    paragraph.Append(U"", Bold());
    paragraph.Append(U"c", Bold());
    ASSERT_EQ(paragraph.runs.size(), 2U);
    EXPECT_EQ(paragraph.runs[0].text, U"ab");
    EXPECT_EQ(paragraph.runs[1].text, U"c");
}

TEST(RichText, ThePlainTextHasLineFeedsBetweenLines) {
    RichDocument document;
    document.paragraphs[0].Append(U"a\tb\u2028c", {});
    document.paragraphs.emplace_back();
    document.paragraphs.emplace_back().Append(U"d", Bold());
    document.paragraphs.emplace_back();
    EXPECT_EQ(PlainText(document), U"a\tb\nc\n\nd\n");
}

} // namespace

} // namespace orvel
