// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RichText.h"

namespace orvel {

void Paragraph::Append(std::u32string_view text, const CharacterFormat& format) {
    if (text.empty()) {
        return;
    }
    if (!runs.empty() && runs.back().format == format) {
        runs.back().text += text;
    } else {
        runs.push_back({std::u32string{text}, format});
    }
}

std::u32string PlainText(const RichDocument& document) {
    std::u32string text;
    for (const Paragraph& paragraph : document.paragraphs) {
        if (&paragraph != &document.paragraphs.front()) {
            text += U'\n';
        }
        for (const TextRun& run : paragraph.runs) {
            for (const char32_t character : run.text) {
                text += character == kLineBreak ? U'\n' : character;
            }
        }
    }
    return text;
}

} // namespace orvel
