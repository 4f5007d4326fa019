// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/CellEditor.h"

#include "tests/ui/GridTest.h"

#include <QClipboard>
#include <QScrollBar>
#include <QWheelEvent>

namespace orvel {

namespace {

using testing::kTestPage;
using testing::Lines;

class CellEditor : public testing::GridTest {
protected:
    // What the context menu says; its entry of that name is chosen.
    Lines ChooseInContextMenu(const QString& entry) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                Editor().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&Editor(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        Lines items;
        for (QAction* action : menu->actions()) {
            items.push_back(action->text().remove('&').toStdString());
            if (action->text().remove('&') == entry) {
                action->trigger();
            }
        }
        menu->close();
        return items;
    }
};

TEST_F(CellEditor, TheEditorCoversItsCellExactly) {
    GoTo(5, 2);
    Type("7");
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(EditorInWindow(), InWindow(5, 2));
    EXPECT_EQ(Editor().height(), Editor().sizeHint().height());
    EXPECT_EQ(Editor().palette().color(QPalette::Base), dialog->palette().color(QPalette::Light));
    EXPECT_EQ(Editor().font(), Table().font());
}

TEST_F(CellEditor, TheEditorMovesWithItsCell) {
    GoTo(5, 2);
    Type("7");
    const QRect before = EditorInWindow();
    dialog->resize(dialog->width() + 120, dialog->height() + 60);
    EXPECT_TRUE(QTest::qWaitFor([&] { return EditorInWindow() != before; }));
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(EditorInWindow(), InWindow(5, 2));
}

TEST_F(CellEditor, AResizeThatHidesItsCellTakesTheText) {
    int lastRow = 1;
    while (Table().viewport()->rect().contains(Table().visualRect(Table().model()->index(lastRow, 2)))) {
        ++lastRow;
    }
    GoTo(lastRow, 2);
    Type("7");
    const int height = dialog->height();
    dialog->resize(dialog->width(), dialog->minimumSizeHint().height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Editor().isVisible(); }));
    EXPECT_LT(dialog->height(), height);
    EXPECT_EQ(Cell(lastRow, 2), "07");
}

TEST_F(CellEditor, TheEditorTakesDigitsOnly) {
    Type("1a.2-3 ");
    EXPECT_EQ(Editor().text(), "123");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Editor().text(), "12");
    Press(Qt::Key_4, Qt::AltModifier);
    Press(Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(Editor().text(), "124");
}

TEST_F(CellEditor, APasteEntersItsDigits) {
    QApplication::clipboard()->setText("a1.2\n3");
    Type("9");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), "9123");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), "9");
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "9");
}

TEST_F(CellEditor, DeleteAndF9DeleteTheCell) {
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_F9}) {
        GoTo(1, 2);
        const std::string next = Cell(2, 2);
        Type("7");
        surroundings.replies = {Reply::Yes};
        Press(key);
        EXPECT_EQ(surroundings.Said(),
                  (Lines{"box [Delete Cell] Would you like to delete this cell?|This will shift cells below "
                         "this up.|Really delete this cell?| (YesNoCancel)"}));
        EXPECT_EQ(Cell(1, 2), next);
        EXPECT_FALSE(Editor().isVisible());
        EXPECT_TRUE(Table().hasFocus());
        EXPECT_EQ(CurrentRow(), 299);
    }
}

TEST_F(CellEditor, InsertAndF10InsertACell) {
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_F10}) {
        const std::string before = Cell(2, 2);
        GoTo(2, 2);
        Type("7");
        surroundings.replies = {Reply::Yes};
        Press(key);
        EXPECT_EQ(surroundings.Said(),
                  (Lines{"box [Insert Cell] Would you like to insert a cell before this one?|This will shift "
                         "cells below this down.|Really insert a new cell?| (YesNoCancel)"}));
        EXPECT_EQ(Cell(2, 2), "");
        EXPECT_EQ(Cell(3, 2), before);
        EXPECT_FALSE(Editor().isVisible());
        EXPECT_TRUE(Table().hasFocus());
        EXPECT_EQ(CurrentRow(), 2);
    }
}

TEST_F(CellEditor, ARefusedDeleteGoesOnEditing) {
    Type("75");
    surroundings.replies = {Reply::No};
    Press(Qt::Key_Delete);
    EXPECT_EQ(surroundings.Said().size(), 1U);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().text(), "75");
}

TEST_F(CellEditor, TheWheelOverTheEditorScrollsTheGrid) {
    Type("7");
    QWheelEvent wheel(QPointF(5, 5), Editor().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Editor(), &wheel);
    EXPECT_GT(Table().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Cell(1, 2), "07");
}

TEST_F(CellEditor, AnotherControlLeavesTheEditorOpen) {
    Type("7");
    QTest::mouseClick(&Box("txtBoxPercentTimer"), Qt::LeftButton);
    EXPECT_TRUE(Editor().isVisible());
    Get<QAction>("mnuFileSave").trigger();
    surroundings.Said();
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Cell(1, 2), "141");
    EXPECT_EQ(Program().centerPivotTest.Gauges[1].Volume, 141.0F);
}

TEST_F(CellEditor, TabLeavesTheEditorForTheGrid) {
    Type("7");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_EQ(Cell(1, 2), "07");
}

TEST_F(CellEditor, TheContextMenuPastesDigitsToo) {
    QApplication::clipboard()->setText("x4\b5y");
    Type("1");
    EXPECT_EQ(ChooseInContextMenu("Paste"), (Lines{"Undo", "", "Cut", "Copy", "Paste"}));
    EXPECT_EQ(Editor().text(), "145");
    ChooseInContextMenu("Undo");
    EXPECT_EQ(Editor().text(), "1");
    Editor().selectAll();
    ChooseInContextMenu("Cut");
    EXPECT_EQ(Editor().text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "1");
}

TEST_F(CellEditor, OtherWaysOfPastingEnterNothingElse) {
    Type("1");
    if (QApplication::clipboard()->supportsSelection()) {
        QApplication::clipboard()->setText("x9", QClipboard::Selection);
    }
    QTest::mouseClick(&Editor(), Qt::MiddleButton);
    EXPECT_EQ(Editor().text(), "1");
    EXPECT_FALSE(Editor().acceptDrops());
    EXPECT_FALSE(Editor().testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(CellEditor, ShiftAndInsertInsertACell) {
    QApplication::clipboard()->setText("45");
    Type("1");
    surroundings.replies = {Reply::No};
    Press(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(surroundings.Said().size(), 1U);
    EXPECT_EQ(Editor().text(), "1");
}

TEST_F(CellEditor, ShortcutsDeleteNothingAndGoNowhere) {
    Type("123");
    Editor().setCursorPosition(1);
    for (const Qt::Key key :
         {Qt::Key_Delete, Qt::Key_D, Qt::Key_K, Qt::Key_U, Qt::Key_Down, Qt::Key_Insert}) {
        QTest::keyClick(&Editor(), key, Qt::ControlModifier);
        EXPECT_EQ(Editor().text(), "123") << key;
        EXPECT_TRUE(Editor().isVisible()) << key;
    }
}

TEST_F(CellEditor, ALetterLeavesTheCursorWhereItWas) {
    Type("x");
    EXPECT_EQ(Editor().text(), "0");
    EXPECT_EQ(Editor().cursorPosition(), 0);
    Press(Qt::Key_Escape);
    Type("12");
    Press(Qt::Key_Escape);
    Type("x");
    EXPECT_EQ(Editor().cursorPosition(), 1);
}

TEST_F(CellEditor, AMenuThatGivesTheFocusBackGivesItToTheGrid) {
    Type("7");
    Editor().setFocus();
    Table().verticalScrollBar()->setValue(5);
    EXPECT_FALSE(Editor().isVisible());
    // What a menu bar does when it is left.
    Editor().setFocus(Qt::MenuBarFocusReason);
    EXPECT_TRUE(Table().hasFocus());
    Table().verticalScrollBar()->setValue(0);
    Type("8");
    EXPECT_TRUE(Editor().hasFocus());
}

} // namespace

} // namespace orvel
