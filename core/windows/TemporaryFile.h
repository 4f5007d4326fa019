// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/windows/Handle.h"

#include <filesystem>
#include <string_view>

namespace orvel {

// A new file of a folder that is to take another file's name when it is complete. It is removed at the end of
// its scope unless it has.
//
// It has one of the names in core/TemporaryNames. While it is written nobody else can open it, which is its
// lock. The lock ends just before the name changes: another program that tidies up can come between, and
// TakeName then says that the file is missing. A name that is taken for another reason stays: a folder, a
// link, a file of more than one name, one that is open, one that may not be deleted. No failure of tidying up
// is one of the save.
class TemporaryFile {
public:
    // Who may read it: as the folder gives it to new files, or nobody but the user (where the file system has
    // access lists).
    enum class Readers { OfFolder, UserAlone };

    TemporaryFile(const std::filesystem::path& folder, Readers readers);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Whether a file is never to be saved under that name, since it would be taken for one of these.
    [[nodiscard]] static bool IsNameOfOne(const std::filesystem::path& path);

    // False when the folder takes no file; Error() says why.
    [[nodiscard]] bool IsOpen() const { return file.IsOpen(); }
    [[nodiscard]] DWORD Error() const { return error; }

    [[nodiscard]] const Handle& Get() const { return file; }

    // How it takes the name of a file that is there: with that file's access list and whatever else the
    // system keeps with a name, or with its own.
    enum class OldFile { KeepsItsPermissions, Goes };

    // Closes it and gives it the name; false when the system refuses, Error() says why.
    [[nodiscard]] bool TakeName(const std::filesystem::path& path, OldFile oldFile);
    // Whether it is still there.
    [[nodiscard]] bool IsThere() const;

private:
    [[nodiscard]] bool Create(const std::filesystem::path& path, Readers readers);

    std::filesystem::path name; // empty for none
    Handle file;
    DWORD error = ERROR_SUCCESS;
};

} // namespace orvel
