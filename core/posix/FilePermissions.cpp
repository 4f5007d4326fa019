// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FilePermissions.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace orvel {

bool IsClosedToUser(const std::filesystem::path& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), R_OK, AT_EACCESS) == -1 && errno == EACCES;
}

} // namespace orvel
