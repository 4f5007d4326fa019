// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include "core/windows/Api.h"

#include <fcntl.h>
#include <initializer_list>
#include <io.h>

namespace orvel::cli {

bool IsTerminal(std::FILE* stream) {
    DWORD mode = 0;
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream)));
    return ::GetConsoleMode(handle, &mode) != 0;
}

int OnTerminal(const std::function<int()>& work) {
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        (void)::_setmode(::_fileno(stream), _O_BINARY);
    }
    if (!IsTerminal(stdout) && !IsTerminal(stderr)) {
        return work();
    }
    const UINT pageBefore = ::GetConsoleOutputCP();
    ::SetConsoleOutputCP(CP_UTF8);
    const int status = work();
    // What is still on its way would be shown in the other page.
    (void)std::fflush(stdout);
    ::SetConsoleOutputCP(pageBefore);
    return status;
}

} // namespace orvel::cli
