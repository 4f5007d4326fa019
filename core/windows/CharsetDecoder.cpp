// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CharsetDecoder.h"

#include "core/Unicode.h"
#include "core/windows/Api.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orvel {

namespace {

struct Set {
    std::string_view name;
    UINT page;
};

// Those whose name does not say their number.
constexpr std::array<Set, 7> kSets = {{
    {"GBK", 936},
    {"BIG5", 950},
    {"JOHAB", 1361},
    {"MACINTOSH", 10000},
    {"MAC-CYRILLIC", 10007},
    {"KOI8-R", 20866},
    {"KOI8-U", 21866},
}};

constexpr UINT kNoPage = 0;
constexpr UINT kLatinPages = 28590; // ISO-8859-1 is the next
constexpr UINT kHebrew = 1255;
constexpr UINT kVietnamese = 1258;

// The number that the rest of a name is.
UINT NumberIn(std::string_view digits) {
    UINT number = 0;
    const char* end = digits.data() + digits.size();
    return std::from_chars(digits.data(), end, number).ptr == end ? number : kNoPage;
}

UINT PageOf(std::string_view name) {
    constexpr std::string_view kLatin = "ISO-8859-";
    constexpr std::string_view kNumbered = "CP";
    if (name == "UTF-8") {
        return CP_UTF8;
    }
    if (name.starts_with(kLatin)) {
        return kLatinPages + NumberIn(name.substr(kLatin.size()));
    }
    if (name.starts_with(kNumbered)) {
        return NumberIn(name.substr(kNumbered.size()));
    }
    const auto* found = std::ranges::find(kSets, name, &Set::name);
    return found == kSets.end() ? kNoPage : found->page;
}

// Bytes to which a page assigns nothing: the system gives them a character of the private area or, in its own
// pages, the control character of the same number.
bool IsUnassigned(UINT page, std::size_t byte, wchar_t character) {
    constexpr UINT kFirstWindows = 1250;
    constexpr UINT kThai = 874;
    const bool isOfWindows = (page >= kFirstWindows && page <= kVietnamese) || page == kThai;
    const bool isControl = byte >= 0x80 && byte < 0xA0 && character == byte;
    return (isOfWindows && isControl) || (character >= 0xE000 && character <= 0xF8FF);
}

std::wstring Converted(UINT page, std::string_view bytes) {
    std::array<wchar_t, 4> text{};
    const int length =
        ::MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()),
                              text.data(), static_cast<int>(text.size()));
    return {text.data(), static_cast<std::size_t>(std::max(length, 0))};
}

// Letters and the accents behind them, which these two pages keep apart, in one.
std::wstring Composed(const std::wstring& text) {
    const auto length = static_cast<int>(text.size());
    std::wstring composed(text.size(), L'\0');
    const int kept = text.empty() ? 0
                                  : ::FoldStringW(MAP_PRECOMPOSED, text.data(), length, composed.data(),
                                                  static_cast<int>(composed.size()));
    return kept > 0 ? composed.substr(0, static_cast<std::size_t>(kept)) : text;
}

} // namespace

class CharsetDecoder::Conversion {
public:
    explicit Conversion(UINT number) : page(number), isComposed(number == kHebrew || number == kVietnamese) {
        if (page != CP_UTF8) {
            for (std::size_t i = 0; i < kinds.size(); ++i) {
                const auto byte = static_cast<char>(i);
                const std::wstring text = Converted(page, {&byte, 1});
                if (::IsDBCSLeadByteEx(page, static_cast<BYTE>(i)) != 0) {
                    kinds[i] = Kind::Lead;
                } else if (text.size() == 1 && !IsUnassigned(page, i, text.front())) {
                    kinds[i] = Kind::Character;
                    characters[i] = text.front();
                }
            }
        }
    }

    // Takes the next character off; false when it is wrong or, `isUnfinished`, not all there.
    bool Take(std::string_view& bytes, std::wstring& text, bool& isUnfinished) const {
        if (page == CP_UTF8) {
            return TakeOfUtf8(bytes, text, isUnfinished);
        }
        const auto lead = static_cast<unsigned char>(bytes.front());
        if (kinds.at(lead) == Kind::Character) {
            text += characters.at(lead);
            bytes.remove_prefix(1);
            return true;
        }
        isUnfinished = kinds.at(lead) == Kind::Lead && bytes.size() == 1;
        if (kinds.at(lead) != Kind::Lead || isUnfinished) {
            return false;
        }
        const std::wstring character = Converted(page, bytes.substr(0, 2));
        text += character;
        bytes.remove_prefix(character.empty() ? 0 : 2);
        return !character.empty();
    }

    [[nodiscard]] std::wstring Finished(const std::wstring& text) const {
        return isComposed ? Composed(text) : text;
    }

private:
    enum class Kind : char { None, Character, Lead };

    static bool TakeOfUtf8(std::string_view& bytes, std::wstring& text, bool& isUnfinished) {
        std::string_view rest = bytes;
        const char32_t character = TakeUtf8(rest);
        if (character == kNoCharacter) {
            isUnfinished = IsBeginningOfUtf8(bytes);
            return false;
        }
        bytes = rest;
        constexpr char32_t kFirstOfTwo = 0x10000;
        if (character < kFirstOfTwo) {
            text += static_cast<wchar_t>(character);
        } else {
            text += static_cast<wchar_t>(0xD800 + ((character - kFirstOfTwo) >> 10U));
            text += static_cast<wchar_t>(0xDC00 + ((character - kFirstOfTwo) & 0x3FFU));
        }
        return true;
    }

    // Whether bytes could follow that make a character of them.
    static bool IsBeginningOfUtf8(std::string_view bytes) {
        for (std::string longer{bytes.substr(0, 3)}; longer.size() < 4;) {
            longer += '\xBF';
            std::string_view rest = longer;
            if (TakeUtf8(rest) != kNoCharacter && rest.empty()) {
                return true;
            }
        }
        return false;
    }

    UINT page;
    bool isComposed;
    std::array<Kind, 256> kinds{};
    std::array<wchar_t, 256> characters{};
};

CharsetDecoder::CharsetDecoder(const std::string& charset) {
    if (const UINT page = PageOf(charset); page != kNoPage && ::IsValidCodePage(page) != 0) {
        conversion = std::make_unique<Conversion>(page);
    }
}

CharsetDecoder::~CharsetDecoder() = default;

std::size_t CharsetDecoder::Decode(std::string_view bytes, std::u32string& text) {
    hasStoppedInside = false;
    if (!conversion) {
        return 0;
    }
    std::string_view rest = bytes;
    std::wstring decoded;
    while (!rest.empty() && conversion->Take(rest, decoded, hasStoppedInside)) {
    }
    decoded = conversion->Finished(decoded);
    for (std::size_t i = 0; i < decoded.size(); ++i) {
        char32_t character = decoded[i];
        if (IS_HIGH_SURROGATE(decoded[i]) && i + 1 < decoded.size()) {
            character = 0x10000 + ((character - 0xD800) << 10U) + (char32_t{decoded[++i]} - 0xDC00);
        }
        text += character;
    }
    return bytes.size() - rest.size();
}

} // namespace orvel
