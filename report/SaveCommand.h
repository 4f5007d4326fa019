// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace orvel {

// Asks where to save a text of the report window or the viewer, and lets it be written there. A cancelled
// dialog ends it with no message; a run-time error of the writing is told as a failed save.
void RunSaveCommand(const std::string& title, const std::string& filter,
                    const std::function<void(const std::filesystem::path&)>& write);

inline constexpr const char* kRtfSaveFilter = "All Files (*.rtf)|*.rtf";

} // namespace orvel
