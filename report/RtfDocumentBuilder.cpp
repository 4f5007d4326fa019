// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfDocumentBuilder.h"

#include <utility>

namespace orvel {

void RtfDocumentBuilder::Append(std::u32string_view text, const RtfFormat& format) {
    if (text.empty()) {
        return;
    }
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
    resolved.font = tables.FontName(format.font);
    resolved.halfPoints = format.halfPoints;
    resolved.isBold = format.isBold;
    resolved.isItalic = format.isItalic;
    resolved.isUnderlined = format.isUnderlined;
    resolved.color = tables.ColorOf(format.color);
    return resolved;
}

} // namespace orvel
