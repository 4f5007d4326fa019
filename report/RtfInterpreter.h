// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"
#include "report/RtfCharset.h"
#include "report/RtfDocumentBuilder.h"
#include "report/RtfLexer.h"
#include "report/RtfTables.h"
#include "report/RtfWords.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// Follows the words of a rich-text file, which begins with "{\\rtf", and builds its document. Groups are kept
// on a stack of their own, never by recursion, and nested groups that change nothing share an entry.
class RtfInterpreter {
public:
    explicit RtfInterpreter(std::string_view bytes) : lexer(bytes) {}

    [[nodiscard]] RichDocument Read();

private:
    // Where the text of a group goes.
    enum class Destination : std::uint8_t { Shown, Skipped, Fonts, Colors };

    // What a group restores when it ends.
    struct State {
        RtfFormat format;
        int fallbackLength = 1; // of what stands behind a Unicode character for readers that know none
        Alignment alignment = Alignment::Left;
        Destination destination = Destination::Shown;
        bool isHidden = false;
        bool hasUnicodePart = false; // the part for Unicode is still to come
        bool isListLabel = false;

        bool operator==(const State&) const = default;
    };

    struct Saved {
        State state;
        std::size_t groups = 1;
    };

    void Open();
    void Close();
    // Takes off what stands for the last Unicode character; true when nothing is left of the token.
    [[nodiscard]] bool TakeFallback(RtfToken& token);
    void Obey(const RtfToken& token);
    void ObeyWord(const RtfToken& word);
    void ObeyDocumentWord(const RtfRule& rule, const RtfToken& word);
    void ObeyTextWord(const RtfRule& rule);
    void ObeyFormatWord(const RtfRule& rule, const RtfToken& word);
    void ObeyTableWord(const RtfRule& rule, const RtfToken& word);
    void ObeySymbol(char symbol);

    // Bytes wait until it is sure that no second byte of a character follows.
    void TakeBytes(std::string_view bytes);
    void DecodeBytes();
    void TakeUnicode(int number);
    void Put(std::u32string_view text);
    [[nodiscard]] bool IsShown() const { return state.destination == Destination::Shown && !state.isHidden; }
    // Whether characters of the private area are those of a symbol font.
    [[nodiscard]] bool IsSymbol() const {
        return state.isListLabel || tables.CodePageOfFont(state.format.font) == kSymbolPage;
    }

    RtfLexer lexer;
    RtfCharsets charsets;
    RtfTables tables;
    RtfDocumentBuilder builder{tables};

    State state;
    std::vector<Saved> saved;
    bool hasJustOpened = false;
    bool isStarred = false;

    std::string waitingBytes;
    char32_t highSurrogate = 0;
    int fallbackLeft = 0;

    int documentCodePage = kWindows1252;
    int defaultFont = 0;
};

} // namespace orvel
