// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace orvel::cli {

bool IsTerminal(std::FILE* stream) {
#ifdef _WIN32
    return _isatty(_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

} // namespace orvel::cli
