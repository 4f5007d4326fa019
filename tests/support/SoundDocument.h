// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <algorithm>

namespace orvel::testing {

// Whether a document is what the model promises, and its characters are those of Unicode.
inline bool IsSound(const RichDocument& document) {
    const auto isSound = [](char32_t each) {
        return (each >= U' ' || each == U'\t') && each <= 0x10FFFF && (each < 0xD800 || each > 0xDFFF);
    };
    for (const Paragraph& paragraph : document.paragraphs) {
        const TextRun* last = nullptr;
        for (const TextRun& run : paragraph.runs) {
            const bool isNew = last == nullptr || last->format != run.format;
            if (!isNew || run.text.empty() || run.format.halfPoints <= 0 ||
                !std::ranges::all_of(run.text, isSound)) {
                return false;
            }
            last = &run;
        }
    }
    return !document.paragraphs.empty();
}

} // namespace orvel::testing
