// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orvel {

// One of the 8-bit character sets that texts and records are kept in. Bytes 0 to 127 are ASCII in all of
// them; a byte to which the set assigns nothing stands for the code point of the same number, so that every
// byte survives the way to Unicode and back.
class CodePage {
public:
    static CodePage Windows1252();
    // The set of that name (as iconv knows it); nothing when it is unknown, multi-byte (UTF-8 included),
    // plain ASCII, no extension of ASCII, or gives two bytes the same code point.
    static std::optional<CodePage> Named(const std::string& charset);
    // The set of the environment's locale where that is an 8-bit one, else Windows-1252.
    static CodePage OfSystem();

    // Whether the system's own texts are in this page.
    [[nodiscard]] bool IsOfSystem() const { return isOfSystem; }

    [[nodiscard]] char32_t ToUnicode(char character) const;
    [[nodiscard]] std::optional<char> FromUnicode(char32_t codePoint) const;

private:
    // codePoints[i] is what the byte 128 + i stands for.
    explicit CodePage(const std::array<char32_t, 128>& codePoints);

    std::array<char32_t, 128> upperHalf;
    std::unordered_map<char32_t, char> bytes;
    bool isOfSystem = false;
};

// The page in force for the whole program; Windows-1252 until set.
[[nodiscard]] const CodePage& CurrentCodePage();
void UseCodePage(const CodePage& page);

// The text of the current page as UTF-8.
[[nodiscard]] std::string ToUtf8(std::string_view text);

// UTF-8 in the current page. What the page lacks, and what is not UTF-8, becomes "?"; a narrow no-break space
// becomes the page's no-break space, so that a grouped number survives.
[[nodiscard]] std::string FromUtf8(std::string_view utf8);

// A text that the system gave (a file name), in the current page: as it stands where the system itself works
// in that page, else from UTF-8.
[[nodiscard]] std::string SystemToText(std::string_view systemText);

// The same as UTF-8, whatever the current page can hold; a byte that is no part of the text becomes U+FFFD.
[[nodiscard]] std::string SystemToUtf8(std::string_view systemText);

// The first character (as UTF-8) that the current page lacks; nothing when it has them all.
[[nodiscard]] std::optional<std::string> FirstLackingCharacter(std::string_view utf8);

} // namespace orvel
