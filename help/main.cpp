// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"
#include "help/HelpText.h"
#include "report/RtfWriter.h"

#include <cstdio>
#include <exception>
#include <string_view>

// Makes the instructions: orvel-make-help --rtf|--manual SOURCE RESULT.

int main(int argc, char** argv) {
    constexpr int kArguments = 4;
    if (argc != kArguments) {
        (void)std::fputs("orvel-make-help --rtf|--manual SOURCE RESULT\n", stderr);
        return 2;
    }
    try {
        const std::string source = orvel::ReadFile(argv[2]);
        if (std::string_view(argv[1]) == "--rtf") {
            orvel::SaveRtf(argv[3], orvel::help::HelpDocument(source));
        } else {
            orvel::ReplaceFile(argv[3], orvel::help::ManualPage(source), orvel::Flush::Lazy);
        }
    } catch (const std::exception& error) {
        (void)std::fprintf(stderr, "%s: %s\n", argv[2], error.what());
        return 1;
    }
    return 0;
}
