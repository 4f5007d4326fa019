// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfTables.h"

#include "core/Unicode.h"
#include "report/RtfCharset.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace orvel {

namespace {

// Each run keeps a copy of its font's name: without a limit a short file could ask for any amount of memory.
constexpr std::size_t kLongestFontName = 63;

std::uint8_t Component(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

} // namespace

void RtfTables::BeginFont(int number) {
    EndFont();
    currentFont = number;
    fonts[currentFont] = {};
    isNamingFont = true;
}

void RtfTables::SetFontCharset(int charset) {
    SetFontCodePage(CodePageOfCharset(charset));
}

void RtfTables::SetFontCodePage(int codePage) {
    fonts[currentFont].codePage = codePage;
}

void RtfTables::AddFontText(std::u32string_view text) {
    for (const char32_t character : text) {
        if (character == U';') {
            EndFont();
        } else {
            AddToFontName(character);
        }
    }
}

void RtfTables::AddToFontName(char32_t character) {
    if (isNamingFont && fontName.size() < kLongestFontName) {
        fontName += character;
    }
}

void RtfTables::EndFont() {
    if (!fontName.empty()) {
        fonts[currentFont].name = Utf8Of(fontName);
        fontName.clear();
    }
    isNamingFont = false;
}

void RtfTables::SetRed(int value) {
    CurrentColor().red = Component(value);
}

void RtfTables::SetGreen(int value) {
    CurrentColor().green = Component(value);
}

void RtfTables::SetBlue(int value) {
    CurrentColor().blue = Component(value);
}

Color& RtfTables::CurrentColor() {
    return currentColor ? *currentColor : currentColor.emplace();
}

void RtfTables::AddColorText(std::u32string_view text) {
    for (std::ptrdiff_t ends = std::ranges::count(text, U';'); ends > 0; --ends) {
        colors.push_back(std::exchange(currentColor, std::nullopt));
    }
}

void RtfTables::EndColor() {
    if (currentColor) {
        colors.push_back(std::exchange(currentColor, std::nullopt));
    }
}

std::string RtfTables::FontName(int number) const {
    const auto found = fonts.find(number);
    return found == fonts.end() ? std::string{} : found->second.name;
}

int RtfTables::CodePageOfFont(int number) const {
    const auto found = fonts.find(number);
    return found == fonts.end() ? 0 : found->second.codePage;
}

std::optional<Color> RtfTables::ColorOf(int number) const {
    const bool isInTable = number >= 0 && static_cast<std::size_t>(number) < colors.size();
    return isInTable ? colors[static_cast<std::size_t>(number)] : std::nullopt;
}

} // namespace orvel
