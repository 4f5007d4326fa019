// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfInterpreter.h"

#include "core/Unicode.h"

#include <algorithm>
#include <utility>

namespace orvel {

namespace {

constexpr int kLargestHalfPoints = 32767;

// The bullet of symbol fonts, in the private area of Unicode.
constexpr char32_t kSymbolBullet = 0xF0B7;
constexpr char32_t kBullet = 0x2022;

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// A word that switches something on, or with the number 0 off.
bool IsOn(const RtfToken& word) {
    return !word.hasNumber || word.number != 0;
}

} // namespace

RichDocument RtfInterpreter::Read() {
    for (RtfToken token = lexer.Next(); token.kind != RtfToken::Kind::End; token = lexer.Next()) {
        if (token.kind == RtfToken::Kind::OpenGroup) {
            Open();
        } else if (token.kind == RtfToken::Kind::CloseGroup) {
            const Alignment alignment = state.alignment;
            Close();
            if (saved.empty()) {
                return builder.Finish(alignment);
            }
        } else if (!TakeFallback(token)) {
            Obey(token);
        }
    }
    DecodeBytes();
    Put({});
    return builder.Finish(state.alignment);
}

void RtfInterpreter::Open() {
    DecodeBytes();
    fallbackLeft = 0;
    if (!saved.empty() && saved.back().state == state) {
        ++saved.back().groups;
    } else {
        saved.push_back({state});
    }
    hasJustOpened = true;
    isStarred = false;
}

void RtfInterpreter::Close() {
    DecodeBytes();
    Put({});
    fallbackLeft = 0;
    const Destination left = std::exchange(state, saved.back().state).destination;
    if (left == Destination::Fonts && state.destination != left) {
        tables.EndFont();
    } else if (left == Destination::Colors && state.destination != left) {
        tables.EndColor();
    }
    if (--saved.back().groups == 0) {
        saved.pop_back();
    }
    hasJustOpened = false;
}

bool RtfInterpreter::TakeFallback(RtfToken& token) {
    if (fallbackLeft == 0) {
        return false;
    }
    if (token.kind == RtfToken::Kind::Text) {
        const std::size_t length = std::min(token.text.size(), static_cast<std::size_t>(fallbackLeft));
        token.text.remove_prefix(length);
        fallbackLeft -= static_cast<int>(length);
        return token.text.empty();
    }
    if (token.kind == RtfToken::Kind::Word && token.text == "u") {
        // No Unicode character stands for another: the fallback is missing.
        fallbackLeft = 0;
        return false;
    }
    --fallbackLeft;
    return true;
}

void RtfInterpreter::Obey(const RtfToken& token) {
    const bool isFirst = std::exchange(hasJustOpened, false);
    const bool isBehindStar = std::exchange(isStarred, false);
    switch (token.kind) {
    case RtfToken::Kind::Word:
        if (isBehindStar && !IsKnownBehindStar(token.text)) {
            state.destination = Destination::Skipped;
        } else {
            ObeyWord(token);
        }
        break;
    case RtfToken::Kind::Symbol:
        isStarred = isFirst && token.byte == '*';
        ObeySymbol(token.byte);
        break;
    case RtfToken::Kind::Byte:
        TakeBytes({&token.byte, 1});
        break;
    default:
        TakeBytes(token.text);
        break;
    }
}

void RtfInterpreter::ObeyWord(const RtfToken& word) {
    const RtfRule* rule = FindRtfRule(word.text);
    if (rule == nullptr) {
        return;
    }
    if (rule->action == RtfAction::ShowUnicodePart && state.hasUnicodePart) {
        state.destination = Destination::Shown;
        state.hasUnicodePart = false;
    }
    if (state.destination == Destination::Skipped) {
        return;
    }
    DecodeBytes();
    if (rule->action == RtfAction::UnicodeCharacter) {
        if (word.hasNumber) {
            TakeUnicode(word.number);
        }
    } else if (rule->action <= RtfAction::FallbackLength) {
        ObeyDocumentWord(*rule, word);
    } else if (state.destination != Destination::Shown) {
        ObeyTableWord(*rule, word);
    } else if (rule->action <= RtfAction::EndRow) {
        ObeyTextWord(*rule);
    } else {
        ObeyFormatWord(*rule, word);
    }
}

void RtfInterpreter::ObeyDocumentWord(const RtfRule& rule, const RtfToken& word) {
    switch (rule.action) {
    case RtfAction::SkipGroup:
        state.destination = Destination::Skipped;
        break;
    case RtfAction::FontTable:
        state.destination = Destination::Fonts;
        break;
    case RtfAction::ColorTable:
        state.destination = Destination::Colors;
        break;
    case RtfAction::UnicodeVariant:
        state.hasUnicodePart = state.destination == Destination::Shown;
        state.destination = Destination::Skipped;
        break;
    case RtfAction::ListLabel:
        state.isListLabel = true;
        break;
    case RtfAction::CodePageNumber:
        documentCodePage = word.number;
        break;
    case RtfAction::CodePage:
        documentCodePage = static_cast<int>(rule.value);
        break;
    case RtfAction::DefaultFont:
        defaultFont = word.number;
        state.format.font = word.number;
        break;
    case RtfAction::FallbackLength:
        state.fallbackLength = std::max(word.number, 0);
        break;
    default:
        break;
    }
}

void RtfInterpreter::ObeyTextWord(const RtfRule& rule) {
    if (rule.action == RtfAction::Character) {
        Put({&rule.value, 1});
        return;
    }
    Put({});
    if (!IsShown()) {
        return;
    }
    if (rule.action == RtfAction::EndRow) {
        // The tab of the last cell separates it from nothing.
        builder.TakeBack(U'\t');
    }
    builder.EndParagraph(state.alignment);
}

void RtfInterpreter::ObeyFormatWord(const RtfRule& rule, const RtfToken& word) {
    switch (rule.action) {
    case RtfAction::Font:
        state.format.font = word.number;
        break;
    case RtfAction::FontSize:
        if (word.number > 0) {
            state.format.halfPoints = std::min(word.number, kLargestHalfPoints);
        }
        break;
    case RtfAction::TextColor:
        state.format.color = word.number;
        break;
    case RtfAction::Bold:
        state.format.isBold = IsOn(word);
        break;
    case RtfAction::Italic:
        state.format.isItalic = IsOn(word);
        break;
    case RtfAction::Underline:
        state.format.isUnderlined = IsOn(word);
        break;
    case RtfAction::NoUnderline:
        state.format.isUnderlined = false;
        break;
    case RtfAction::Hidden:
        state.isHidden = IsOn(word);
        break;
    case RtfAction::ResetCharacters:
        state.format = {.font = defaultFont};
        state.isHidden = false;
        break;
    case RtfAction::Align:
        state.alignment = static_cast<Alignment>(rule.value);
        break;
    case RtfAction::ResetParagraph:
        state.alignment = Alignment::Left;
        break;
    default:
        break;
    }
}

void RtfInterpreter::ObeyTableWord(const RtfRule& rule, const RtfToken& word) {
    switch (rule.action) {
    case RtfAction::Font:
        tables.BeginFont(word.number);
        break;
    case RtfAction::FontCharset:
        tables.SetFontCharset(word.number);
        break;
    case RtfAction::FontCodePage:
        tables.SetFontCodePage(word.number);
        break;
    case RtfAction::Red:
        tables.SetRed(word.number);
        break;
    case RtfAction::Green:
        tables.SetGreen(word.number);
        break;
    case RtfAction::Blue:
        tables.SetBlue(word.number);
        break;
    default:
        break;
    }
}

void RtfInterpreter::ObeySymbol(char symbol) {
    DecodeBytes();
    constexpr char32_t kNoBreakSpace = 0x00A0;
    constexpr char32_t kSoftHyphen = 0x00AD;
    constexpr char32_t kNoBreakHyphen = 0x2011;
    constexpr char32_t kTab = U'\t';
    switch (symbol) {
    case '~':
        Put({&kNoBreakSpace, 1});
        break;
    case '-':
        Put({&kSoftHyphen, 1});
        break;
    case '_':
        Put({&kNoBreakHyphen, 1});
        break;
    case '\t':
        Put({&kTab, 1});
        break;
    default:
        break;
    }
}

void RtfInterpreter::TakeBytes(std::string_view bytes) {
    if (state.destination != Destination::Skipped) {
        waitingBytes += bytes;
    }
}

void RtfInterpreter::DecodeBytes() {
    if (waitingBytes.empty()) {
        return;
    }
    const bool isName = state.destination == Destination::Fonts;
    const int fontsPage = tables.CodePageOfFont(isName ? tables.NumberOfFont() : state.format.font);
    std::u32string text;
    charsets.Decode(waitingBytes, fontsPage != 0 ? fontsPage : documentCodePage, text);
    waitingBytes.clear();
    Put(text);
}

void RtfInterpreter::TakeUnicode(int number) {
    fallbackLeft = state.fallbackLength;
    constexpr int kUnits = 0x10000;
    constexpr int kLargestCharacter = 0x10FFFF;
    char32_t unit = kReplacementCharacter;
    if (number >= -kUnits / 2 && number <= kLargestCharacter) {
        unit = static_cast<char32_t>(number < 0 ? number + kUnits : number);
    }
    if (IsLowSurrogate(unit) && highSurrogate != 0) {
        unit = 0x10000 + ((std::exchange(highSurrogate, 0) - 0xD800) << 10) + (unit - 0xDC00);
    } else if (IsLowSurrogate(unit)) {
        unit = kReplacementCharacter;
    } else if (IsHighSurrogate(unit)) {
        Put({});
        highSurrogate = unit;
        return;
    }
    if (unit == kSymbolBullet && IsSymbol()) {
        unit = kBullet;
    }
    if (state.destination == Destination::Fonts) {
        // Written so, a ";" is a part of the name.
        Put({});
        tables.AddToFontName(unit);
    } else {
        Put({&unit, 1});
    }
}

// Half a character that the other half does not follow is shown as one that can't be.
void RtfInterpreter::Put(std::u32string_view text) {
    if (std::exchange(highSurrogate, 0) != 0) {
        Put({&kReplacementCharacter, 1});
    }
    if (state.destination == Destination::Fonts) {
        tables.AddFontText(text);
    } else if (state.destination == Destination::Colors) {
        tables.AddColorText(text);
    } else if (IsShown()) {
        builder.Append(text, state.format);
    }
}

} // namespace orvel
