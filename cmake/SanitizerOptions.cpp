// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// How the programs of a sanitized build report. The sanitizers look for functions of these names.
// NOLINTBEGIN(readability-identifier-naming)

extern "C" const char* __asan_default_options();
extern "C" const char* __lsan_default_suppressions();

// Functions have names in reports, and so in the suppressions, too; and no test that awaits the end of a
// program takes a report's status for it.
extern "C" const char* __asan_default_options() {
    return "external_symbolizer_path=/usr/bin/llvm-symbolizer-16:exitcode=99";
}

extern "C" const char* __lsan_default_suppressions() {
    // The C library keeps the split LOCPATH that a locale was looked up in, and the message bus what is under
    // way to a screen reader when the program ends.
    return "leak:argz_add_sep\n"
           "leak:libdbus-1.so\n";
}

// NOLINTEND(readability-identifier-naming)
