// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfLexer.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace orvel {

namespace {

// The tokens, each on its own: "{", "}", "word", "word=7", "'E9" for a byte, "!*" for a symbol, "(text)".
std::string Tokens(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    RtfLexer lexer(bytes);
    std::string tokens;
    for (RtfToken token = lexer.Next(); token.kind != RtfToken::Kind::End; token = lexer.Next()) {
        tokens += tokens.empty() ? "" : " ";
        const auto byte = static_cast<unsigned char>(token.byte);
        switch (token.kind) {
        case RtfToken::Kind::OpenGroup:
            tokens += "{";
            break;
        case RtfToken::Kind::CloseGroup:
            tokens += "}";
            break;
        case RtfToken::Kind::Word:
            tokens += std::string{token.text} + (token.hasNumber ? "=" + std::to_string(token.number) : "");
            break;
        case RtfToken::Kind::Byte:
            tokens += std::string{"'"} + kDigits[byte / 16] + kDigits[byte % 16];
            break;
        case RtfToken::Kind::Symbol:
            tokens += std::string{"!"} + token.byte;
            break;
        default:
            tokens += "(" + std::string{token.text} + ")";
        }
    }
    return tokens;
}

struct Case {
    std::string_view bytes;
    const char* tokens;
};

using namespace std::string_view_literals;

TEST(RtfLexer, CutsBytesIntoTokens) {
    for (const Case& each : {
             Case{"", ""},
             {"{\\rtf1 a}", "{ rtf=1 (a) }"},
             {"\\b\\i0 c", "b i=0 (c)"},
             {"\\b  c", "b ( c)"},
             {"\\li-720x", "li=-720 (x)"},
             {"\\b-x", "b (-x)"},
             {"\\b-", "b (-)"},
             {"\\Bold", "Bold"},
             {"\\fs2147483647\\fs2147483648\\fs-99999999999999999999",
              "fs=2147483647 fs=2147483647 fs=-2147483647"},
             {"\\'e9\\'E9\\\\\\{\\}", "'E9 'E9 '5C '7B '7D"},
             {"\\*\\~\\'zz", "!* !~ !' (zz)"},
             {"\\'9z", "!' (9z)"},
             {"a\r\n\0b\r"sv, "(a) (b)"},
             {"\\\n\\\r", "par par"},
             {"\\b\r\n c", "b ( c)"},
             {"}}{", "} } {"},
         }) {
        EXPECT_EQ(Tokens(each.bytes), each.tokens) << each.bytes;
    }
}

TEST(RtfLexer, PassesOverBinaryBlocks) {
    for (const Case& each : {
             Case{"\\bin3 {}\\x", "bin=3 (x)"},
             {"\\bin3{}\\x", "bin=3 (x)"},
             {"\\bin1  x", "bin=1 (x)"},
             {"\\bin x", "bin (x)"},
             {"\\bin0 x", "bin=0 (x)"},
             {"\\bin-3 xyz", "bin=-3 (xyz)"},
             {"\\bin4 xyz", "bin=4"},
             {"\\binary3 xyz", "binary=3 (xyz)"},
         }) {
        EXPECT_EQ(Tokens(each.bytes), each.tokens) << each.bytes;
    }
}

TEST(RtfLexer, LeavesOutWhatIsCutOff) {
    for (const std::string_view bytes : {"a\\", "a\\'", "a\\'e"}) {
        EXPECT_EQ(Tokens(bytes), "(a)") << bytes;
    }
}

} // namespace

} // namespace orvel
