// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"

#include "core/FileNames.h"
#include "core/RunTimeError.h"
#include "core/posix/Descriptor.h"
#include "core/posix/GivePermissions.h"
#include "core/posix/TemporaryFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;

// The failure of a call that looked for `path`: when the folder is what is missing, the error says so.
[[noreturn]] void FailedAt(const fs::path& path, const std::string& step) {
    const int reason = errno;
    std::error_code error;
    if (reason == ENOENT && !fs::is_directory(FolderOf(path), error)) {
        throw FileError("cannot " + step, reason, ErrorNumber::PathNotFound);
    }
    throw FileError("cannot " + step, reason);
}

enum class AtLink { Stay, Follow };

fs::file_type TypeOf(const fs::path& path, AtLink atLink) {
    std::error_code error;
    const fs::file_type type =
        (atLink == AtLink::Follow ? fs::status(path, error) : fs::symlink_status(path, error)).type();
    if (type == fs::file_type::none) {
        throw FileError("cannot look at", error.value());
    }
    return type;
}

// Follows symbolic links to the name that is to be written, which need not exist yet.
fs::path WithoutLinks(fs::path path) {
    for (int links = 0; TypeOf(path, AtLink::Stay) == fs::file_type::symlink; ++links) {
        if (links == kMostLinks) {
            throw FileError("cannot follow the link", ELOOP);
        }
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            throw FileError("cannot follow the link", error.value());
        }
        path = path.parent_path() / target;
    }
    return path;
}

// Whether the name belongs to that file. "/dev/stdout" on a file that was deleted leads to one without a
// name.
bool Is(const fs::path& name, const struct stat& file) {
    struct stat found {};

    if (::stat(name.c_str(), &found) == -1) {
        if (errno != ENOENT && errno != ENOTDIR) {
            FailedTo("look at");
        }
        return false;
    }
    return found.st_dev == file.st_dev && found.st_ino == file.st_ino;
}

// Overwrites an existing file, keeping its old bytes at hand until the new ones are written.
void OverwriteInPlace(const fs::path& path, std::string_view content, Flush flush) {
    const Descriptor file = Open(path, O_RDWR);
    if (!file.IsOpen()) {
        FailedTo("open for writing");
    }
    const std::string old = ReadFrom(file.Get());
    const auto write = [&file, flush](std::string_view bytes) {
        if (::lseek(file.Get(), 0, SEEK_SET) == -1) {
            FailedTo("write");
        }
        WriteAll(file.Get(), bytes);
        if (Uninterrupted([&] { return ::ftruncate(file.Get(), static_cast<off_t>(bytes.size())); }) == -1) {
            FailedTo("write");
        }
        if (flush == Flush::ToDisk) {
            FlushToDisk(file.Get());
        }
        file.Twin().CloseChecked();
    };
    try {
        write(content);
    } catch (const FileError&) {
        try {
            write(old);
        } catch (const FileError&) { // NOLINT(bugprone-empty-catch): the first failure is the one to tell
        }
        throw;
    }
}

void FlushFolder(const fs::path& folder) {
    const Descriptor descriptor = Open(folder, O_RDONLY | O_DIRECTORY);
    // A folder that may be written but not listed can't be opened, and some file systems can't flush one.
    const bool isDoneOrImpossible =
        descriptor.IsOpen() ? ::fsync(descriptor.Get()) == 0 || errno == EINVAL : errno == EACCES;
    if (!isDoneOrImpossible) {
        FailedTo("flush the folder to the disk");
    }
}

// The last step; false, with errno set, when the system refuses the name.
bool PutInPlace(TemporaryFile& temporary, const fs::path& path, Flush flush) {
    if (flush == Flush::ToDisk) {
        FlushToDisk(temporary.Get());
    }
    if (!temporary.TakeName(path)) {
        return false;
    }
    if (flush == Flush::ToDisk) {
        FlushFolder(FolderOf(path));
    }
    return true;
}

void ReplaceByRename(const fs::path& path, const struct stat* old, std::string_view content, Flush flush) {
    if (TemporaryFile::IsNameOfOne(path)) {
        throw FileError("cannot take a name of temporary files", EINVAL);
    }
    // The folder, or its sticky bit, may forbid what the file itself allows.
    const auto mayOverwrite = [old] { return old != nullptr && (errno == EACCES || errno == EPERM); };
    TemporaryFile temporary(FolderOf(path),
                            old != nullptr ? TemporaryFile::kOwnerOnly : TemporaryFile::kNewFile);
    if (!temporary.IsOpen()) {
        if (mayOverwrite()) {
            OverwriteInPlace(path, content, flush);
            return;
        }
        FailedAt(path, "create a file in the folder");
    }
    WriteAll(temporary.Get(), content);
    if (old != nullptr) {
        GivePermissionsOf(path, *old, temporary.Get());
    }
    if (!PutInPlace(temporary, path, flush)) {
        if (!mayOverwrite()) {
            FailedTo("replace the file");
        }
        OverwriteInPlace(path, content, flush);
    }
}

void WriteStraight(const fs::path& path, std::string_view content) {
    Descriptor device = Open(path, O_WRONLY);
    if (!device.IsOpen()) {
        FailedTo("open for writing");
    }
    WriteAll(device.Get(), content);
    device.CloseChecked();
}

} // namespace

FileKind KindOfFile(const fs::path& path) {
    switch (TypeOf(path, AtLink::Follow)) {
    case fs::file_type::not_found:
    case fs::file_type::directory:
        return FileKind::None;
    case fs::file_type::regular:
        return FileKind::Regular;
    default:
        return FileKind::Other;
    }
}

std::string ReadFile(const fs::path& path, std::size_t most) {
    const Descriptor file = Open(path, O_RDONLY);
    if (!file.IsOpen()) {
        FailedAt(path, "open");
    }
    return ReadFrom(file.Get(), most);
}

void ReplacePrivately(const fs::path& path, std::string_view content) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }
    TemporaryFile temporary(FolderOf(path), TemporaryFile::kOwnerOnly);
    if (!temporary.IsOpen()) {
        FailedAt(path, "create a file in the folder");
    }
    WriteAll(temporary.Get(), content);
    if (!PutInPlace(temporary, path, Flush::ToDisk)) {
        FailedTo("replace the file");
    }
}

void ReplaceFile(const fs::path& path, std::string_view content, Flush flush) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }

    struct stat old {};

    if (::stat(path.c_str(), &old) == -1) {
        if (errno != ENOENT) {
            FailedTo("open for writing");
        }
        ReplaceByRename(WithoutLinks(path), nullptr, content, flush);
    } else if (S_ISREG(old.st_mode)) {
        // Renaming over a file asks nothing of the file itself, so a read-only one is refused here.
        if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == -1) {
            FailedTo("open for writing");
        }
        const fs::path target = WithoutLinks(path);
        if (Is(target, old)) {
            ReplaceByRename(target, &old, content, flush);
        } else {
            OverwriteInPlace(path, content, flush);
        }
    } else if (S_ISCHR(old.st_mode) || S_ISBLK(old.st_mode) || S_ISFIFO(old.st_mode)) {
        // Not by what its links say: "/dev/stdout" on a pipe says "pipe:[1234]", which is no name.
        WriteStraight(path, content);
    } else {
        throw FileError("cannot write to what is no file", S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    }
}

} // namespace orvel
