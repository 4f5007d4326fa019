// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RtfWriter.h"

#include "core/SafeFile.h"
#include "core/Unicode.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace orvel {

namespace {

constexpr std::string_view kMonospaced = "Courier New";

bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

// A 16-bit unit of Unicode, written as the signed number it is read as, and a "?" for readers that know none.
void AppendUnit(std::string& rtf, char32_t unit) {
    const int number = unit < 0x8000 ? static_cast<int>(unit) : static_cast<int>(unit) - 0x10000;
    rtf.append("\\u").append(std::to_string(number)).append("?");
}

void AppendUnicode(std::string& rtf, char32_t character) {
    if (character >= 0x10000 && character <= 0x10FFFF) {
        AppendUnit(rtf, 0xD800 + ((character - 0x10000) >> 10));
        AppendUnit(rtf, 0xDC00 + ((character - 0x10000) & 0x3FF));
    } else {
        AppendUnit(rtf, character > 0x10FFFF || IsSurrogate(character) ? kReplacementCharacter : character);
    }
}

void AppendCharacter(std::string& rtf, char32_t character) {
    switch (character) {
    case U'\t':
        rtf += "\\tab ";
        break;
    case kLineBreak:
        rtf += "\\line ";
        break;
    case U'\\':
    case U'{':
    case U'}':
        rtf += '\\';
        rtf += static_cast<char>(character);
        break;
    default:
        if (character >= U' ' && character <= U'~') {
            rtf += static_cast<char>(character);
        } else {
            AppendUnicode(rtf, character);
        }
    }
}

std::string FontEntry(int number, const std::string& name) {
    std::string entry = "{\\f" + std::to_string(number);
    entry += name == kMonospaced ? R"(\fmodern\fcharset0\fprq1 )" : R"(\fnil\fcharset0 )";
    for (const char32_t character : UnicodeOf(name)) {
        // Bare, a ";" ends the name; words for tabs and line breaks would be no part of it.
        if (character == U';' || character == kLineBreak || character < U' ') {
            AppendUnicode(entry, character);
        } else {
            AppendCharacter(entry, character);
        }
    }
    return entry + ";}";
}

// The fonts and colours of a document, numbered in the order they come up.
class Tables {
public:
    explicit Tables(const RichDocument& document) {
        for (const Paragraph& paragraph : document.paragraphs) {
            for (const TextRun& run : paragraph.runs) {
                Enter(run.format);
            }
        }
        if (fonts.empty()) {
            CharacterFormat format;
            format.font = kMonospaced;
            Enter(format);
        }
    }

    [[nodiscard]] std::string Text() const {
        return "{\\fonttbl" + fontEntries + "}{\\colortbl;" + colorEntries + "}";
    }

    [[nodiscard]] std::string FormatWords(const CharacterFormat& format) const {
        std::string words = "\\plain\\f" + std::to_string(fonts.at(format.font));
        words += "\\fs" + std::to_string(format.halfPoints);
        words += format.isBold ? "\\b" : "";
        words += format.isItalic ? "\\i" : "";
        words += format.isUnderlined ? "\\ul" : "";
        if (format.color) {
            words += "\\cf" + std::to_string(colors.at(Key(*format.color)));
        }
        return words + " ";
    }

private:
    static std::uint32_t Key(const Color& color) {
        return (std::uint32_t{color.red} << 16U) | (std::uint32_t{color.green} << 8U) | color.blue;
    }

    void Enter(const CharacterFormat& format) {
        const auto number = static_cast<int>(fonts.size());
        if (fonts.emplace(format.font, number).second) {
            fontEntries += FontEntry(number, format.font);
        }
        // Number 0 is the reader's own colour.
        if (format.color && colors.emplace(Key(*format.color), static_cast<int>(colors.size()) + 1).second) {
            colorEntries += "\\red" + std::to_string(format.color->red) + "\\green" +
                            std::to_string(format.color->green) + "\\blue" +
                            std::to_string(format.color->blue) + ";";
        }
    }

    std::unordered_map<std::string, int> fonts;
    std::unordered_map<std::uint32_t, int> colors;
    std::string fontEntries;
    std::string colorEntries;
};

std::string_view AlignmentWords(Alignment alignment) {
    switch (alignment) {
    case Alignment::Center:
        return "\\pard\\qc ";
    case Alignment::Right:
        return "\\pard\\qr ";
    case Alignment::Justified:
        return "\\pard\\qj ";
    default:
        return "\\pard\\ql ";
    }
}

} // namespace

std::string WriteRtf(const RichDocument& document) {
    const Tables tables(document);
    std::string rtf = R"({\rtf1\ansi\ansicpg1252\deff0\uc1)" + tables.Text() + "\r\n";
    const CharacterFormat* format = nullptr;
    Alignment alignment = Alignment::Left;
    for (const Paragraph& paragraph : document.paragraphs) {
        if (&paragraph != &document.paragraphs.front()) {
            rtf += "\\par\r\n";
        }
        if (paragraph.alignment != alignment) {
            alignment = paragraph.alignment;
            rtf += AlignmentWords(alignment);
        }
        for (const TextRun& run : paragraph.runs) {
            if (format == nullptr || *format != run.format) {
                format = &run.format;
                rtf += tables.FormatWords(run.format);
            }
            for (const char32_t character : run.text) {
                AppendCharacter(rtf, character);
            }
        }
    }
    return rtf + "}\r\n";
}

void SaveRtf(const std::filesystem::path& file, const RichDocument& document) {
    ReplaceFile(file, WriteRtf(document), Flush::ToDisk);
}

} // namespace orvel
