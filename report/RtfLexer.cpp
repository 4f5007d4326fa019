// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfLexer.h"

#include <algorithm>
#include <limits>

namespace orvel {

namespace {

constexpr std::string_view kIgnored{"\r\n\0", 3};
constexpr std::string_view kSpecial{"\\{}\r\n\0", 6};

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// 0 to 15, or -1.
int HexDigit(char character) {
    if (IsDigit(character)) {
        return character - '0';
    }
    if (character >= 'a' && character <= 'f') {
        return character - 'a' + 10;
    }
    return character >= 'A' && character <= 'F' ? character - 'A' + 10 : -1;
}

} // namespace

RtfToken RtfLexer::Next() {
    const std::size_t begin = rest.find_first_not_of(kIgnored);
    if (begin == std::string_view::npos) {
        rest = {};
        return {};
    }
    rest.remove_prefix(begin);
    const char first = rest.front();
    if (first == '{' || first == '}') {
        rest.remove_prefix(1);
        return {.kind = first == '{' ? RtfToken::Kind::OpenGroup : RtfToken::Kind::CloseGroup};
    }
    return first == '\\' ? TakeControl() : TakeText();
}

RtfToken RtfLexer::TakeText() {
    const std::size_t end = std::min(rest.find_first_of(kSpecial), rest.size());
    const RtfToken token{RtfToken::Kind::Text, rest.substr(0, end)};
    rest.remove_prefix(end);
    return token;
}

RtfToken RtfLexer::TakeControl() {
    rest.remove_prefix(1);
    if (rest.empty()) {
        return {};
    }
    if (Begins(IsLetter)) {
        return TakeWord();
    }
    const char symbol = rest.front();
    rest.remove_prefix(1);
    switch (symbol) {
    case '\'':
        return TakeByte();
    case '\\':
    case '{':
    case '}':
        return {.kind = RtfToken::Kind::Byte, .byte = symbol};
    case '\r':
    case '\n':
        return {.kind = RtfToken::Kind::Word, .text = "par"};
    default:
        return {.kind = RtfToken::Kind::Symbol, .byte = symbol};
    }
}

RtfToken RtfLexer::TakeWord() {
    const auto letters = std::ranges::find_if_not(rest, IsLetter) - rest.begin();
    RtfToken word{RtfToken::Kind::Word, rest.substr(0, static_cast<std::size_t>(letters))};
    rest.remove_prefix(word.text.size());
    TakeNumber(word);
    if (rest.starts_with(' ')) {
        rest.remove_prefix(1);
    }
    if (word.text == "bin" && word.number > 0) {
        rest.remove_prefix(std::min(static_cast<std::size_t>(word.number), rest.size()));
    }
    return word;
}

void RtfLexer::TakeNumber(RtfToken& word) {
    const bool isNegative = rest.starts_with('-') && rest.size() > 1 && IsDigit(rest[1]);
    if (isNegative) {
        rest.remove_prefix(1);
    }
    constexpr long long kLargest = std::numeric_limits<int>::max();
    long long number = 0;
    for (; Begins(IsDigit); rest.remove_prefix(1)) {
        number = std::min(number * 10 + (rest.front() - '0'), kLargest);
        word.hasNumber = true;
    }
    word.number = static_cast<int>(isNegative ? -number : number);
}

RtfToken RtfLexer::TakeByte() {
    const std::string_view digits = rest.substr(0, 2);
    if (!std::ranges::all_of(digits, [](char each) { return HexDigit(each) >= 0; })) {
        return {.kind = RtfToken::Kind::Symbol, .byte = '\''};
    }
    rest.remove_prefix(digits.size());
    if (digits.size() < 2) {
        return {};
    }
    const int value = HexDigit(digits[0]) * 16 + HexDigit(digits[1]);
    return {.kind = RtfToken::Kind::Byte, .byte = static_cast<char>(value)};
}

} // namespace orvel
