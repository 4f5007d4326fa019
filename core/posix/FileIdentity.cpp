// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"

#include <sys/stat.h>

namespace orvel {

std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path) {
    struct stat status {};

    if (::stat(path.c_str(), &status) == -1 || (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino};
}

} // namespace orvel
