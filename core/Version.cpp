// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Version.h"

namespace orvel {

const char* ProgramVersion() {
    return ORVEL_VERSION;
}

std::string VersionText() {
    return std::string("Version ") + ProgramVersion();
}

} // namespace orvel
