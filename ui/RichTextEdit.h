// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichTextBox.h"
#include "ui/TextPositions.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <memory>
#include <optional>

namespace orvel::ui {

// A rich-text box on the screen. Lines wrap at its edge, but no line of a report does, however narrow it is.
// Rich text goes through the clipboard as RTF.
class RichTextEdit : public QTextEdit, public RichTextBox {
public:
    explicit RichTextEdit(QWidget* parent = nullptr);

    [[nodiscard]] std::string Text() const override;
    void SetText(std::string_view text) override;

    void Select(std::size_t start, std::size_t length) override;
    [[nodiscard]] std::size_t SelectionStart() const override;
    [[nodiscard]] std::size_t SelectionLength() const override;

    [[nodiscard]] bool IsSelectionBold() const override;
    void SetSelectionBold(bool isBold) override;
    [[nodiscard]] bool IsSelectionItalic() const override;
    void SetSelectionItalic(bool isItalic) override;
    void SetSelectionColor(Color color) override;
    void SetSelectionFontName(const std::string& name) override;
    void SetSelectionFontSize(int points) override;
    void SetFontName(const std::string& name) override;

    [[nodiscard]] bool IsReadOnly() const override { return isReadOnly(); }
    void SetReadOnly(bool isReadOnly) override;

    // Both show a waiting cursor.
    void Load(const std::filesystem::path& file) override;
    void Save(const std::filesystem::path& file) const override;

    void HoldBack() override { isHoldingBack = true; }
    void ShowHeldBack() override;

    std::size_t DrawRange(const FormatRange& range) override;
    void FreeDrawing() override { drawing.reset(); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    // White and black in every theme: the marks' colours, and those of a document, are made for that.
    void LookLikePaper();
    // The text, and where it stands in the document.
    struct Content {
        std::string text;
        TextPositions positions;
    };

    // A text is put together beside the screen: a document that is shown is laid out at every change.
    [[nodiscard]] std::unique_ptr<QTextDocument> NewDocument() const;
    // What changes are made to: the document that is held back if there is one, else that on the screen.
    [[nodiscard]] QTextDocument& Target() const { return heldBack ? *heldBack : *document(); }
    [[nodiscard]] QTextCursor Selection() const { return heldBack ? heldSelection : textCursor(); }
    // In place of what was there, or of what was held back.
    void Put(std::unique_ptr<QTextDocument> fresh);
    void ShowDocument(std::unique_ptr<QTextDocument> fresh);
    void ShowBeginningIfSelected();
    [[nodiscard]] const Content& Current() const;
    [[nodiscard]] Content ReadDocument() const;
    [[nodiscard]] RichDocument Selected() const;
    [[nodiscard]] bool HasAllOfSelection(bool CharacterFormat::*property) const;
    void ChangeSelection(const QTextCharFormat& change);
    void UseFormat(const QTextCharFormat& format);
    void WrapLines();

    // The text as it was given, for as long as nobody edits it; afterwards that of the document.
    mutable std::optional<Content> content = Content{};
    bool isHoldingBack = false;
    std::unique_ptr<QTextDocument> heldBack;
    QTextCursor heldSelection;
    // What the caret puts in.
    QTextCharFormat caretFormat;
    // Whether it is the program that changes the document, or moves the caret.
    bool isOwnChange = false;
    // The document as it is being printed.
    std::unique_ptr<QTextDocument> drawing;
};

} // namespace orvel::ui
