// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichTextBox.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace orvel {

// A rich-text box that nobody sees, for making documents without a window.
class MemoryRichTextBox : public RichTextBox {
public:
    [[nodiscard]] std::string Text() const override { return text; }
    void SetText(std::string_view newText) override;

    void Select(std::size_t start, std::size_t length) override;
    [[nodiscard]] std::size_t SelectionStart() const override { return selectionStart; }
    [[nodiscard]] std::size_t SelectionLength() const override { return selectionLength; }

    [[nodiscard]] bool IsSelectionBold() const override;
    void SetSelectionBold(bool isBold) override;
    [[nodiscard]] bool IsSelectionItalic() const override;
    void SetSelectionItalic(bool isItalic) override;
    void SetSelectionColor(Color color) override;
    void SetSelectionFontName(const std::string& name) override;
    void SetSelectionFontSize(int points) override;
    void SetFontName(const std::string& name) override;

    [[nodiscard]] bool IsReadOnly() const override { return isLocked; }
    void SetReadOnly(bool isReadOnly) override { isLocked = isReadOnly; }

    void Load(const std::filesystem::path& file) override;
    void Save(const std::filesystem::path& file) const override;

    // It has no letters to draw: raises Invalid procedure call.
    std::size_t DrawRange(const FormatRange& range) override;
    void FreeDrawing() override {}

    // The text with its formats; a CR LF, or either alone, ends a paragraph. Any other control character but
    // tab, which no document holds, is a blank, so that columns stay below each other.
    [[nodiscard]] RichDocument Document() const;

private:
    using Change = std::function<void(CharacterFormat&)>;
    using FormatNumber = std::size_t;

    // Characters of one format, up to the next run or the end of the text.
    struct FormatRun {
        std::size_t begin = 0;
        FormatNumber format = 0;
    };
    using FormatRuns = std::vector<FormatRun>;

    void Show(const RichDocument& document);
    void ChangeSelection(const Change& change);
    [[nodiscard]] bool HasAllOfSelection(bool CharacterFormat::*property) const;
    [[nodiscard]] FormatNumber NumberOf(const CharacterFormat& format);
    // The run that the character at that position, which is not behind the text, belongs to.
    [[nodiscard]] FormatRuns::const_iterator RunAt(std::size_t position) const;
    // Makes a run begin at that position, an empty one where the text ends; returns its index.
    std::size_t SplitAt(std::size_t position);

    std::string text;
    FormatRuns runs; // none of an empty text; their formats are indices into those seen so far
    std::vector<CharacterFormat> formats;
    CharacterFormat caretFormat;
    std::size_t selectionStart = 0;
    std::size_t selectionLength = 0;
    bool isLocked = false;
};

} // namespace orvel
