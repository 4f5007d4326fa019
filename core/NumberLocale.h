// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace orvel {

// How the user's locale writes numbers, in characters of the program's code page.
struct NumberLocale {
    char decimalSeparator = '.';
    // What stands between groups of digits; '\0' when the locale has nothing that could.
    char groupSeparator = ',';
    // Group sizes from the decimal separator leftwards, the last one repeating ("\3" is thousands).
    std::string grouping = "\3";
};

// "." and ",", whatever the system says: what file formats use.
[[nodiscard]] const NumberLocale& InvariantNumberLocale();

// The locale in force for everything the user types and reads; the invariant one until set.
[[nodiscard]] const NumberLocale& CurrentNumberLocale();
void UseNumberLocale(const NumberLocale& locale);

// A locale by its separators as Unicode has them, written in the code page in force: a group separator that
// the page lacks (U+202F) becomes U+00A0, a decimal separator that it lacks ".". Where nothing is grouped,
// the group separator is "," unless that is the decimal separator.
[[nodiscard]] NumberLocale NumberLocaleWith(char32_t decimalSeparator, char32_t groupSeparator,
                                            const std::string& grouping);

// The user's locale: the one that the environment asks for (the invariant one when it asks for one that does
// not exist), on Windows that of the user's settings. Call it after the code page is set.
[[nodiscard]] NumberLocale SystemNumberLocale();

} // namespace orvel
