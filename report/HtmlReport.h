// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace orvel {

// A report's plain text as a minimal HTML file. kept: "<", ">" and "&" stand as they are, and a body is
// closed that was never opened.
[[nodiscard]] std::string HtmlOfReport(std::string_view text);

} // namespace orvel
