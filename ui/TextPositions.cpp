// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/TextPositions.h"

#include "core/Text.h"

#include <algorithm>

namespace orvel::ui {

TextPositions::TextPositions(std::string_view text) {
    std::size_t done = 0;
    for (std::size_t lineEnd = text.find(kCrLf); lineEnd != std::string_view::npos;
         lineEnd = text.find(kCrLf, done)) {
        AddPlain(lineEnd - done);
        Add(kCrLf.size(), 1);
        done = lineEnd + kCrLf.size();
    }
    AddPlain(text.size() - done);
}

void TextPositions::AddPlain(std::size_t characters) {
    end.text += characters;
    end.document += static_cast<int>(characters);
}

void TextPositions::Add(std::size_t characters, int positions) {
    end.text += characters;
    end.document += positions;
    steps.push_back(end);
}

int TextPositions::ToDocument(std::size_t text) const {
    const Step& last = *std::prev(std::ranges::upper_bound(steps, text, {}, &Step::text));
    return last.document + static_cast<int>(text - last.text);
}

std::size_t TextPositions::ToText(int document) const {
    const Step& last = *std::prev(std::ranges::upper_bound(steps, document, {}, &Step::document));
    return last.text + static_cast<std::size_t>(document - last.document);
}

} // namespace orvel::ui
