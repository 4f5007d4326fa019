// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace orvel::ui {

// Where a text of the logic stands in the toolkit's document: a CR LF of the text is two characters and one
// position of the document, a character beyond the first 65,536 is one and two. Everything else is one and
// one.
class TextPositions {
public:
    TextPositions() = default;
    // Of a text that goes into a document as it stands.
    explicit TextPositions(std::string_view text);

    // For a text that is put together from a document: what comes next.
    void AddPlain(std::size_t characters);
    void Add(std::size_t characters, int positions);

    // Of a position within a CR LF, the one behind it.
    [[nodiscard]] int ToDocument(std::size_t text) const;
    [[nodiscard]] std::size_t ToText(int document) const;

private:
    // Behind something that counts differently.
    struct Step {
        std::size_t text = 0;
        int document = 0;
    };

    std::vector<Step> steps{1};
    Step end;
};

} // namespace orvel::ui
