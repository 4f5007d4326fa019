// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Terminal.h"

#include "core/windows/Api.h"

#include <cstdio>
#include <fcntl.h>
#include <initializer_list>
#include <io.h>

namespace orvel::cli {

namespace {

bool IsTerminal(DWORD stream) {
    DWORD mode = 0;
    return ::GetConsoleMode(::GetStdHandle(stream), &mode) != 0;
}

} // namespace

int OnTerminal(const std::function<int()>& work) {
    for (std::FILE* stream : {stdin, stdout, stderr}) {
        (void)::_setmode(::_fileno(stream), _O_BINARY);
    }
    if (!IsTerminal(STD_OUTPUT_HANDLE) && !IsTerminal(STD_ERROR_HANDLE)) {
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
