// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/MeasurementGrid.h"

#include <QLineEdit>

namespace orvel::ui {

// The text box txtEdit that floats over a cell of the measurement grid. Keys, the clipboard's text too, go
// through the logic.
class CellEditor : public QLineEdit {
public:
    // Hidden. `ofGrid` must outlive the editor.
    CellEditor(MeasurementGrid& ofGrid, QWidget* parent);

    // Whatever the mouse wheel is to turn over the editor.
    void TurnWithWheel(QWidget* ofGrid) { turned = ofGrid; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PasteDigits();
    // The background that the theme has for light edges.
    void UseEdgeColor();

    MeasurementGrid& grid;
    QWidget* turned = nullptr;
};

} // namespace orvel::ui
