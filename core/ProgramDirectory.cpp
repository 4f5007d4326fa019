// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramDirectory.h"

#include "core/FileNames.h"
#include "core/ProgramStart.h"

namespace orvel {

std::filesystem::path DefaultProgramDirectory() {
    std::filesystem::path folder = PathInEnvironment("ORVEL_PROGRAM_DIR");
    return folder.empty() ? FolderOfExecutable() : folder;
}

} // namespace orvel
