// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramDirectory.h"

#include "core/FileNames.h"

#include <cstdlib>

namespace orvel {

std::filesystem::path DefaultProgramDirectory() {
    const char* folder = std::getenv("ORVEL_PROGRAM_DIR"); // NOLINT(concurrency-mt-unsafe): one thread
    return folder == nullptr || *folder == '\0' ? FolderOfExecutable() : std::filesystem::path(folder);
}

} // namespace orvel
