// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// What LeakSanitizer is to overlook in the programs of a sanitized build.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    // The C library keeps the split LOCPATH that a locale was looked up in.
    return "leak:__argz_add_sep\n";
}
