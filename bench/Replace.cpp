// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// Writes the files of one folder to another one as the command line writes its outputs, and does nothing
// else: bench_replace FROM TO.

#include "core/SafeFile.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

int main(int argc, char** argv) {
    if (argc != 3) {
        (void)std::fputs("usage: bench_replace FROM TO\n", stderr);
        return 2;
    }
    const std::filesystem::path to = argv[2];
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        orvel::ReplaceFile(to / entry.path().filename(), orvel::ReadFile(entry.path()), orvel::Flush::Lazy);
    }
    return EXIT_SUCCESS;
}
