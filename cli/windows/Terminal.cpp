// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include "core/windows/Api.h"

#include <fcntl.h>
#include <initializer_list>
#include <io.h>

namespace orvel::cli {

bool IsTerminal(std::FILE* stream) {
    return ::_isatty(::_fileno(stream)) != 0;
}

Terminal::Terminal() {
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        (void)::_setmode(::_fileno(stream), _O_BINARY);
    }
    if (IsTerminal(stdout) || IsTerminal(stderr)) {
        codePageBefore = ::GetConsoleOutputCP();
        ::SetConsoleOutputCP(CP_UTF8);
    }
}

Terminal::~Terminal() {
    if (codePageBefore != 0) {
        // What is still on its way would be shown in the other page.
        (void)std::fflush(stdout);
        ::SetConsoleOutputCP(codePageBefore);
    }
}

} // namespace orvel::cli
