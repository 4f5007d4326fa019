// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/Records.h"
#include "core/RunTimeError.h"

#include <filesystem>
#include <optional>
#include <string>

namespace orvel {

// The two kinds of test, as the program spells them; compared case-sensitively.
inline constexpr const char* kCenterPivot = "centerPivot";
inline constexpr const char* kSolidSet = "solidSet";

struct SavedPrinterSettings {
    Orientation orientation = Orientation::Portrait;
    int copies = 1;
};

// What the whole program shares for one run: the open test, the settings, and what was last said.
struct ProgramState {
    CenterPivotTest centerPivotTest;
    SolidSetTest solidSetTest;
    UserSettings userSettings;
    SoilIntakeTable soilIntakeTable;

    std::string testKind = kCenterPivot;
    // The open test file of each kind; at most one of the two is not empty.
    std::filesystem::path centerPivotFile;
    std::filesystem::path solidSetFile;
    // Where user.usr, soil.dat and help.rtf are.
    std::filesystem::path programDirectory;
    // Where the program may keep what belongs nowhere else; none where it is empty.
    std::filesystem::path userDataFolder;

    // The last message of the data checks and of the report's error box, and the button that closed it.
    std::string messageText;
    Reply messageReply = Reply::None;
    // The last run-time error that a routine trapped and showed to the user.
    std::optional<RunTimeError> shownError;

    // The printer's settings as they were before the last print command of the report.
    std::optional<SavedPrinterSettings> savedPrinterSettings;
};

[[nodiscard]] ProgramState& Program();

// Puts everything back to program start.
void ResetProgram();

} // namespace orvel
