// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/Records.h"
#include "entry/MeasurementGrid.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvel {

// What becomes of an empty cell when it is stored.
enum class EmptyCell {
    BecomesZero,
    // kept: Sequence is cleared, and not the number of the cell, which stays what it was.
    ClearsSequence,
};

// Which number of a measurement a column of the grid shows; the columns 1, 2, ... of a grid make an array.
template <class Gauge>
struct GaugeColumn {
    Single Gauge::*number = nullptr;
    std::string_view mask; // empty: the plain number
    EmptyCell whenEmpty = EmptyCell::BecomesZero;
};

// A zero shows as nothing, and so does what a damaged file has in place of a number.
[[nodiscard]] inline std::string CellText(float number, std::string_view mask) {
    if (!std::isfinite(number) || PlainText(number) == "0") {
        return {};
    }
    return mask.empty() ? PlainText(number) : FormatMask(number, mask);
}

template <class Gauge, std::size_t N>
void LoadCells(const MeasurementList<Gauge>& gauges, const std::array<GaugeColumn<Gauge>, N>& columns,
               MeasurementGrid& grid) {
    for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
        for (int column = 1; const GaugeColumn<Gauge>& each : columns) {
            grid.SetCell(row, column++, CellText(gauges[row].*each.number, each.mask));
        }
    }
}

// The row numbers go to `sequences`, which may be the same list. Raises Type mismatch and Overflow for the
// first cell that holds no number.
template <class Gauge, std::size_t N>
void StoreCells(MeasurementGrid& grid, const std::array<GaugeColumn<Gauge>, N>& columns,
                MeasurementList<Gauge>& gauges, MeasurementList<Gauge>& sequences) {
    for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
        if (grid.Cell(row, 0).empty()) {
            gauges[row].Sequence = 0;
        } else {
            sequences[row].Sequence = ToSingle(grid.Cell(row, 0));
        }
        int column = 0;
        for (const GaugeColumn<Gauge>& each : columns) {
            ++column;
            if (grid.Cell(row, column).empty()) {
                if (each.whenEmpty == EmptyCell::ClearsSequence) {
                    gauges[row].Sequence = 0;
                    continue;
                }
                grid.SetCell(row, column, "0");
            }
            gauges[row].*each.number = ToSingle(grid.Cell(row, column));
        }
    }
}

} // namespace orvel
