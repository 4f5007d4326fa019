// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/UserSettingsCheck.h"

#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/ProgramState.h"
#include "core/Text.h"

#include <array>
#include <string>

namespace orvel {

namespace {

struct Required {
    FixedText<50> UserSettings::*field;
    const char* complaint;
};

constexpr std::array<Required, 6> kRequired = {{
    {&UserSettings::Name, "You need to enter a name."},
    {&UserSettings::Address, "You need to enter an address."},
    {&UserSettings::CityStateZip, "You need to enter a City, State and Zip."},
    {&UserSettings::Company, "You need to enter a company or title."},
    {&UserSettings::EMail, "You need to enter an e-mail address."},
    {&UserSettings::Phone, "You need to enter a telephone number."},
}};

} // namespace

bool CheckUserSettings() {
    std::string missing;
    for (const Required& each : kRequired) {
        if ((Program().userSettings.*each.field).IsBlank()) {
            missing.append(each.complaint).append(kCr);
        }
    }
    if (missing.empty()) {
        return true;
    }
    missing.append(kCr).append("You Should Check Your Setup Information");
    missing.append(kCr).append("You may also change the default file location.");
    missing.append(kCr).append("Please choose 'User Settings' on the 'Window' menu.");
    Tell(missing, "User Settings Error");
    return false;
}

std::filesystem::path DefaultFolder() {
    const std::filesystem::path folder = PathOfText(Program().userSettings.DefaultDirectory.TrimInPlace());
    return FolderExists(folder) ? folder : std::filesystem::path{};
}

} // namespace orvel
