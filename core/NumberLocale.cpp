// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberLocale.h"

#include "core/CodePage.h"

#include <climits>

namespace orvel {

namespace {

constexpr char32_t kNoBreakSpace = 0x00A0;

NumberLocale& Current() {
    static NumberLocale locale;
    return locale;
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

NumberLocale NumberLocaleWith(char32_t decimalSeparator, char32_t groupSeparator,
                              const std::string& grouping) {
    const bool groupsDigits = !grouping.empty() && grouping.front() > 0 && grouping.front() != CHAR_MAX;
    NumberLocale locale;
    locale.decimalSeparator = CurrentCodePage().FromUnicode(decimalSeparator).value_or('.');
    if (groupsDigits) {
        locale.groupSeparator = SeparatorInPage(groupSeparator, ' ');
        locale.grouping = grouping;
    } else if (locale.decimalSeparator == ',') {
        locale.groupSeparator = '\0';
    }
    return locale;
}

} // namespace orvel
