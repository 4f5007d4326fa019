// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <QTextCharFormat>
#include <QTextCursor>

// Between the document model of rich text and the toolkit's documents.
namespace orvel::ui {

[[nodiscard]] QTextCharFormat ToQt(const CharacterFormat& format);
// What a format does not say is that of the document.
[[nodiscard]] CharacterFormat FromQt(const QTextCharFormat& format, const QTextDocument& document);

// Puts the document in the selection's place; it takes the alignment of whole paragraphs with it.
void Insert(QTextCursor& cursor, const RichDocument& document);

// The text from one position to another. Pictures and other things that are no text are left out.
[[nodiscard]] RichDocument Extract(const QTextDocument& source, int begin, int end);

} // namespace orvel::ui
