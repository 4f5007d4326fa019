// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/windows/SystemNumberLocale.h"

#include "core/windows/Api.h"

#include <array>
#include <climits>

namespace orvel {

namespace {

// Empty when the locale has none.
std::wstring Entry(const wchar_t* locale, LCTYPE entry) {
    std::array<wchar_t, 16> text{}; // the longest is a grouping of nine numbers
    const int length = ::GetLocaleInfoEx(locale, entry, text.data(), static_cast<int>(text.size()));
    return length > 0 ? std::wstring(text.data()) : std::wstring();
}

} // namespace

std::string GroupingOf(const std::wstring& settings) {
    std::string grouping;
    bool repeats = false;
    for (const wchar_t character : settings) {
        if (character >= L'1' && character <= L'9') {
            grouping += static_cast<char>(character - L'0');
        }
        repeats = character == L'0';
    }
    // The last size repeats unless the list says that no other group follows.
    if (!grouping.empty() && !repeats) {
        grouping += static_cast<char>(CHAR_MAX);
    }
    return grouping;
}

NumberLocale NumberLocaleNamed(const wchar_t* name) {
    const std::wstring decimal = Entry(name, LOCALE_SDECIMAL);
    const std::wstring group = Entry(name, LOCALE_STHOUSAND);
    if (decimal.empty()) {
        return InvariantNumberLocale();
    }
    const std::string grouping = group.empty() ? std::string() : GroupingOf(Entry(name, LOCALE_SGROUPING));
    return NumberLocaleWith(decimal.front(), group.empty() ? U'\0' : char32_t{group.front()}, grouping);
}

NumberLocale SystemNumberLocale() {
    return NumberLocaleNamed(LOCALE_NAME_USER_DEFAULT);
}

} // namespace orvel
