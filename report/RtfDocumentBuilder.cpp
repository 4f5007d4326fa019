// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfDocumentBuilder.h"

#include <utility>

namespace orvel {

void RtfDocumentBuilder::Append(std::u32string_view text, const RtfFormat& format) {
    if (format != runFormat) {
        EndRun();
        runFormat = format;
    }
    for (const char32_t character : text) {
        if (character >= U' ' || character == U'\t') {
            run += character;
        }
    }
}

void RtfDocumentBuilder::EndParagraph(Alignment alignment) {
    EndRun();
    document.paragraphs.back().alignment = alignment;
    document.paragraphs.emplace_back();
}

void RtfDocumentBuilder::TakeBack(char32_t character) {
    if (run.ends_with(character)) {
        run.pop_back();
    }
}

RichDocument RtfDocumentBuilder::Finish(Alignment alignment) {
    EndRun();
    document.paragraphs.back().alignment = alignment;
    return std::exchange(document, {});
}

void RtfDocumentBuilder::EndRun() {
    if (!run.empty()) {
        document.paragraphs.back().Append(run, Resolved(runFormat));
        run.clear();
    }
}

CharacterFormat RtfDocumentBuilder::Resolved(const RtfFormat& format) const {
    CharacterFormat resolved;
    if (const auto font = fonts.find(format.font); font != fonts.end()) {
        resolved.font = font->second.name;
    }
    resolved.halfPoints = format.halfPoints;
    resolved.isBold = format.isBold;
    resolved.isItalic = format.isItalic;
    resolved.isUnderlined = format.isUnderlined;
    if (format.color >= 0 && static_cast<std::size_t>(format.color) < colors.size()) {
        resolved.color = colors[static_cast<std::size_t>(format.color)];
    }
    return resolved;
}

} // namespace orvel
