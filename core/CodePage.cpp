// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"

#include "core/CharsetDecoder.h"
#include "core/Unicode.h"

#include <algorithm>
#include <cstddef>

namespace orvel {

namespace {

constexpr std::size_t kHalf = 128;
constexpr char32_t kNoBreakSpace = 0x00A0;
constexpr char32_t kNarrowNoBreakSpace = 0x202F;

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

// What the one byte stands for; nothing when the set assigns no character to it.
std::optional<char32_t> CharacterOf(CharsetDecoder& decoder, char byte) {
    std::u32string text;
    const bool isTaken = decoder.Decode({&byte, 1}, text) == 1;
    return isTaken && text.size() == 1 ? std::optional(text.front()) : std::nullopt;
}

CodePage& Current() {
    static CodePage page = CodePage::Windows1252();
    return page;
}

} // namespace

CodePage::CodePage(const std::array<char32_t, kHalf>& codePoints) : upperHalf(codePoints) {
    for (std::size_t i = 0; i < kHalf; ++i) {
        bytes.emplace(codePoints[i], static_cast<char>(kHalf + i));
    }
}

CodePage CodePage::Windows1252() {
    // Bytes 0x80 to 0x9F; the other characters have the number of their byte, as have 81, 8D, 8F, 90 and 9D,
    // to which the page assigns nothing.
    static constexpr std::array<char32_t, 32> kSpecial = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    std::array<char32_t, kHalf> codePoints{};
    for (std::size_t i = 0; i < kHalf; ++i) {
        codePoints[i] = i < kSpecial.size() ? kSpecial[i] : static_cast<char32_t>(kHalf + i);
    }
    return CodePage(codePoints);
}

std::optional<CodePage> CodePage::Named(const std::string& charset) {
    CharsetDecoder decoder(charset);
    for (std::size_t i = 0; i < kHalf; ++i) {
        if (CharacterOf(decoder, static_cast<char>(i)) != static_cast<char32_t>(i)) {
            return std::nullopt;
        }
    }
    std::array<char32_t, kHalf> codePoints{};
    std::size_t assigned = 0;
    bool isMultiByte = false;
    for (std::size_t i = 0; i < kHalf; ++i) {
        const auto codePoint = CharacterOf(decoder, static_cast<char>(kHalf + i));
        isMultiByte = isMultiByte || decoder.HasStoppedInside();
        assigned += codePoint ? 1U : 0U;
        codePoints[i] = codePoint.value_or(static_cast<char32_t>(kHalf + i));
    }
    CodePage page(codePoints);
    const bool leavesAscii = std::ranges::all_of(codePoints, [](char32_t each) { return each >= kHalf; });
    const bool isOneToOne = leavesAscii && page.bytes.size() == kHalf;
    if (isMultiByte || assigned == 0 || !isOneToOne) {
        return std::nullopt;
    }
    return page;
}

char32_t CodePage::ToUnicode(char character) const {
    const unsigned char byte = Byte(character);
    return byte < kHalf ? byte : upperHalf[byte - kHalf];
}

std::optional<char> CodePage::FromUnicode(char32_t codePoint) const {
    if (codePoint < kHalf) {
        return static_cast<char>(codePoint);
    }
    const auto found = bytes.find(codePoint);
    return found == bytes.end() ? std::nullopt : std::optional<char>(found->second);
}

const CodePage& CurrentCodePage() {
    return Current();
}

void UseCodePage(const CodePage& page) {
    Current() = page;
}

std::string ToUtf8(std::string_view text) {
    const CodePage& page = CurrentCodePage();
    std::string utf8;
    utf8.reserve(text.size());
    // Most of a text is ASCII, which is the same in both.
    const auto isAscii = [](char character) { return Byte(character) < kHalf; };
    while (!text.empty()) {
        const auto length = static_cast<std::size_t>(std::ranges::find_if_not(text, isAscii) - text.begin());
        utf8 += text.substr(0, length);
        text.remove_prefix(length);
        if (!text.empty()) {
            AppendUtf8(utf8, page.ToUnicode(text.front()));
            text.remove_prefix(1);
        }
    }
    return utf8;
}

std::string FromUtf8(std::string_view utf8) {
    const CodePage& page = CurrentCodePage();
    std::string text;
    while (!utf8.empty()) {
        const char32_t codePoint = TakeUtf8(utf8);
        std::optional<char> character = page.FromUnicode(codePoint);
        if (!character && codePoint == kNarrowNoBreakSpace) {
            character = page.FromUnicode(kNoBreakSpace);
        }
        text += character.value_or('?');
    }
    return text;
}

std::string SystemToText(std::string_view systemText) {
    return CurrentCodePage().IsOfSystem() ? std::string{systemText} : FromUtf8(systemText);
}

std::string SystemToUtf8(std::string_view systemText) {
    return CurrentCodePage().IsOfSystem() ? ToUtf8(systemText) : Utf8Of(UnicodeOf(systemText));
}

std::optional<std::string> FirstLackingCharacter(std::string_view utf8) {
    const CodePage& page = CurrentCodePage();
    while (!utf8.empty()) {
        const std::string_view before = utf8;
        if (!page.FromUnicode(TakeUtf8(utf8))) {
            return std::string{before.substr(0, before.size() - utf8.size())};
        }
    }
    return std::nullopt;
}

} // namespace orvel
