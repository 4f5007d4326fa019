// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <functional>

namespace orvel::cli {

// Whether somebody looks on while the stream is written.
[[nodiscard]] bool IsTerminal(std::FILE* stream);

// Does the program's work, whose exit status it returns. Meanwhile the standard streams take and give texts
// byte for byte, and a terminal shows what is written to it as the UTF-8 that it is.
[[nodiscard]] int OnTerminal(const std::function<int()>& work);

} // namespace orvel::cli
