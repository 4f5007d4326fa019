// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/MemoryRichTextBox.h"

#include "core/CodePage.h"
#include "core/RunTimeError.h"
#include "core/SafeFile.h"
#include "core/Text.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvel {

void MemoryRichTextBox::SetText(std::string_view newText) {
    text = newText;
    caretFormat.color.reset();
    caretFormat.isUnderlined = false;
    runs.clear();
    if (!text.empty()) {
        runs.push_back({0, NumberOf(caretFormat)});
    }
    selectionStart = 0;
    selectionLength = 0;
}

void MemoryRichTextBox::Select(std::size_t start, std::size_t length) {
    selectionStart = std::min(start, text.size());
    selectionLength = std::min(length, text.size() - selectionStart);
    if (selectionLength == 0 && !text.empty()) {
        // The caret takes after the character before it.
        caretFormat = formats[RunAt(selectionStart == 0 ? 0 : selectionStart - 1)->format];
    }
}

bool MemoryRichTextBox::IsSelectionBold() const {
    return HasAllOfSelection(&CharacterFormat::isBold);
}

void MemoryRichTextBox::SetSelectionBold(bool isBold) {
    ChangeSelection([isBold](CharacterFormat& format) { format.isBold = isBold; });
}

bool MemoryRichTextBox::IsSelectionItalic() const {
    return HasAllOfSelection(&CharacterFormat::isItalic);
}

void MemoryRichTextBox::SetSelectionItalic(bool isItalic) {
    ChangeSelection([isItalic](CharacterFormat& format) { format.isItalic = isItalic; });
}

void MemoryRichTextBox::SetSelectionColor(Color color) {
    ChangeSelection([color](CharacterFormat& format) { format.color = color; });
}

void MemoryRichTextBox::SetSelectionFontName(const std::string& name) {
    ChangeSelection([&name](CharacterFormat& format) { format.font = name; });
}

void MemoryRichTextBox::SetSelectionFontSize(int points) {
    ChangeSelection([points](CharacterFormat& format) { format.halfPoints = 2 * points; });
}

void MemoryRichTextBox::SetFontName(const std::string& name) {
    for (CharacterFormat& format : formats) {
        format.font = name;
    }
    caretFormat.font = name;
}

void MemoryRichTextBox::Load(const std::filesystem::path& file) {
    Show(ReadRtf(ReadFile(file)));
}

void MemoryRichTextBox::Save(const std::filesystem::path& file) const {
    SaveRtf(file, Document());
}

std::size_t MemoryRichTextBox::DrawRange(const FormatRange& /*range*/) {
    Raise(ErrorNumber::InvalidProcedureCall);
}

RichDocument MemoryRichTextBox::Document() const {
    RichDocument document;
    for (auto run = runs.begin(); run != runs.end(); ++run) {
        const std::size_t end = std::next(run) == runs.end() ? text.size() : std::next(run)->begin;
        std::u32string line;
        const auto endLine = [&] {
            document.paragraphs.back().Append(std::exchange(line, {}), formats[run->format]);
        };
        for (std::size_t i = run->begin; i < end; ++i) {
            const bool isLineFeedOfCrLf = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
            if (text[i] == '\r' || (text[i] == '\n' && !isLineFeedOfCrLf)) {
                endLine();
                document.paragraphs.emplace_back();
            } else if (!isLineFeedOfCrLf) {
                const char32_t character = CurrentCodePage().ToUnicode(text[i]);
                line += character < U' ' && character != U'\t' ? U' ' : character;
            }
        }
        endLine();
    }
    return document;
}

void MemoryRichTextBox::Show(const RichDocument& document) {
    text.clear();
    runs.clear();
    const auto append = [this](std::string_view piece, FormatNumber format) {
        if (runs.empty() || runs.back().format != format) {
            runs.push_back({text.size(), format});
        }
        text += piece;
    };
    for (const Paragraph& paragraph : document.paragraphs) {
        if (&paragraph != &document.paragraphs.front()) {
            append(kCrLf, runs.empty() ? NumberOf({}) : runs.back().format);
        }
        for (const TextRun& run : paragraph.runs) {
            const FormatNumber format = NumberOf(run.format);
            for (const char32_t character : run.text) {
                append(character == kLineBreak
                           ? std::string{kCrLf}
                           : std::string{CurrentCodePage().FromUnicode(character).value_or('?')},
                       format);
            }
        }
    }
    Select(0, 0);
}

void MemoryRichTextBox::ChangeSelection(const Change& change) {
    if (selectionLength == 0) {
        change(caretFormat);
        return;
    }
    const std::size_t first = SplitAt(selectionStart);
    const std::size_t last = SplitAt(selectionStart + selectionLength);
    for (std::size_t i = first; i < last; ++i) {
        CharacterFormat format = formats[runs[i].format];
        change(format);
        runs[i].format = NumberOf(format);
    }
}

bool MemoryRichTextBox::HasAllOfSelection(bool CharacterFormat::*property) const {
    if (selectionLength == 0) {
        return caretFormat.*property;
    }
    return std::all_of(RunAt(selectionStart), std::next(RunAt(selectionStart + selectionLength - 1)),
                       [this, property](const FormatRun& run) { return formats[run.format].*property; });
}

MemoryRichTextBox::FormatNumber MemoryRichTextBox::NumberOf(const CharacterFormat& format) {
    const auto found = std::ranges::find(formats, format);
    if (found == formats.end()) {
        formats.push_back(format);
        return static_cast<FormatNumber>(formats.size() - 1);
    }
    return static_cast<FormatNumber>(found - formats.begin());
}

MemoryRichTextBox::FormatRuns::const_iterator MemoryRichTextBox::RunAt(std::size_t position) const {
    return std::prev(std::ranges::upper_bound(runs, position, {}, &FormatRun::begin));
}

std::size_t MemoryRichTextBox::SplitAt(std::size_t position) {
    const auto found = std::ranges::lower_bound(runs, position, {}, &FormatRun::begin);
    const auto index = static_cast<std::size_t>(found - runs.begin());
    if (found == runs.end() || found->begin != position) {
        runs.insert(found, {position, std::prev(found)->format});
    }
    return index;
}

} // namespace orvel
