// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/frmUserData.h"

#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/Text.h"
#include "core/UserSettingsCheck.h"
#include "settings/SetDirectory.h"

#include <filesystem>
#include <string>

namespace orvel {

void frmUserData::Form_Load() {
    for (const TextBox& box : kTextBoxes) {
        view.SetText(box.control, std::string{TrimRight((Program().userSettings.*box.field).Whole())});
    }
}

void frmUserData::cmdBtnBrowse_Click() {
    const std::filesystem::path folder = SetDirectory();
    if (!folder.empty() && FolderExists(folder)) {
        view.SetText("txtBoxDefaultDirectory", PathText(folder));
    }
}

void frmUserData::cmdBtnSave_Click() {
    StoreTextBoxes();
    UserSettings& settings = Program().userSettings;
    settings.SettingsComplete = CheckUserSettings();
    if (!settings.SettingsComplete.IsSet() && !IsToBeLeftIncomplete()) {
        return;
    }
    SaveUserSettings(settings);
    view.Unload();
}

void frmUserData::cmdBtnCancel_Click() {
    // kept: the program works with what was typed from here on, though no file is written.
    StoreTextBoxes();
    if (CheckUserSettings() || IsToBeLeftIncomplete()) {
        view.Unload();
    }
}

void frmUserData::StoreTextBoxes() {
    for (const TextBox& box : kTextBoxes) {
        Program().userSettings.*box.field = view.Text(box.control);
    }
}

// kept: Cancel goes back to the window, as Yes does.
bool frmUserData::IsToBeLeftIncomplete() {
    return Ask("Would you like to complete this information?", "Incomplete Data", Buttons::YesNoCancel) ==
           Reply::No;
}

} // namespace orvel
