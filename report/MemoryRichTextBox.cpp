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

namespace orvel {

void MemoryRichTextBox::SetText(std::string_view newText) {
    text = newText;
    caretFormat.color.reset();
    caretFormat.isUnderlined = false;
    formatNumbers.assign(text.size(), NumberOf(caretFormat));
    selectionStart = 0;
    selectionLength = 0;
}

void MemoryRichTextBox::Select(std::size_t start, std::size_t length) {
    selectionStart = std::min(start, text.size());
    selectionLength = std::min(length, text.size() - selectionStart);
    if (selectionLength == 0 && !text.empty()) {
        // The caret takes after the character before it.
        caretFormat = formats[formatNumbers[selectionStart == 0 ? 0 : selectionStart - 1]];
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
    std::size_t begin = 0;
    const auto appendUpTo = [&](std::size_t end) {
        while (begin < end) {
            const FormatNumber number = formatNumbers[begin];
            std::u32string run;
            for (; begin < end && formatNumbers[begin] == number; ++begin) {
                const char32_t character = CurrentCodePage().ToUnicode(text[begin]);
                run += character < U' ' && character != U'\t' ? U' ' : character;
            }
            document.paragraphs.back().Append(run, formats[number]);
        }
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            appendUpTo(i);
            document.paragraphs.emplace_back();
            if (std::string_view(text).substr(i).starts_with(kCrLf)) {
                ++i;
            }
            begin = i + 1;
        }
    }
    appendUpTo(text.size());
    return document;
}

void MemoryRichTextBox::Show(const RichDocument& document) {
    text.clear();
    formatNumbers.clear();
    const auto append = [this](std::string_view piece, FormatNumber number) {
        text += piece;
        formatNumbers.resize(text.size(), number);
    };
    for (const Paragraph& paragraph : document.paragraphs) {
        if (&paragraph != &document.paragraphs.front()) {
            append(kCrLf, formatNumbers.empty() ? NumberOf({}) : formatNumbers.back());
        }
        for (const TextRun& run : paragraph.runs) {
            const FormatNumber number = NumberOf(run.format);
            for (const char32_t character : run.text) {
                append(character == kLineBreak
                           ? std::string{kCrLf}
                           : std::string{CurrentCodePage().FromUnicode(character).value_or('?')},
                       number);
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
    std::map<FormatNumber, FormatNumber> changed;
    for (std::size_t i = selectionStart; i < selectionStart + selectionLength; ++i) {
        const auto [entry, isNew] = changed.try_emplace(formatNumbers[i]);
        if (isNew) {
            CharacterFormat format = formats[formatNumbers[i]];
            change(format);
            entry->second = NumberOf(format);
        }
        formatNumbers[i] = entry->second;
    }
}

bool MemoryRichTextBox::HasAllOfSelection(bool CharacterFormat::*property) const {
    if (selectionLength == 0) {
        return caretFormat.*property;
    }
    const auto begin = formatNumbers.begin() + static_cast<std::ptrdiff_t>(selectionStart);
    return std::all_of(begin, begin + static_cast<std::ptrdiff_t>(selectionLength),
                       [this, property](FormatNumber number) { return formats[number].*property; });
}

MemoryRichTextBox::FormatNumber MemoryRichTextBox::NumberOf(const CharacterFormat& format) {
    const auto found = std::ranges::find(formats, format);
    if (found == formats.end()) {
        formats.push_back(format);
        return static_cast<FormatNumber>(formats.size() - 1);
    }
    return static_cast<FormatNumber>(found - formats.begin());
}

} // namespace orvel
