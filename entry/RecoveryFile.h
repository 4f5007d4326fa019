// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// The recovery file of a test: "NAME.cpd.recovery" beside the test file (behind its links), or, where it
// can't be written there, in the folder "recovery" of the user's data folder, under the test file's name and
// a number made from its full path. Only the user can read it; another user's is left alone.
class RecoveryFile {
public:
    // Of no file: there is no place for it.
    explicit RecoveryFile(const std::filesystem::path& testFile);

    // The contents of what is there: of none, one or both places. What can't be read is empty.
    [[nodiscard]] std::vector<std::string> Read() const;
    // Whole or not at all, and down on the disk. Raises FileError when neither place takes it.
    void Write(std::string_view content) const;
    // What can't be removed stays.
    void Remove() const;

    // Keeps what is there under other names ("NAME.cpd.recovery-1", ...), until RemoveKept.
    void SetAside() const;
    void RemoveKept() const;

private:
    std::array<std::filesystem::path, 2> places; // beside, and the user's; empty ones are none
};

} // namespace orvel
