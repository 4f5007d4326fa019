// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/MeasurementTable.h"

#include "tests/ui/GridTest.h"
#include "ui/SolidSetDataDialog.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QWheelEvent>

// The measurement grid and its editor, used by keyboard and mouse.
namespace orvel {

namespace {

using testing::Lines;

using testing::kTestPage;

class MeasurementTable : public testing::GridTest {};

TEST_F(MeasurementTable, HasItsColumns) {
    Lines headers;
    for (int column = 0; column < 3; ++column) {
        headers.push_back(
            Table().model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
    }
    EXPECT_EQ(headers, (Lines{"Sequence", "Distance Feet", "Volume (cc)"}));
    EXPECT_EQ(Table().model()->rowCount(), 300);
    EXPECT_EQ(Table().columnWidth(0), 75);
    EXPECT_EQ(Table().columnWidth(1), 107);
    EXPECT_EQ(Table().columnWidth(2), 107);
    EXPECT_EQ(Table().horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(Table().verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_TRUE(Table().verticalHeader()->isHidden());
    EXPECT_EQ(Table().viewport()->width(), 75 + 107 + 107);
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(Table().model()->index(0, column).data(Qt::TextAlignmentRole).toInt(),
                  int{Qt::AlignCenter});
    }
}

TEST_F(MeasurementTable, TypingAReadingAndDownIsAllItTakes) {
    EXPECT_EQ(CurrentRow(), 1);
    for (const char* reading : {"7", "120", "5"}) {
        Type(reading);
        EXPECT_TRUE(Editor().hasFocus());
        Press(Qt::Key_Down);
        EXPECT_FALSE(Editor().isVisible());
        EXPECT_TRUE(Table().hasFocus());
        surroundings.Said();
    }
    EXPECT_EQ(CurrentRow(), 4);
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_EQ(Cell(2, 2), "120");
    EXPECT_EQ(Cell(3, 2), "05");
    EXPECT_EQ(Cell(4, 2), "130");
}

TEST_F(MeasurementTable, EnterTakesTheTextAndBeginsNoOtherEdit) {
    Type("7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_FALSE(Editor().isVisible());
    for (const auto& [key, text] :
         {std::pair{Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"}, {Qt::Key_Escape, "\x1b"}}) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QApplication::sendEvent(&Table(), &held);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
}

TEST_F(MeasurementTable, EscapeDropsTheText) {
    Type("7");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(1, 2), "141");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(MeasurementTable, KeysThatBeginWithTheCellsText) {
    for (const Qt::Key key :
         {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Space}) {
        Press(key);
        EXPECT_TRUE(Editor().isVisible()) << key;
        EXPECT_EQ(Editor().text(), "141") << key;
        EXPECT_EQ(Editor().selectedText(), "141") << key;
        Press(Qt::Key_Escape);
    }
}

TEST_F(MeasurementTable, KeysThatBeginWithAnotherText) {
    for (const auto& [key, text] : {std::pair{"x", "0"}, {"-", "0"}, {".", "."}, {"4", "4"}}) {
        Type(key);
        EXPECT_TRUE(Editor().isVisible()) << key;
        EXPECT_EQ(Editor().text(), text) << key;
        Press(Qt::Key_Escape);
    }
}

TEST_F(MeasurementTable, KeysThatBeginNothing) {
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Insert, Qt::Key_F9, Qt::Key_F10, Qt::Key_Shift}) {
        Press(key);
        EXPECT_FALSE(Editor().isVisible()) << key;
    }
    // As a real key it has a character.
    QKeyEvent deletes(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f");
    QApplication::sendEvent(&Table(), &deletes);
    EXPECT_FALSE(Editor().isVisible());
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_5, Qt::MetaModifier);
    Press(Qt::Key_5, Qt::AltModifier);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(1, 2), "141");
    Press(Qt::Key_Tab);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_FALSE(Table().hasFocus());
}

TEST_F(MeasurementTable, OtherColumnsAreNotEdited) {
    GoTo(2, 1);
    Type("9");
    Press(Qt::Key_Return);
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(2, 1), "207.5");
}

TEST_F(MeasurementTable, TheFixedColumnCannotBeGoneTo) {
    GoTo(2, 1);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home}) {
        Press(key);
        EXPECT_EQ(CurrentColumn(), 1) << key;
    }
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_NE(CurrentColumn(), 0);
    GoTo(3, 2);
    ClickCell(5, 0);
    EXPECT_EQ(CurrentRow(), 3);
    EXPECT_EQ(CurrentColumn(), 2);
}

TEST_F(MeasurementTable, ClickingAnotherCellTakesTheTextIntoTheOneThatIsLeft) {
    Type("7");
    ClickCell(4, 2);
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_EQ(Cell(4, 2), "130");
    EXPECT_EQ(CurrentRow(), 4);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(MeasurementTable, ADoubleClickEditsTheCellsText) {
    DoubleClickCell(1, 2);
    EXPECT_EQ(Editor().selectedText(), "141") << "the row below the header";
    DoubleClickCell(3, 2);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().selectedText(), "122");
    EXPECT_EQ(EditorInWindow(), InWindow(3, 2));
}

TEST_F(MeasurementTable, ADoubleClickBesideTheCellsEditsNothing) {
    DoubleClickCell(3, 0);
    EXPECT_FALSE(Editor().isVisible());
    QTest::mouseDClick(Table().viewport(), Qt::RightButton, {}, PlaceOf(3, 2));
    EXPECT_FALSE(Editor().isVisible()) << "the right button";
    GoTo(1, 2);
    QWidget* header = Table().horizontalHeader()->viewport();
    QTest::mouseClick(header, Qt::LeftButton, {}, QPoint(200, 5));
    QTest::mouseDClick(header, Qt::LeftButton, {}, QPoint(200, 5));
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(CurrentRow(), 1);
}

TEST_F(MeasurementTable, ScrollingTakesTheText) {
    Type("7");
    QWheelEvent wheel(QPointF(5, 5), Table().viewport()->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Table().viewport(), &wheel);
    EXPECT_GT(Table().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(MeasurementTable, ACellIsLeftBeforeTheGridScrolls) {
    Type("7");
    GoTo(200, 2);
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_EQ(Cell(200, 2), "");
}

TEST_F(MeasurementTable, ACellOutOfSightIsNotEdited) {
    Table().verticalScrollBar()->setValue(100);
    Type("7");
    EXPECT_FALSE(Editor().isVisible());
    EXPECT_EQ(Cell(1, 2), "141");
}

TEST_F(MeasurementTable, ACellThatShowsInPartIsShownWhole) {
    int row = 1;
    while (Table().viewport()->rect().contains(Table().visualRect(Table().model()->index(row - 1, 2)))) {
        ++row;
    }
    dialog->resize(dialog->width(), dialog->height() + 10);
    ASSERT_TRUE(
        Table().viewport()->rect().intersects(Table().visualRect(Table().model()->index(row - 1, 2))));
    GoTo(row, 2);
    Table().verticalScrollBar()->setValue(0);
    Type("7");
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(EditorInWindow(), InWindow(row, 2));
    EXPECT_TRUE(Table().viewport()->rect().contains(Table().visualRect(Table().model()->index(row - 1, 2))));
}

TEST_F(MeasurementTable, AClickOnTheBackgroundTakesTheText) {
    Type("7");
    QTest::mouseClick(Pages().widget(kTestPage), Qt::LeftButton, {}, QPoint(5, 350));
    EXPECT_EQ(Cell(1, 2), "07");
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(MeasurementTable, AWindowInFrontForAWhileTakesNothing) {
    Type("7");
    for (const Qt::FocusReason reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent back(QEvent::FocusIn, reason);
        QApplication::sendEvent(&Table(), &back);
        EXPECT_TRUE(Editor().isVisible()) << reason;
    }
    QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&Table(), &tab);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(MeasurementTable, UpAndDownStopAtTheEnds) {
    Type("7");
    Press(Qt::Key_Up);
    EXPECT_EQ(CurrentRow(), 1);
    EXPECT_EQ(Cell(1, 2), "07");
    GoTo(300, 2);
    Type("8");
    Press(Qt::Key_Down);
    EXPECT_EQ(CurrentRow(), 300);
    EXPECT_EQ(Cell(300, 2), "08");
    GoTo(10, 2);
    Type("9");
    Press(Qt::Key_Up);
    EXPECT_EQ(CurrentRow(), 9);
    surroundings.Said();
}

class SolidSetTable : public testing::DataDialogTest {
protected:
    SolidSetTable() {
        Open<ui::SolidSetDataDialog>(kSolidSet, "solid-set-1997.ssd");
        Pages().setCurrentIndex(kTestPage);
    }
};

TEST_F(SolidSetTable, HasItsColumnsAndEditsTheVolume) {
    Lines headers;
    for (int column = 0; column < 4; ++column) {
        headers.push_back(
            Table().model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
        EXPECT_EQ(Table().columnWidth(column), 72);
        EXPECT_LE(Table().horizontalHeader()->fontMetrics().horizontalAdvance(
                      QString::fromStdString(headers.back())),
                  72);
    }
    EXPECT_EQ(headers, (Lines{"Sequence", "X Axis", "Y Axis", "Volume (cc)"}));
    Table().setFocus();
    QTest::keyClicks(&Table(), "7");
    EXPECT_TRUE(Editor().isVisible());
    QTest::keyClick(&Editor(), Qt::Key_Return);
    EXPECT_EQ(Table().model()->index(0, 3).data(), "7");
}

} // namespace

} // namespace orvel
