// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/CellEditor.h"

#include "ui/Keys.h"
#include "ui/UncaughtError.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <array>

namespace orvel::ui {

namespace {

// The codes by which the logic knows its keys; 0 for the others.
int KeyCode(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Up:
        return 38;
    case Qt::Key_Down:
        return 40;
    case Qt::Key_Insert:
        return 45;
    case Qt::Key_Delete:
        return 46;
    case Qt::Key_F9:
        return 120;
    case Qt::Key_F10:
        return 121;
    default:
        return 0;
    }
}

// Shortcuts that do what the Delete key is not to do here.
bool DeletesForward(const QKeyEvent& event) {
    return std::ranges::any_of(std::array{QKeySequence::Delete, QKeySequence::DeleteEndOfWord,
                                          QKeySequence::DeleteEndOfLine, QKeySequence::DeleteCompleteLine},
                               [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

} // namespace

CellEditor::CellEditor(MeasurementGrid& ofGrid, QWidget* parent) : QLineEdit(parent), grid(ofGrid) {
    setObjectName("txtEdit");
    setAccessibleName("Cell editor");
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setAcceptDrops(false);
    // Composed characters come without key events.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    UseEdgeColor();
    hide();
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste) && event->key() != Qt::Key_Insert) {
        PasteDigits();
        return;
    }
    if (HasCommandModifier(*event) && DeletesForward(*event)) {
        return;
    }
    const int code = HasCommandModifier(*event) ? 0 : KeyCode(event->key());
    if (code != 0) {
        Run([&] { grid.txtEdit_KeyDown(code); });
        return;
    }
    const int character = TypedCharacter(*event);
    if (character == kNoCharacterTyped || MeasurementGrid::txtEdit_KeyPress(character) != 0) {
        QLineEdit::keyPressEvent(event);
    }
}

void CellEditor::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        UseEdgeColor();
    }
}

void CellEditor::UseEdgeColor() {
    const QColor edge = palette().color(QPalette::Light);
    if (palette().color(QPalette::Base) != edge) {
        QPalette change;
        change.setColor(QPalette::Base, edge);
        setPalette(change);
    }
}

void CellEditor::mouseReleaseEvent(QMouseEvent* event) {
    // The middle button would paste whatever is selected elsewhere.
    if (event->button() != Qt::MiddleButton) {
        QLineEdit::mouseReleaseEvent(event);
    }
}

void CellEditor::contextMenuEvent(QContextMenuEvent* event) {
    // The toolkit's own menu would paste anything.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction("&Undo", this, &QLineEdit::undo);
    menu->addSeparator();
    menu->addAction("Cu&t", this, &QLineEdit::cut);
    menu->addAction("&Copy", this, &QLineEdit::copy);
    menu->addAction("&Paste", this, &CellEditor::PasteDigits);
    menu->popup(event->globalPos());
}

void CellEditor::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(turned, event);
}

void CellEditor::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    // Else nothing would tell it from a cell.
    constexpr int kLine = 2;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kLine));
    painter.drawRect(rect().adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2));
}

void CellEditor::PasteDigits() {
    QString digits;
    for (const QChar character : QGuiApplication::clipboard()->text()) {
        const ushort code = character.unicode();
        if (code > ' ' && MeasurementGrid::txtEdit_KeyPress(code) != 0) {
            digits += character;
        }
    }
    insert(digits);
}

} // namespace orvel::ui
