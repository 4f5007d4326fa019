// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Unicode.h"

namespace orvel {

namespace {

unsigned char Byte(char character) {
    return static_cast<unsigned char>(character);
}

} // namespace

void AppendUtf8(std::string& utf8, char32_t codePoint) {
    const auto append = [&utf8](char32_t bits) { utf8 += static_cast<char>(bits); };
    const auto continuation = [&append, codePoint](int shift) {
        append(0x80 | ((codePoint >> shift) & 0x3F));
    };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        continuation(0);
    } else if (codePoint < 0x10000) {
        append(0xE0 | (codePoint >> 12));
        continuation(6);
        continuation(0);
    } else {
        append(0xF0 | (codePoint >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

char32_t TakeUtf8(std::string_view& utf8) {
    const unsigned char lead = Byte(utf8.front());
    std::size_t length = 1;
    char32_t codePoint = lead;
    char32_t least = 0;
    if (lead >= 0xF0 && lead < 0xF8) {
        length = 4;
        codePoint = lead & 0x07U;
        least = 0x10000;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        codePoint = lead & 0x0FU;
        least = 0x800;
    } else if (lead >= 0xC0 && lead < 0xE0) {
        length = 2;
        codePoint = lead & 0x1FU;
        least = 0x80;
    } else if (lead >= 0x80) {
        utf8.remove_prefix(1);
        return kNoCharacter;
    }
    bool isValid = utf8.size() >= length;
    for (std::size_t i = 1; isValid && i < length; ++i) {
        isValid = (Byte(utf8[i]) & 0xC0U) == 0x80U;
        codePoint = (codePoint << 6) | (Byte(utf8[i]) & 0x3FU);
    }
    const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (!isValid || codePoint < least || codePoint > 0x10FFFF || isSurrogate) {
        utf8.remove_prefix(1);
        return kNoCharacter;
    }
    utf8.remove_prefix(length);
    return codePoint;
}

std::string Utf8Of(std::u32string_view text) {
    std::string utf8;
    for (const char32_t codePoint : text) {
        AppendUtf8(utf8, codePoint);
    }
    return utf8;
}

std::u32string UnicodeOf(std::string_view utf8) {
    std::u32string text;
    while (!utf8.empty()) {
        const char32_t codePoint = TakeUtf8(utf8);
        text += codePoint == kNoCharacter ? kReplacementCharacter : codePoint;
    }
    return text;
}

} // namespace orvel
