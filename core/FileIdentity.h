// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace orvel {

// What tells a file from all others, whatever names it has.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t file = 0;

    auto operator<=>(const FileIdentity&) const = default;
};

// Of the file or folder that the path leads to; nothing where it leads to none, or to a device or pipe.
[[nodiscard]] std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path);

} // namespace orvel
