// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orvel {

// Whether the system tells that the user may not read what is there.
[[nodiscard]] bool IsClosedToUser(const std::filesystem::path& path);

} // namespace orvel
