// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Paths never pass through the code page; only a name that a text shows does.
namespace orvel {

// Whether a path names something that can be read as a file. The name is taken literally; an empty path and a
// folder are none.
[[nodiscard]] bool FileExists(const std::filesystem::path& path);

[[nodiscard]] bool FolderExists(const std::filesystem::path& path);

// The folder that a name is in; "." for a bare name.
[[nodiscard]] std::filesystem::path FolderOf(const std::filesystem::path& path);

// The file's name without its folder, in the program's code page.
[[nodiscard]] std::string FileNameText(const std::filesystem::path& path);

// A whole path in the program's code page, as far as the page can hold it.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);

// The same as UTF-8, whatever the page can hold; what is no part of a text becomes U+FFFD.
[[nodiscard]] std::string PathUtf8(const std::filesystem::path& path);

// The path that a text of the program's code page names.
[[nodiscard]] std::filesystem::path PathOfText(std::string_view text);

// The path that a text of the system names: an argument of the call (core/ProgramStart).
[[nodiscard]] std::filesystem::path PathOfSystemText(std::string_view text);

// The full path behind all links, the same by whatever way a file is named; the file need not exist.
[[nodiscard]] std::filesystem::path FullPath(const std::filesystem::path& path);

// What to compare instead of a path: the same for two that differ only in what the system's file names do not
// tell apart (on Windows the case of letters).
[[nodiscard]] std::filesystem::path PathForComparison(const std::filesystem::path& path);

// The folder that the running program is in.
[[nodiscard]] std::filesystem::path FolderOfExecutable();

// The file of that name (ASCII) in the folder, or, where there is none, the first one whose name differs only
// in the case of its letters; an empty path where there is none either.
[[nodiscard]] std::filesystem::path FindFile(const std::filesystem::path& folder, std::string_view name);

// Whether the name ends in "." and the extension, in any case ("TEST.CPD" has "cpd").
[[nodiscard]] bool HasExtension(const std::filesystem::path& path, std::string_view extension);

} // namespace orvel
