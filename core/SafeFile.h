// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

// Whole files in and out. Files are opened, read or written, and closed within one call. All failures raise
// FileError.
namespace orvel {

enum class FileKind {
    None, // nothing, or a folder
    Regular,
    Other,
};

// What kind of file is there. Unlike FileExists it raises where that can't be told, so that a file out of
// reach is not taken for one that is missing.
[[nodiscard]] FileKind KindOfFile(const std::filesystem::path& path);

// The file's first `most` bytes, or all of them when it is shorter.
[[nodiscard]] std::string ReadFile(const std::filesystem::path& path,
                                   std::size_t most = std::numeric_limits<std::size_t>::max());

// Whether the new content must have reached the disk before the old one goes.
enum class Flush { ToDisk, Lazy };

// Makes `content` the file's content, whole or not at all: it goes to a temporary file (posix/TemporaryFile,
// windows/TemporaryFile) in the same folder, which takes the old file's permissions and replaces it; a
// failure on the way leaves the old file as it was and removes the temporary. What a killed program left is
// removed by the next call. A symbolic link stays, its target is replaced. Where the folder lets no file be
// created or replaced but the file may be written, it is overwritten in place, and the old bytes are put back
// when that fails; so is a file without a name (one that was deleted, behind "/dev/stdout"). A device or a
// pipe, "/dev/stdout" on one included, is written straight; a folder, a socket, a file without write
// permission and a name of temporary files are errors.
void ReplaceFile(const std::filesystem::path& path, std::string_view content, Flush flush);

// The same for a file of the program's own that nobody but the user is to read, whatever was there: always
// on the disk, never in place, and a link gives way itself.
void ReplacePrivately(const std::filesystem::path& path, std::string_view content);

} // namespace orvel
