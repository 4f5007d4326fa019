// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <sys/stat.h>

namespace orvel {

// Who may read and write a new file, which nobody but its owner can before: as with the file that it
// replaces. Owner, group, permission bits and access list. Only root may give a
// file away; whoever else writes another's file becomes its owner. Where the group can't be kept, its members
// and all others get what both were allowed: nobody can read a file then who could not before. Raises
// FileError.
void GivePermissionsOf(const std::filesystem::path& old, const struct stat& oldStatus, int newFile);

} // namespace orvel
