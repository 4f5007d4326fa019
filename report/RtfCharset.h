// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace orvel {

// The code page of a document that names none, and of a number that is not known.
inline constexpr int kWindows1252 = 1252;

// The bytes of a symbol font: Windows-1252, but for its bullet.
inline constexpr int kSymbolPage = 42;

// The code page of a font's character set; nothing said (1, default) is 0.
[[nodiscard]] int CodePageOfCharset(int charset);

// Turns bytes of the code pages that rich text names by their number into Unicode.
class RtfCharsets {
public:
    RtfCharsets();
    ~RtfCharsets();
    RtfCharsets(const RtfCharsets&) = delete;
    RtfCharsets& operator=(const RtfCharsets&) = delete;

    // Appends what the bytes stand for. A byte that a single-byte page does not assign has its own number;
    // what is wrong in a multi-byte page becomes the replacement character.
    void Decode(std::string_view bytes, int codePage, std::u32string& text);

private:
    class Converter;
    std::map<int, std::unique_ptr<Converter>> converters;
};

} // namespace orvel
