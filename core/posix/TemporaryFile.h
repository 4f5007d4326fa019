// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/posix/Descriptor.h"

#include <filesystem>
#include <string>

namespace orvel {

// A new file of a folder that is to take another file's name when it is complete. It is removed at the end of
// its scope unless it has.
//
// It has one of the names in core/TemporaryNames. Who writes it holds its lock (flock). A name that is taken
// for another reason stays: the file of somebody else, a folder, a link, a file of more than one name, one on
// a file system without locks. No failure of tidying up is one of the save.
//
// Until it is given other permissions (core/posix/GivePermissions), it has those with which it was created.
class TemporaryFile {
public:
    static constexpr unsigned kOwnerOnly = 0600;
    // What the user's mask and the folder's list for new files leave of it, as for any new file.
    static constexpr unsigned kNewFile = 0666;

    TemporaryFile(const std::filesystem::path& folder, unsigned mode);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Whether a file is never to be saved under that name, since it would be taken for one of these.
    [[nodiscard]] static bool IsNameOfOne(const std::filesystem::path& path);

    // False, with errno set, when the folder takes no file.
    [[nodiscard]] bool IsOpen() const { return file.IsOpen(); }

    [[nodiscard]] int Get() const { return file.Get(); }

    // Closes it and gives it the name, or refuses with errno set. Raises FileError when what was written may
    // not be in the file.
    [[nodiscard]] bool TakeName(const std::filesystem::path& path);

private:
    [[nodiscard]] bool Create(const std::filesystem::path& path, unsigned mode);

    std::filesystem::path name; // empty for none
    Descriptor file;
};

} // namespace orvel
