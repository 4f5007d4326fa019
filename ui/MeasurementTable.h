// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/MeasurementGrid.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace orvel::ui {

// The cells of the logic's grid, for the view: row 0 is the header, so row N is the model's N - 1.
class MeasurementModel : public QAbstractTableModel {
public:
    MeasurementModel(const MeasurementGrid& ofGrid, QObject* parent)
        : QAbstractTableModel(parent), grid(ofGrid) {}

    [[nodiscard]] QModelIndex At(int row, int column) const { return index(row - 1, column); }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& cell) const override;

private:
    const MeasurementGrid& grid;
};

// The grid gridTest: shows the cells and hands what happens to it over to the logic.
class MeasurementTable : public QTableView {
public:
    // `ofGrid` must outlive the table. `rowHeight` is that of a cell.
    MeasurementTable(MeasurementGrid& ofGrid, int rowHeight, QWidget* parent);

    void ShowCell(int row, int column);
    void ShowCurrentCell(int row, int column);
    void ShowWholeCell(int row, int column);
    // Seen from the table's corner; the width is negative when it is out of sight.
    [[nodiscard]] Area CellArea(int row, int column) const;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void TellPointer(const QMouseEvent& event);

    MeasurementGrid& grid;
    MeasurementModel* cells;
};

} // namespace orvel::ui
