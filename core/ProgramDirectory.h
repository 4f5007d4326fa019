// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orvel {

// Where user.usr, soil.dat and help.rtf are if the call doesn't say: the folder that the environment variable
// ORVEL_PROGRAM_DIR names, whether it is there or not, by which a program installed for all users is started
// with a folder of its user's own; without the variable the folder of the executable.
[[nodiscard]] std::filesystem::path DefaultProgramDirectory();

} // namespace orvel
