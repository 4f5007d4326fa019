// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfWords.h"

#include "report/RichText.h"

#include <array>
#include <initializer_list>
#include <unordered_map>

namespace orvel {

namespace {

using Rules = std::unordered_map<std::string_view, RtfRule>;

constexpr std::array kSkippedGroups = std::to_array<std::string_view>({
    "aftncn",
    "aftnsep",
    "aftnsepc",
    "annotation",
    "atnauthor",
    "atndate",
    "atnicn",
    "atnid",
    "atnparent",
    "atnref",
    "atntime",
    "atrfend",
    "atrfstart",
    "background",
    "bkmkend",
    "bkmkstart",
    "colorschememapping",
    "datastore",
    "docvar",
    "falt",
    "filetbl",
    "fldinst",
    "footer",
    "footerf",
    "footerl",
    "footerr",
    "footnote",
    "ftncn",
    "ftnsep",
    "ftnsepc",
    "generator",
    "header",
    "headerf",
    "headerl",
    "headerr",
    "info",
    "latentstyles",
    "listoverridetable",
    "listtable",
    "mmathPr",
    "nonesttables",
    "nonshppict",
    "objclass",
    "objdata",
    "objname",
    "panose",
    "pict",
    "revtbl",
    "rsidtbl",
    "sp",
    "stylesheet",
    "tc",
    "template",
    "themedata",
    "userprops",
    "xe",
    "xmlnstbl",
});

constexpr char32_t Value(Alignment alignment) {
    return static_cast<char32_t>(alignment);
}

Rules MakeRules() {
    Rules rules = {
        {"fonttbl", {RtfAction::FontTable}},
        {"colortbl", {RtfAction::ColorTable}},
        {"upr", {RtfAction::UnicodeVariant}},
        {"ud", {RtfAction::ShowUnicodePart}},
        {"listtext", {RtfAction::ListLabel}},
        {"pntext", {RtfAction::ListLabel}},

        {"ansicpg", {RtfAction::CodePageNumber}},
        {"ansi", {RtfAction::CodePage, 1252}},
        {"mac", {RtfAction::CodePage, 10000}},
        {"pc", {RtfAction::CodePage, 437}},
        {"pca", {RtfAction::CodePage, 850}},
        {"deff", {RtfAction::DefaultFont}},
        {"uc", {RtfAction::FallbackLength}},

        {"u", {RtfAction::UnicodeCharacter}},
        {"tab", {RtfAction::Character, U'\t'}},
        {"cell", {RtfAction::Character, U'\t'}},
        {"nestcell", {RtfAction::Character, U'\t'}},
        {"line", {RtfAction::Character, kLineBreak}},
        {"lbr", {RtfAction::Character, kLineBreak}},
        {"bullet", {RtfAction::Character, 0x2022}},
        {"emdash", {RtfAction::Character, 0x2014}},
        {"endash", {RtfAction::Character, 0x2013}},
        {"lquote", {RtfAction::Character, 0x2018}},
        {"rquote", {RtfAction::Character, 0x2019}},
        {"ldblquote", {RtfAction::Character, 0x201C}},
        {"rdblquote", {RtfAction::Character, 0x201D}},
        {"enspace", {RtfAction::Character, 0x2002}},
        {"emspace", {RtfAction::Character, 0x2003}},
        {"qmspace", {RtfAction::Character, 0x2005}},
        {"zwbo", {RtfAction::Character, 0x200B}},
        {"zwnj", {RtfAction::Character, 0x200C}},
        {"zwj", {RtfAction::Character, 0x200D}},
        {"ltrmark", {RtfAction::Character, 0x200E}},
        {"rtlmark", {RtfAction::Character, 0x200F}},
        {"zwnbo", {RtfAction::Character, 0x2060}},
        {"par", {RtfAction::EndParagraph}},
        {"page", {RtfAction::EndParagraph}},
        {"sect", {RtfAction::EndParagraph}},
        {"column", {RtfAction::EndParagraph}},
        {"row", {RtfAction::EndRow}},
        {"nestrow", {RtfAction::EndRow}},

        {"f", {RtfAction::Font}},
        {"fs", {RtfAction::FontSize}},
        {"cf", {RtfAction::TextColor}},
        {"b", {RtfAction::Bold}},
        {"i", {RtfAction::Italic}},
        {"v", {RtfAction::Hidden}},
        {"ulnone", {RtfAction::NoUnderline}},
        {"plain", {RtfAction::ResetCharacters}},
        {"ql", {RtfAction::Align, Value(Alignment::Left)}},
        {"qc", {RtfAction::Align, Value(Alignment::Center)}},
        {"qr", {RtfAction::Align, Value(Alignment::Right)}},
        {"qj", {RtfAction::Align, Value(Alignment::Justified)}},
        {"pard", {RtfAction::ResetParagraph}},

        {"fcharset", {RtfAction::FontCharset}},
        {"cpg", {RtfAction::FontCodePage}},
        {"red", {RtfAction::Red}},
        {"green", {RtfAction::Green}},
        {"blue", {RtfAction::Blue}},
    };
    for (const std::string_view word : kSkippedGroups) {
        rules.emplace(word, RtfRule{RtfAction::SkipGroup});
    }
    for (const std::string_view word :
         {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhair", "ulhwave", "ulldash", "ulth",
          "ulthd", "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash", "ululdbwave", "ulw", "ulwave"}) {
        rules.emplace(word, RtfRule{RtfAction::Underline});
    }
    return rules;
}

} // namespace

const RtfRule* FindRtfRule(std::string_view word) {
    static const Rules kRules = MakeRules();
    const auto found = kRules.find(word);
    return found == kRules.end() ? nullptr : &found->second;
}

bool IsKnownBehindStar(std::string_view word) {
    return word == "ud" || word == "fldrslt" || word == "shppict" || word == "nesttableprops";
}

} // namespace orvel
