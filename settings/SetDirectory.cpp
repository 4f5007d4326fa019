// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/SetDirectory.h"

#include "core/Platform.h"

namespace orvel {

std::filesystem::path SetDirectory() {
    return CurrentPlatform().folderBrowser->Browse("Please Select Default Directory For Files");
}

} // namespace orvel
