// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FilePermissions.h"

#include "core/windows/Handle.h"

namespace orvel {

bool IsClosedToUser(const std::filesystem::path& path) {
    return !path.empty() && !OpenExisting(path, GENERIC_READ).IsOpen() &&
           ::GetLastError() == ERROR_ACCESS_DENIED;
}

} // namespace orvel
