// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"

#include <cstddef>
#include <string>

namespace orvel {

// The window of the soil intake table: a row of three text boxes for each of the rows 1 to 7.
class frmSoilIntake {
public:
    // The view must outlive the window.
    explicit frmSoilIntake(FormView& ofWindow) : view(ofWindow) {}

    void Form_Load();
    // A rate box that holds no number that fits counts as 0. Raises RunTimeError when soil.dat can't be
    // written.
    void cmdBtnSave_Click();
    void cmdBtnCancel_Click();
    void txtBoxSoil_Change(std::size_t row);
    // The key to pass on to the box; 0 when it is dropped.
    [[nodiscard]] static int RateBox_KeyPress(int key);

    // The controls' names: "txtBoxSoil1", "txtBoxMin1", "txtBoxMax1".
    [[nodiscard]] static std::string SoilBox(std::size_t row);
    [[nodiscard]] static std::string MinBox(std::size_t row);
    [[nodiscard]] static std::string MaxBox(std::size_t row);

private:
    [[nodiscard]] float RateIn(const std::string& box) const;

    FormView& view;
};

} // namespace orvel
