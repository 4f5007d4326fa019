// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/FormatRange.h"
#include "report/RichText.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace orvel {

// A control that shows rich text, as the report and the viewer use one. Texts are in the program's code page
// with the line ends they were given; positions and lengths count their characters, a CR LF as two. A
// selection that reaches behind the text is cut to it. What is set for an empty selection holds for what is
// put in at the caret.
class RichTextBox {
public:
    virtual ~RichTextBox() = default;

    [[nodiscard]] virtual std::string Text() const = 0;
    // Replaces everything by a text in the format at the caret, without colour and line below, and puts the
    // caret before it.
    virtual void SetText(std::string_view text) = 0;

    virtual void Select(std::size_t start, std::size_t length) = 0;
    [[nodiscard]] virtual std::size_t SelectionStart() const = 0;
    [[nodiscard]] virtual std::size_t SelectionLength() const = 0;

    // Whether all of the selection is bold, or italic.
    [[nodiscard]] virtual bool IsSelectionBold() const = 0;
    virtual void SetSelectionBold(bool isBold) = 0;
    [[nodiscard]] virtual bool IsSelectionItalic() const = 0;
    virtual void SetSelectionItalic(bool isItalic) = 0;
    virtual void SetSelectionColor(Color color) = 0;
    virtual void SetSelectionFontName(const std::string& name) = 0;
    virtual void SetSelectionFontSize(int points) = 0;
    // The font of everything that is there and will be put in.
    virtual void SetFontName(const std::string& name) = 0;

    [[nodiscard]] virtual bool IsReadOnly() const = 0;
    virtual void SetReadOnly(bool isReadOnly) = 0;

    // Replaces everything by a rich-text file, and writes one. Both raise FileError.
    virtual void Load(const std::filesystem::path& file) = 0;
    virtual void Save(const std::filesystem::path& file) const = 0;

    // From now on nobody needs to see new texts and their formats, until ShowHeldBack; once at a time. The
    // box answers as ever.
    virtual void HoldBack() {}
    virtual void ShowHeldBack() {}

    // Draws as many whole lines of the range as fit its rectangle, and one at least. Returns the position of
    // the first character that did not fit, or the text's length.
    virtual std::size_t DrawRange(const FormatRange& range) = 0;
    // Frees what drawing has kept for the next page.
    virtual void FreeDrawing() = 0;
};

// While it lives, a text is put together that is to be seen as a whole.
class TextHeldBack {
public:
    explicit TextHeldBack(RichTextBox& ofText) : box(ofText) { box.HoldBack(); }
    ~TextHeldBack() { box.ShowHeldBack(); }
    TextHeldBack(const TextHeldBack&) = delete;
    TextHeldBack& operator=(const TextHeldBack&) = delete;

private:
    RichTextBox& box;
};

} // namespace orvel
