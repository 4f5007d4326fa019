// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberLocale.h"

#include "core/CodePage.h"

#include <climits>
#include <cstdlib>
#include <locale>
#include <stdexcept>

namespace orvel {

namespace {

constexpr char32_t kNoBreakSpace = 0x00A0;

NumberLocale& Current() {
    static NumberLocale locale;
    return locale;
}

bool GroupsDigits(const std::string& grouping) {
    return !grouping.empty() && grouping.front() > 0 && grouping.front() != CHAR_MAX;
}

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

char SeparatorInPage(char32_t separator, char otherwise) {
    const CodePage& page = CurrentCodePage();
    return page.FromUnicode(separator).value_or(page.FromUnicode(kNoBreakSpace).value_or(otherwise));
}

} // namespace

const NumberLocale& InvariantNumberLocale() {
    static const NumberLocale locale;
    return locale;
}

const NumberLocale& CurrentNumberLocale() {
    return Current();
}

void UseNumberLocale(const NumberLocale& locale) {
    Current() = locale;
}

NumberLocale SystemNumberLocale() {
    std::locale system;
    try {
        system = std::locale(NameForNumbers());
    } catch (const std::runtime_error&) {
        return InvariantNumberLocale();
    }
    // The wide facet gives Unicode characters; the narrow one could not hold a separator of several bytes.
    const auto& facet = std::use_facet<std::numpunct<wchar_t>>(system);
    NumberLocale locale;
    const auto decimal = static_cast<char32_t>(facet.decimal_point());
    locale.decimalSeparator = CurrentCodePage().FromUnicode(decimal).value_or('.');
    if (GroupsDigits(facet.grouping())) {
        locale.groupSeparator = SeparatorInPage(static_cast<char32_t>(facet.thousands_sep()), ' ');
        locale.grouping = facet.grouping();
    } else if (locale.decimalSeparator == ',') {
        locale.groupSeparator = '\0';
    }
    return locale;
}

} // namespace orvel
