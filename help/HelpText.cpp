// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "help/HelpText.h"

#include "core/Unicode.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace orvel::help {

namespace {

constexpr std::string_view kTitle = "# ";
constexpr std::string_view kSection = "## ";
constexpr std::string_view kEntry = "- ";
constexpr std::string_view kPicture = "![";

constexpr Color kHeadingColor{.red = 0x2E, .green = 0x6B, .blue = 0x1F};
constexpr int kTitleSize = 32; // in half points, as all sizes here
constexpr int kSectionSize = 24;
constexpr int kTextSize = 20;
constexpr int kFormulaSize = 19;
constexpr int kGapAboveSection = 14;
constexpr int kGapSize = 8;
constexpr int kSmallGap = 4;

CharacterFormat Format(int halfPoints) {
    CharacterFormat format;
    format.font = "Arial";
    format.halfPoints = halfPoints;
    return format;
}

CharacterFormat HeadingFormat(int halfPoints) {
    CharacterFormat format = Format(halfPoints);
    format.isBold = true;
    format.color = kHeadingColor;
    return format;
}

std::vector<std::string_view> LinesOf(std::string_view source) {
    std::vector<std::string_view> lines;
    while (!source.empty()) {
        const std::size_t end = std::min(source.find('\n'), source.size());
        lines.push_back(source.substr(0, end));
        source.remove_prefix(std::min(end + 1, source.size()));
    }
    return lines;
}

// The source's lines as one text each for title, section, entry, picture and paragraph.
std::vector<std::string> Blocks(std::string_view source) {
    std::vector<std::string> blocks;
    bool isWithin = false;
    for (const std::string_view line : LinesOf(source)) {
        const std::size_t begin = std::min(line.find_first_not_of(' '), line.size());
        if (isWithin && begin < line.size() && !line.starts_with(kEntry)) {
            blocks.back().append(" ").append(line.substr(begin));
        } else if (begin < line.size()) {
            blocks.emplace_back(line);
        }
        isWithin = begin < line.size() && !line.starts_with('#');
    }
    return blocks;
}

// Adds a text with its marks.
class MarkedText {
public:
    MarkedText(Paragraph& toParagraph, CharacterFormat ofText)
        : paragraph(toParagraph), format(std::move(ofText)) {}

    void Append(std::string_view text) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\\' && i + 1 < text.size()) {
                pending += text[++i];
            } else if (text[i] == '`') {
                const std::size_t end = text.find('`', i + 1);
                if (end == std::string_view::npos) {
                    Complain(text);
                }
                AppendFormula(text.substr(i + 1, end - i - 1));
                i = end;
            } else if (text.substr(i).starts_with("**")) {
                Flush();
                format.isBold = !format.isBold;
                ++i;
            } else if (text[i] == '*') {
                Flush();
                format.isItalic = !format.isItalic;
            } else {
                pending += text[i];
            }
        }
        Flush();
        if (format.isBold || format.isItalic) {
            Complain(text);
        }
    }

private:
    [[noreturn]] static void Complain(std::string_view text) {
        throw std::invalid_argument("a mark that nothing ends: " + std::string{text});
    }

    void Flush() {
        paragraph.Append(UnicodeOf(pending), format);
        pending.clear();
    }

    void AppendFormula(std::string_view text) {
        Flush();
        CharacterFormat formula = format;
        formula.font = "Courier New";
        formula.halfPoints = kFormulaSize;
        paragraph.Append(UnicodeOf(text), formula);
    }

    Paragraph& paragraph;
    CharacterFormat format;
    std::string pending;
};

Paragraph HeadingParagraph(std::string_view text, int size) {
    Paragraph paragraph;
    paragraph.Append(UnicodeOf(text), HeadingFormat(size));
    return paragraph;
}

Paragraph TextParagraph(std::string_view block) {
    Paragraph paragraph;
    const bool isEntry = block.starts_with(kEntry);
    if (isEntry) {
        paragraph.Append(U"\u2022 ", Format(kTextSize));
        block.remove_prefix(kEntry.size());
    }
    MarkedText(paragraph, Format(kTextSize)).Append(block);
    return paragraph;
}

// An empty line, by its height.
Paragraph Gap(int size) {
    Paragraph paragraph;
    paragraph.Append(U" ", Format(size));
    return paragraph;
}

int GapBetween(std::string_view before, std::string_view block) {
    if (block.starts_with(kSection)) {
        return kGapAboveSection;
    }
    const bool isWithinList = before.starts_with(kEntry) && block.starts_with(kEntry);
    return isWithinList || before.starts_with('#') ? kSmallGap : kGapSize;
}

// The name that a page's own links give a section.
std::string Anchor(std::string_view section) {
    std::string anchor;
    for (const char character : section) {
        if (character == ' ') {
            anchor += '-';
        } else if (character >= 'A' && character <= 'Z') {
            anchor += static_cast<char>(character - 'A' + 'a');
        } else if ((character >= 'a' && character <= 'z') || character == '-') {
            anchor += character;
        }
    }
    return anchor;
}

} // namespace

RichDocument HelpDocument(std::string_view source) {
    RichDocument document;
    std::vector<Paragraph>& paragraphs = document.paragraphs;
    paragraphs.clear();
    std::string_view before;
    const std::vector<std::string> blocks = Blocks(source);
    for (const std::string& block : blocks) {
        if (block.starts_with(kPicture)) {
            continue;
        }
        if (!paragraphs.empty()) {
            paragraphs.push_back(Gap(GapBetween(before, block)));
        }
        if (block.starts_with(kTitle)) {
            paragraphs.push_back(HeadingParagraph(block.substr(kTitle.size()), kTitleSize));
        } else if (block.starts_with(kSection)) {
            paragraphs.push_back(HeadingParagraph(block.substr(kSection.size()), kSectionSize));
        } else {
            paragraphs.push_back(TextParagraph(block));
        }
        before = block;
    }
    return document;
}

std::string ManualPage(std::string_view source) {
    if (!source.starts_with(kTitle)) {
        throw std::invalid_argument("the source begins with no title");
    }
    const std::vector<std::string_view> lines = LinesOf(source);
    std::string page{lines.front()};
    page += "\n\nThe program shows this text, without its pictures, under Instructions.\n\n";
    for (const std::string_view line : lines) {
        if (line.starts_with(kSection)) {
            const std::string section{line.substr(kSection.size())};
            page.append("- [").append(section).append("](#").append(Anchor(section)).append(")\n");
        }
    }
    return page.append(source.substr(std::min(lines.front().size() + 1, source.size())));
}

} // namespace orvel::help
