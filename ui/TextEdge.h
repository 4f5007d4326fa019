// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

// The edge between the logic's 8-bit texts and the toolkit's Unicode.
namespace orvel::ui {

[[nodiscard]] QString ToQt(std::string_view text);
// A character that the code page lacks becomes "?".
[[nodiscard]] std::string FromQt(const QString& text);

[[nodiscard]] QString PathToQt(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path PathFromQt(const QString& path);

} // namespace orvel::ui
