// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace orvel::testing {

// Sets a variable of this process's environment. An empty one is unset on Windows.
inline void SetInEnvironment(const char* name, const char* value) {
#ifdef _WIN32
    ::_putenv_s(name, value);
#else
    ::setenv(name, value, 1);
#endif
}

} // namespace orvel::testing
