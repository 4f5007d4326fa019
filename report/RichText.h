// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The document model of rich text: paragraphs of runs, in Unicode, free of any toolkit.
namespace orvel {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Color&) const = default;
};

struct CharacterFormat {
    std::string font;    // the family's name in UTF-8
    int halfPoints = 24; // size in half points
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    std::optional<Color> color; // nothing: the reader's own text colour

    bool operator==(const CharacterFormat&) const = default;
};

// A line break inside a paragraph; a tab is "\t". No other character below the blank stands in a run.
inline constexpr char32_t kLineBreak = U'\u2028';

// A stretch of text in one format; never empty, and neighbours in a paragraph differ in their format.
struct TextRun {
    std::u32string text;
    CharacterFormat format;

    bool operator==(const TextRun&) const = default;
};

enum class Alignment { Left, Center, Right, Justified };

struct Paragraph {
    std::vector<TextRun> runs;
    Alignment alignment = Alignment::Left;

    // Adds text behind what is there, joining runs of one format; an empty text adds nothing.
    void Append(std::u32string_view text, const CharacterFormat& format);

    bool operator==(const Paragraph&) const = default;
};

// At least one paragraph; an empty document is one empty paragraph. A text that ends with a line end has an
// empty last paragraph.
struct RichDocument {
    std::vector<Paragraph> paragraphs{1};

    bool operator==(const RichDocument&) const = default;
};

// The text alone: paragraphs and line breaks as LF between lines.
[[nodiscard]] std::u32string PlainText(const RichDocument& document);

} // namespace orvel
