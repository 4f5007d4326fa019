// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace orvel {

// A piece of rich text's syntax.
//
//     group  = "{" ... "}"
//     word   = "\" letters [ [ "-" ] digits ] [ a blank, which belongs to it ]
//     byte   = "\'" two hexadecimal digits, or "\\", "\{", "\}", which stand for the second character
//     symbol = "\" any other byte; with a line end it is the word "par"
//     text   = all other bytes; CR, LF and NUL count for nothing
struct RtfToken {
    enum class Kind { End, OpenGroup, CloseGroup, Word, Symbol, Byte, Text };

    Kind kind = Kind::End;
    std::string_view text{}; // of a Word its letters, of a Text its bytes
    bool hasNumber = false;  // of a Word
    int number = 0;          // of a Word; cut to what an int holds
    char byte = 0;           // of a Byte or Symbol
};

// Cuts the bytes of a rich-text file into tokens. Raw bytes behind the word "bin" are passed over. Takes any
// bytes whatever; what is cut off at the end is left out.
class RtfLexer {
public:
    explicit RtfLexer(std::string_view bytes) : rest(bytes) {}

    [[nodiscard]] RtfToken Next();

private:
    [[nodiscard]] RtfToken TakeText();
    [[nodiscard]] RtfToken TakeControl();
    [[nodiscard]] RtfToken TakeWord();
    [[nodiscard]] RtfToken TakeByte();
    void TakeNumber(RtfToken& word);
    [[nodiscard]] bool Begins(bool (*predicate)(char)) const {
        return !rest.empty() && predicate(rest.front());
    }

    std::string_view rest;
};

} // namespace orvel
