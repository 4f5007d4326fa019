// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/windows/Handle.h"

#include "core/FileNames.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace orvel {

namespace {

namespace fs = std::filesystem;

// ERROR_DISK_QUOTA_EXCEEDED, which not every compiler's header has.
constexpr DWORD kDiskQuotaExceeded = 1295;

constexpr std::wstring_view kLongPrefix = LR"(\\?\)";
constexpr std::wstring_view kLongShare = LR"(\\?\UNC\)";
constexpr std::wstring_view kDevicePrefix = LR"(\\.\)";
// What every call takes: a folder's name must leave room for a short file name.
constexpr std::size_t kLongestPlain = MAX_PATH - 13;

// A text that a call writes into a buffer, telling the size that it needs where that is too small.
template <class Call>
std::wstring TextOf(Call call) {
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
        const bool fits = length < text.size();
        text.resize(length);
        if (fits) {
            return text;
        }
    }
}

std::wstring FullName(const fs::path& path) {
    return TextOf([&path](wchar_t* buffer, DWORD size) {
        return ::GetFullPathNameW(path.c_str(), size, buffer, nullptr);
    });
}

int ErrnoOf(DWORD error) {
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return ENOENT;
    case ERROR_DIRECTORY:
        return ENOTDIR;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_CANNOT_MAKE:
    case ERROR_PRIVILEGE_NOT_HELD:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_UNABLE_TO_REMOVE_REPLACED:
        return EACCES;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
    case ERROR_NOT_ENOUGH_QUOTA:
        return ENOSPC;
    case ERROR_FILE_TOO_LARGE:
        return EFBIG;
    case ERROR_CRC:
    case ERROR_SEEK:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_NOT_READY:
    case ERROR_IO_DEVICE:
        return EIO;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_FILENAME_EXCED_RANGE:
        return ENAMETOOLONG;
    case ERROR_BROKEN_PIPE:
    case ERROR_NO_DATA:
        return EPIPE;
    case ERROR_CANT_RESOLVE_FILENAME:
        return ELOOP;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
        return ENOMEM;
    default:
        return EINVAL;
    }
}

// Where a folder or a drive is what is missing.
bool IsMissingFolder(DWORD error) {
    return error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_DRIVE || error == ERROR_BAD_NETPATH ||
           error == ERROR_BAD_NET_NAME;
}

} // namespace

void FailedTo(const std::string& step, DWORD error) {
    throw FileError("cannot " + step, ErrnoOf(error));
}

void FailedAt(const fs::path& path, const std::string& step, DWORD error) {
    if (IsMissingFolder(error) || (error == ERROR_FILE_NOT_FOUND && !FolderExists(FolderOf(path)))) {
        throw FileError("cannot " + step, ErrnoOf(error), ErrorNumber::PathNotFound);
    }
    FailedTo(step, error);
}

bool IsMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_INVALID_NAME || error == ERROR_BAD_PATHNAME ||
           error == ERROR_DIRECTORY || IsMissingFolder(error);
}

std::wstring SystemName(const fs::path& path) {
    const std::wstring full = FullName(path);
    if (full.size() < kLongestPlain || full.starts_with(kLongPrefix) || full.starts_with(kDevicePrefix)) {
        return full;
    }
    return full.starts_with(LR"(\\)") ? std::wstring(kLongShare) + full.substr(2)
                                      : std::wstring(kLongPrefix) + full;
}

bool IsDevice(const fs::path& path) {
    const std::wstring full = FullName(path);
    // "\\.\C:\name" is an odd name of a file.
    constexpr std::size_t kColon = 5;
    return full.starts_with(kDevicePrefix) && full.substr(std::min(kColon, full.size()), 2) != LR"(:\)";
}

DWORD AttributesOf(const fs::path& path) {
    const DWORD attributes = ::GetFileAttributesW(SystemName(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return attributes;
    }
    const Handle target = OpenExisting(path, FILE_READ_ATTRIBUTES);
    BY_HANDLE_FILE_INFORMATION found{};
    if (!target.IsOpen() || ::GetFileInformationByHandle(target.Get(), &found) == 0) {
        return INVALID_FILE_ATTRIBUTES;
    }
    return found.dwFileAttributes;
}

Handle::~Handle() {
    if (IsOpen()) {
        ::CloseHandle(handle);
    }
}

Handle OpenExisting(const fs::path& path, DWORD access, DWORD sharing, DWORD flags) {
    return Handle(
        ::CreateFileW(SystemName(path).c_str(), access, sharing, nullptr, OPEN_EXISTING, flags, nullptr));
}

void WriteAll(const Handle& file, std::string_view content) {
    constexpr std::size_t kMostAtOnce = std::size_t{1} << 20;
    while (!content.empty()) {
        DWORD written = 0;
        const auto size = static_cast<DWORD>(std::min(content.size(), kMostAtOnce));
        if (::WriteFile(file.Get(), content.data(), size, &written, nullptr) == 0) {
            FailedTo("write", ::GetLastError());
        }
        content.remove_prefix(written);
    }
}

void FlushToDisk(const Handle& file) {
    if (::FlushFileBuffers(file.Get()) == 0) {
        FailedTo("flush to the disk", ::GetLastError());
    }
}

std::string ReadFrom(const Handle& file, std::size_t most) {
    std::string content;
    std::array<char, 65536> buffer; // read fills it
    while (content.size() < most) {
        const auto wanted = static_cast<DWORD>(std::min(buffer.size(), most - content.size()));
        DWORD length = 0;
        if (::ReadFile(file.Get(), buffer.data(), wanted, &length, nullptr) == 0) {
            FailedTo("read", ::GetLastError());
        }
        if (length == 0) {
            break;
        }
        content.append(buffer.data(), length);
    }
    return content;
}

fs::path FinalPath(const Handle& file) {
    const std::wstring name = TextOf([&file](wchar_t* buffer, DWORD size) {
        return ::GetFinalPathNameByHandleW(file.Get(), buffer, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    });
    if (name.size() >= kLongestPlain || !name.starts_with(kLongPrefix)) {
        return name;
    }
    return name.starts_with(kLongShare) ? LR"(\\)" + name.substr(kLongShare.size())
                                        : name.substr(kLongPrefix.size());
}

} // namespace orvel
