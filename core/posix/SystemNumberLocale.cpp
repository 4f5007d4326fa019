// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberLocale.h"

#include <cstdlib>
#include <locale>
#include <stdexcept>
#include <string>

namespace orvel {

namespace {

// The locale that the environment names for numbers. Asking for all of its categories at once would fail
// when any other one does not exist.
std::string NameForNumbers() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* name = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread
        if (name != nullptr && *name != '\0') {
            return name;
        }
    }
    return "C";
}

} // namespace

NumberLocale SystemNumberLocale() {
    std::locale system;
    try {
        system = std::locale(NameForNumbers());
    } catch (const std::runtime_error&) {
        return InvariantNumberLocale();
    }
    // The wide facet gives Unicode characters; the narrow one could not hold a separator of several bytes.
    const auto& facet = std::use_facet<std::numpunct<wchar_t>>(system);
    return NumberLocaleWith(static_cast<char32_t>(facet.decimal_point()),
                            static_cast<char32_t>(facet.thousands_sep()), facet.grouping());
}

} // namespace orvel
