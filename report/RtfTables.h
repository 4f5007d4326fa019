// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// The number of no colour of a table: the reader's own.
inline constexpr int kReadersColor = -1;

// The fonts and colours of a rich-text file. First they are filled, an entry after the other as the words of
// the tables come; then they are asked by the numbers that the text uses, which may be any.
class RtfTables {
public:
    // Begins the entry of a font; what is said below belongs to it. A name longer than 63 characters is cut.
    void BeginFont(int number);
    void SetFontCharset(int charset);
    void SetFontCodePage(int codePage);
    // A piece of the name; ";" ends it, and what follows up to the next entry is no part of any.
    void AddFontText(std::u32string_view text);
    // A character of the name that ends nothing.
    void AddToFontName(char32_t character);
    // Ends the name that no ";" ended.
    void EndFont();
    [[nodiscard]] int NumberOfFont() const { return currentFont; }

    // The components of the next colour; beyond 0 and 255 they are cut.
    void SetRed(int value);
    void SetGreen(int value);
    void SetBlue(int value);
    // Each ";" ends a colour; one without any component is the reader's own.
    void AddColorText(std::u32string_view text);
    // Ends the colour that no ";" ended.
    void EndColor();

    // Empty for a font that is not in the table.
    [[nodiscard]] std::string FontName(int number) const;
    // 0 when the font says none.
    [[nodiscard]] int CodePageOfFont(int number) const;
    [[nodiscard]] std::optional<Color> ColorOf(int number) const;

private:
    struct Font {
        std::string name; // UTF-8
        int codePage = 0;
    };

    Color& CurrentColor();

    std::map<int, Font> fonts; // ordered: its cost does not hang on which numbers a file picks
    int currentFont = 0;
    bool isNamingFont = true;
    std::u32string fontName;
    std::vector<std::optional<Color>> colors;
    std::optional<Color> currentColor;
};

} // namespace orvel
