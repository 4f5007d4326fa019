// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/ui/DataDialogTest.h"
#include "ui/CenterPivotDataDialog.h"

namespace orvel::testing {

inline constexpr int kTestPage = 3;

// Tests of the measurement grid of the 1978 test, on its page and with the focus.
class GridTest : public DataDialogTest {
protected:
    GridTest() {
        Open<ui::CenterPivotDataDialog>(kCenterPivot, "pivot-1978.cpd");
        Pages().setCurrentIndex(kTestPage);
        Table().setFocus();
    }

    std::string Cell(int row, int column) {
        return Table().model()->index(row - 1, column).data().toString().toStdString();
    }
    void GoTo(int row, int column) { Table().setCurrentIndex(Table().model()->index(row - 1, column)); }
    int CurrentRow() { return Table().currentIndex().row() + 1; }
    int CurrentColumn() { return Table().currentIndex().column(); }
    QPoint PlaceOf(int row, int column) {
        return Table().visualRect(Table().model()->index(row - 1, column)).center();
    }
    void ClickCell(int row, int column) {
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, PlaceOf(row, column));
    }
    void DoubleClickCell(int row, int column) {
        ClickCell(row, column);
        QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, PlaceOf(row, column));
    }
    // The cell's rectangle in the window.
    QRect InWindow(int row, int column) {
        const QRect cell = Table().visualRect(Table().model()->index(row - 1, column));
        return {Table().viewport()->mapTo(dialog.get(), cell.topLeft()), cell.size()};
    }
    QRect EditorInWindow() { return {Editor().mapTo(dialog.get(), QPoint(0, 0)), Editor().size()}; }
    // Keys go where the user's go.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void Type(const char* text) {
        for (const char* each = text; *each != '\0'; ++each) {
            QTest::keyClick(QApplication::focusWidget(), *each);
        }
    }
};

} // namespace orvel::testing
