// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"

#include "core/CodePage.h"
#include "core/Unicode.h"
#include "report/MemoryRichTextBox.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"
#include "tests/support/SoundDocument.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <string>

// Rich text. An input is a file of it.
namespace orvel::fuzz {

namespace {

bool IsPrintableAscii(std::string_view text) {
    return std::ranges::all_of(
        text, [](char each) { return (each >= ' ' && each <= '~') || each == '\r' || each == '\n'; });
}

// Bytes that are no rich text are the text, less its control characters.
void TryPlainText(std::string_view input, const RichDocument& document) {
    std::u32string expected;
    for (std::size_t i = 0; i < input.size(); ++i) {
        const char each = input[i];
        if (each == '\r' || each == '\n') {
            expected += U'\n';
            i += input.substr(i).starts_with("\r\n") ? 1U : 0U;
        } else if (each < '\0' || each >= ' ' || each == '\t') {
            expected += CurrentCodePage().ToUnicode(each);
        }
    }
    Require(PlainText(document) == expected, "what is no rich text is shown as it stands");
}

// The box for texts without a window, as the report window and the viewer use theirs.
void TryBox(const std::filesystem::path& file, const RichDocument& document) {
    MemoryRichTextBox box;
    box.Load(file);
    const std::string text = box.Text();
    std::u32string expected = PlainText(document);
    std::erase(expected, U'\n');
    Require(text.size() - static_cast<std::size_t>(2 * std::ranges::count(text, '\n')) == expected.size(),
            "a box shows every character");
    box.Select(0, text.size());
    box.SetSelectionBold(true);
    box.Save(file);
    box.Load(file);
    Require(box.Text() == text, "a text that was saved is the same when it is opened");
    box.Select(0, text.size());
    // A line end takes after what is before it.
    Require(text.empty() || text.starts_with("\r\n") || box.IsSelectionBold(),
            "what is bold when it is saved is bold when it is opened");
}

} // namespace

bool Try(std::string_view input) {
    static const testing::TemporaryFolder folder;
    static const std::filesystem::path file = folder / "fuzz.rtf";

    const RichDocument document = ReadRtf(input);
    Require(testing::IsSound(document), "a document is sound");
    const std::string rtf = WriteRtf(document);
    Require(IsPrintableAscii(rtf), "what is written is ASCII");
    const RichDocument again = ReadRtf(rtf);
    Require(again == document, "what is written reads back as the same document");
    const std::size_t begin = input.find_first_not_of(" \t\r\n");
    if (!input.starts_with("\xEF\xBB\xBF") &&
        (begin == std::string_view::npos || !input.substr(begin).starts_with("{\\rtf"))) {
        TryPlainText(input, document);
    }
    testing::PutContents(file, input);
    TryBox(file, document);
    return true;
}

} // namespace orvel::fuzz
