// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"
#include "core/windows/Api.h"

#include <string>

namespace orvel {

// The page is never said to be of the system: file names and arguments come in Unicode.
CodePage CodePage::OfSystem() {
    return Named("CP" + std::to_string(::GetACP())).value_or(Windows1252());
}

} // namespace orvel
