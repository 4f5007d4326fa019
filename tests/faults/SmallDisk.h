// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>

namespace orvel::testing {

// A real file system of a megabyte that takes the place of a folder, seen by this process and its children
// only. Needs root or a system that lets users have a namespace of their own.
class SmallDisk {
public:
    explicit SmallDisk(const std::filesystem::path& inFolder);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    // The name of the file that takes up the space.
    static constexpr const char* kFiller = "filler";

    // Fills it until so many blocks are left.
    void LeaveFree(std::size_t blocks) const;

private:
    std::filesystem::path folder;
};

} // namespace orvel::testing
