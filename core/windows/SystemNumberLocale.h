// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"

namespace orvel {

// The numbers of the locale of that name ("de-DE"; null for the user's own, with the user's own settings). Of
// one that the system lacks, the invariant ones.
[[nodiscard]] NumberLocale NumberLocaleNamed(const wchar_t* name);

// A grouping as the user's settings write it ("3;0" for thousands, "3;2;0", "3" for one group only, "0" for
// none) as NumberLocale has it.
[[nodiscard]] std::string GroupingOf(const std::wstring& settings);

} // namespace orvel
