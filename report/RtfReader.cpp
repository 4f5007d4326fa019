// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfReader.h"

#include "core/CodePage.h"
#include "core/Unicode.h"
#include "report/RtfDocumentBuilder.h"
#include "report/RtfInterpreter.h"

namespace orvel {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBeginning = "{\\rtf";

// A text without any format; its lines are paragraphs.
RichDocument PlainDocument(std::u32string_view text) {
    RichDocument document;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of(U"\r\n");
        std::u32string line{text.substr(0, end)};
        std::erase_if(line, [](char32_t each) { return each < U' ' && each != U'\t'; });
        document.paragraphs.back().Append(line, {});
        if (end == std::u32string_view::npos) {
            break;
        }
        document.paragraphs.emplace_back();
        text.remove_prefix(end + (text.substr(end).starts_with(U"\r\n") ? 2 : 1));
    }
    return document;
}

std::u32string InCodePage(std::string_view bytes) {
    std::u32string text;
    for (const char byte : bytes) {
        text += CurrentCodePage().ToUnicode(byte);
    }
    return text;
}

} // namespace

RichDocument ReadRtf(std::string_view bytes) {
    const bool isUtf8 = bytes.starts_with(kByteOrderMark);
    if (isUtf8) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    const std::size_t begin = bytes.find_first_not_of(" \t\r\n");
    if (begin != std::string_view::npos && bytes.substr(begin).starts_with(kBeginning)) {
        return RtfInterpreter(bytes.substr(begin)).Read();
    }
    return PlainDocument(isUtf8 ? UnicodeOf(bytes) : InCodePage(bytes));
}

} // namespace orvel
