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

TEST(MemoryRichText, HasNoLettersToDraw) {
    MemoryRichTextBox box;
    ExpectRunTimeError(ErrorNumber::InvalidProcedureCall, [&] { (void)box.DrawRange({}); });
}

} // namespace

} // namespace orvel::testing
