// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// What LeakSanitizer is to overlook in the programs of a sanitized build.
// NOLINTNEXTLINE(readability-identifier-naming): the sanitizer looks for this name.
extern "C" const char* __lsan_default_suppressions();

// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" const char* __lsan_default_suppressions() {
    // The C library keeps the split LOCPATH that a locale was looked up in.
    return "leak:__argz_add_sep\n";
}
