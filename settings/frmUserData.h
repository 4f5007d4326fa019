// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"
#include "core/Records.h"

#include <array>
#include <string_view>

namespace orvel {

// The window of the user settings. It works on the program's record directly: what was typed stays there
// until the program ends, also where the file is not written.
class frmUserData {
public:
    struct TextBox {
        std::string_view control;
        FixedText<50> UserSettings::*field;
    };

    // In the order of the window.
    static constexpr std::array<TextBox, 7> kTextBoxes = {{
        {"txtBoxName", &UserSettings::Name},
        {"txtBoxCompany", &UserSettings::Company},
        {"txtBoxAddress", &UserSettings::Address},
        {"txtBoxCityStateZip", &UserSettings::CityStateZip},
        {"txtBoxPhone", &UserSettings::Phone},
        {"txtBoxEMail", &UserSettings::EMail},
        {"txtBoxDefaultDirectory", &UserSettings::DefaultDirectory},
    }};

    // The view must outlive the window.
    explicit frmUserData(FormView& ofWindow) : view(ofWindow) {}

    void Form_Load();
    void cmdBtnBrowse_Click();
    // Raises RunTimeError when user.usr can't be written.
    void cmdBtnSave_Click();
    // Also what the title bar and Escape do.
    void cmdBtnCancel_Click();

private:
    void StoreTextBoxes();
    static bool IsToBeLeftIncomplete();

    FormView& view;
};

} // namespace orvel
