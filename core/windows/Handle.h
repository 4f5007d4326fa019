// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunTimeError.h"
#include "core/windows/Api.h"

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

// Open files, and the names and failures of files, as the system knows them. Failures raise FileError.
namespace orvel {

// Who else may use a file while it is open.
inline constexpr DWORD kSharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
inline constexpr DWORD kSharedWithNone = 0;

// Raises FileError for what the system said (GetLastError).
[[noreturn]] void FailedTo(const std::string& step, DWORD error);

// The same for a call that looked for a file: what tells that a folder is missing becomes Path not found.
[[noreturn]] void FailedAt(const std::filesystem::path& path, const std::string& step, DWORD error);

// Whether the system says that there is no such file.
[[nodiscard]] bool IsMissing(DWORD error);

// The full name as the system's calls take it, also one longer than 260 characters; empty for an empty path.
[[nodiscard]] std::wstring SystemName(const std::filesystem::path& path);

// Whether the name is a device's or a pipe's: NUL, CON, COM1, \\.\pipe\name.
[[nodiscard]] bool IsDevice(const std::filesystem::path& path);

// The attributes of what the path leads to; INVALID_FILE_ATTRIBUTES, and GetLastError, where it leads to
// nothing.
[[nodiscard]] DWORD AttributesOf(const std::filesystem::path& path);

// Whether the attributes are a folder's.
[[nodiscard]] inline bool IsFolder(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// An open file that is closed at the end of its scope.
class Handle {
public:
    Handle() = default;
    explicit Handle(HANDLE openHandle) : handle(openHandle) {}
    ~Handle();
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    [[nodiscard]] HANDLE Get() const { return handle; }
    [[nodiscard]] bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle = INVALID_HANDLE_VALUE;
};

// An existing file or folder. Not open, with GetLastError, when the system refuses.
[[nodiscard]] Handle OpenExisting(const std::filesystem::path& path, DWORD access,
                                  DWORD sharing = kSharedWithAll, DWORD flags = FILE_FLAG_BACKUP_SEMANTICS);

void WriteAll(const Handle& file, std::string_view content);
void FlushToDisk(const Handle& file);
// From the current position, up to `most` bytes.
[[nodiscard]] std::string ReadFrom(const Handle& file,
                                   std::size_t most = std::numeric_limits<std::size_t>::max());

// The full path, behind all links, of an open file.
[[nodiscard]] std::filesystem::path FinalPath(const Handle& file);

} // namespace orvel
