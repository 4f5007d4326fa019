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
        const RtfToken group{first == '{' ? RtfToken::Kind::OpenGroup : RtfToken::Kind::CloseGroup,
                             rest.substr(0, 1)};
        rest.remove_prefix(1);
        return group;
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
    const std::string_view itself = rest.substr(0, 1);
    rest.remove_prefix(1);
    switch (symbol) {
    case '\'':
        return TakeByte();
    case '\\':
    case '{':
    case '}':
        return {.kind = RtfToken::Kind::Byte, .text = itself, .byte = symbol};
    case '\r':
    case '\n':
        return {.kind = RtfToken::Kind::Word, .text = "par"};
    default:
        return {.kind = RtfToken::Kind::Symbol, .text = itself, .byte = symbol};
    }
}

RtfToken RtfLexer::TakeWord() {
    const auto end = std::ranges::find_if_not(rest, IsLetter);
    RtfToken word{RtfToken::Kind::Word, {rest.begin(), end}};
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
    const int high = rest.empty() ? -1 : HexDigit(rest[0]);
    const int low = rest.size() < 2 ? -1 : HexDigit(rest[1]);
    if (high < 0 || low < 0) {
        return {.kind = RtfToken::Kind::Symbol, .text = "'", .byte = '\''};
    }
    const RtfToken token{
        .kind = RtfToken::Kind::Byte, .text = rest.substr(0, 2), .byte = static_cast<char>(high * 16 + low)};
    rest.remove_prefix(2);
    return token;
}

} // namespace orvel
