// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordFiles.h"
#include "settings/frmSoilIntake.h"
#include "settings/frmUserData.h"
#include "tests/faults/Saving.h"
#include "tests/support/CompleteUserSettings.h"

#include <gtest/gtest.h>

namespace orvel::testing {

namespace {

// An open settings window. Its Save traps no error.
template <class Window>
class SettingsFaults : public FormTest<Window> {
protected:
    SettingsFaults() {
        Program().programDirectory = folder.Path();
        Program().userSettings = CompleteUserSettings();
        FillDefaultSoilTable();
        this->window.Form_Load();
    }

    [[nodiscard]] Saving SavingOf(const char* file, std::size_t record) {
        return {.folder = folder.Path(),
                .files = {OldRecord(file, record)},
                .save = [this] { this->window.cmdBtnSave_Click(); },
                .said = [this] { return this->Said(); },
                .failures = {{"run-time error %"}}};
    }

    TemporaryFolder folder;
};

using UserDataFaults = SettingsFaults<frmUserData>;
using SoilIntakeFaults = SettingsFaults<frmSoilIntake>;

TEST_F(UserDataFaults, Save) {
    Type("txtBoxName", "Ole");
    ExpectSafe(SavingOf("user.usr", sizeof(UserSettings)));
}

TEST_F(SoilIntakeFaults, Save) {
    Type("txtBoxSoil2", "Silt");
    ExpectSafe(SavingOf("soil.dat", kSoilRows * sizeof(SoilIntakeRow)));
}

} // namespace

} // namespace orvel::testing
