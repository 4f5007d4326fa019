// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace orvel::monkey {

// Looks after the files that the program writes. No file vanishes; one that has changed is whole: as long as
// it must be, with the record that the program has in memory and the old tail of a longer file; temporary
// files leave no trace.
class FilePromises {
public:
    FilePromises(std::filesystem::path ofTests, std::filesystem::path ofProgram);

    // What has been broken since the last call; empty for nothing.
    [[nodiscard]] std::string Broken();

private:
    struct Known {
        std::array<std::int64_t, 4> version{}; // changes with every write
        std::string content;
    };

    [[nodiscard]] std::string BrokenIn(const std::filesystem::path& folder);
    [[nodiscard]] std::string BrokenBy(const std::filesystem::path& file);

    std::filesystem::path tests;
    std::filesystem::path program;
    std::map<std::filesystem::path, Known> known;
};

} // namespace orvel::monkey
