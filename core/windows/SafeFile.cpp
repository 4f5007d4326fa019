// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"

#include "core/FileNames.h"
#include "core/windows/Handle.h"
#include "core/windows/TemporaryFile.h"

#include <cerrno>

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr const char* kOpenForWriting = "open for writing";

void SetPosition(const Handle& file, std::size_t position) {
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(position);
    if (::SetFilePointerEx(file.Get(), distance, nullptr, FILE_BEGIN) == 0) {
        FailedTo("write", ::GetLastError());
    }
}

// Overwrites an existing file, keeping its old bytes at hand until the new ones are written.
void OverwriteInPlace(const fs::path& path, std::string_view content, Flush flush) {
    const Handle file = OpenExisting(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ);
    if (!file.IsOpen()) {
        FailedTo(kOpenForWriting, ::GetLastError());
    }
    const std::string old = ReadFrom(file);
    const auto write = [&file, flush](std::string_view bytes) {
        SetPosition(file, 0);
        WriteAll(file, bytes);
        if (::SetEndOfFile(file.Get()) == 0) {
            FailedTo("write", ::GetLastError());
        }
        if (flush == Flush::ToDisk) {
            FlushToDisk(file);
        }
    };
    try {
        write(content);
    } catch (const FileError&) {
        try {
            write(old);
        } catch (const FileError&) { // the first failure is the one to tell
        }
        throw;
    }
}

enum class Done { Yes, OnceMore };

// One try. Another program that tidies up can have taken the temporary file away before it had its name.
Done WriteBesideAndReplace(const fs::path& path, bool isThere, std::string_view content, Flush flush) {
    // The folder's access list may forbid what the file's allows.
    const auto mayOverwrite = [isThere](DWORD error) { return isThere && error == ERROR_ACCESS_DENIED; };
    TemporaryFile temporary(FolderOf(path), TemporaryFile::Readers::OfFolder);
    if (!temporary.IsOpen()) {
        if (!mayOverwrite(temporary.Error())) {
            FailedAt(path, "create a file in the folder", temporary.Error());
        }
        OverwriteInPlace(path, content, flush);
        return Done::Yes;
    }
    WriteAll(temporary.Get(), content);
    if (flush == Flush::ToDisk) {
        FlushToDisk(temporary.Get());
    }
    if (temporary.TakeName(path, isThere ? TemporaryFile::OldFile::KeepsItsPermissions
                                         : TemporaryFile::OldFile::Goes)) {
        return Done::Yes;
    }
    if (!temporary.IsThere()) {
        return Done::OnceMore;
    }
    if (!mayOverwrite(temporary.Error())) {
        FailedTo("replace the file", temporary.Error());
    }
    OverwriteInPlace(path, content, flush);
    return Done::Yes;
}

void ReplaceByRename(const fs::path& path, bool isThere, std::string_view content, Flush flush) {
    if (TemporaryFile::IsNameOfOne(path)) {
        throw FileError("cannot take a name of temporary files", EINVAL);
    }
    constexpr int kMostTries = 8;
    for (int i = 0; i < kMostTries; ++i) {
        if (WriteBesideAndReplace(path, isThere, content, flush) == Done::Yes) {
            return;
        }
    }
    FailedTo("replace the file", ERROR_SHARING_VIOLATION);
}

void WriteStraight(const fs::path& path, std::string_view content) {
    const Handle device = OpenExisting(path, GENERIC_WRITE, kSharedWithAll, FILE_ATTRIBUTE_NORMAL);
    if (!device.IsOpen()) {
        FailedTo(kOpenForWriting, ::GetLastError());
    }
    WriteAll(device, content);
}

// The file to write where the name is a link's: a rename would replace the link.
fs::path WithoutLinks(const fs::path& path) {
    const DWORD attributes = ::GetFileAttributesW(SystemName(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    const Handle target = OpenExisting(path, FILE_READ_ATTRIBUTES);
    if (!target.IsOpen()) {
        FailedTo("follow the link", ::GetLastError());
    }
    return FinalPath(target);
}

} // namespace

FileKind KindOfFile(const fs::path& path) {
    if (path.empty()) {
        return FileKind::None;
    }
    if (IsDevice(path)) {
        return FileKind::Other;
    }
    const DWORD attributes = AttributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (!IsMissing(error)) {
            FailedTo("look at", error);
        }
        return FileKind::None;
    }
    return IsFolder(attributes) ? FileKind::None : FileKind::Regular;
}

std::string ReadFile(const fs::path& path, std::size_t most) {
    if (path.empty()) {
        throw FileError("cannot open", ENOENT);
    }
    const Handle file = OpenExisting(path, GENERIC_READ);
    if (!file.IsOpen()) {
        FailedAt(path, "open", ::GetLastError());
    }
    BY_HANDLE_FILE_INFORMATION found{};
    if (::GetFileInformationByHandle(file.Get(), &found) != 0 && IsFolder(found.dwFileAttributes)) {
        throw FileError("cannot read", EISDIR);
    }
    return ReadFrom(file, most);
}

void ReplacePrivately(const fs::path& path, std::string_view content) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }
    TemporaryFile temporary(FolderOf(path), TemporaryFile::Readers::UserAlone);
    if (!temporary.IsOpen()) {
        FailedAt(path, "create a file in the folder", temporary.Error());
    }
    WriteAll(temporary.Get(), content);
    FlushToDisk(temporary.Get());
    if (!temporary.TakeName(path, TemporaryFile::OldFile::Goes)) {
        if (IsFolder(::GetFileAttributesW(SystemName(path).c_str()))) {
            throw FileError("cannot replace the file", EISDIR);
        }
        FailedTo("replace the file", temporary.Error());
    }
}

void ReplaceFile(const fs::path& path, std::string_view content, Flush flush) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }
    if (IsDevice(path)) {
        WriteStraight(path, content);
        return;
    }
    const fs::path target = WithoutLinks(path);
    const DWORD attributes = AttributesOf(target);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (!IsMissing(error)) {
            FailedTo(kOpenForWriting, error);
        }
        ReplaceByRename(target, false, content, flush);
        return;
    }
    if (IsFolder(attributes)) {
        throw FileError("cannot write to what is no file", EISDIR);
    }
    // The replacement asks for neither this attribute nor who may write the file.
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0 ||
        (!OpenExisting(target, FILE_WRITE_DATA).IsOpen() && ::GetLastError() == ERROR_ACCESS_DENIED)) {
        throw FileError("cannot open for writing", EACCES);
    }
    ReplaceByRename(target, true, content, flush);
}

} // namespace orvel
