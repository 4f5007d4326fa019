// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace orvel {

// What a word of rich text asks for.
enum class RtfAction {
    // Where the text of its group goes.
    SkipGroup,
    FontTable,
    ColorTable,
    UnicodeVariant, // a group in two parts, of which the one behind "ud" is for readers of Unicode
    ShowUnicodePart,
    ListLabel,
    // The document.
    CodePageNumber,
    CodePage, // of the document: the value
    DefaultFont,
    FallbackLength,
    // Characters.
    UnicodeCharacter,
    Character, // the value
    EndParagraph,
    EndRow,
    // Formats.
    Font,
    FontSize,
    TextColor,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    Hidden,
    ResetCharacters,
    Align, // the value: an Alignment
    ResetParagraph,
    // Entries of the tables.
    FontCharset,
    FontCodePage,
    Red,
    Green,
    Blue,
};

struct RtfRule {
    RtfAction action = RtfAction::SkipGroup;
    char32_t value = 0;
};

// Nothing for a word that asks for nothing here.
[[nodiscard]] const RtfRule* FindRtfRule(std::string_view word);

// Whether a group is followed although its first word is marked as one to pass over when unknown.
[[nodiscard]] bool IsKnownBehindStar(std::string_view word);

} // namespace orvel
