// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kPermissionBits = 07777;
constexpr mode_t kNewFileBits = 0666;
constexpr int kMostLinks = 40;

[[noreturn]] void Fail(const std::string& step) {
    throw FileError(step, errno);
}

fs::path FolderOf(const fs::path& path) {
    const fs::path folder = path.parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

// The failure of a call that looked for `path`: when the folder is what is missing, the error says so.
[[noreturn]] void FailAt(const fs::path& path, const std::string& step) {
    const int reason = errno;
    std::error_code error;
    if (reason == ENOENT && !fs::is_directory(FolderOf(path), error)) {
        throw FileError(step, reason, ErrorNumber::PathNotFound);
    }
    throw FileError(step, reason);
}

// Calls again for as long as a signal interrupts the call.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

// An open file that is closed at the end of its scope, whatever happened.
class Descriptor {
public:
    explicit Descriptor(int openDescriptor) : descriptor(openDescriptor) {}

    ~Descriptor() {
        if (descriptor != -1) {
            ::close(descriptor);
        }
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int Get() const { return descriptor; }

    [[nodiscard]] bool IsOpen() const { return descriptor != -1; }

    // A close that fails may mean that what was written is lost.
    void CloseChecked() {
        if (::close(std::exchange(descriptor, -1)) == -1 && errno != EINTR) {
            Fail("cannot close");
        }
    }

private:
    int descriptor;
};

Descriptor Open(const fs::path& path, int flags) {
    return Descriptor(Uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC); }));
}

void WriteAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written =
            Uninterrupted([&] { return ::write(descriptor, content.data(), content.size()); });
        if (written == -1) {
            Fail("cannot write");
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
}

void FlushToDisk(int descriptor) {
    if (Uninterrupted([&] { return ::fsync(descriptor); }) == -1) {
        Fail("cannot flush to the disk");
    }
}

std::string ReadFrom(int descriptor, std::size_t most) {
    std::string content;
    std::array<char, 65536> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read fills it
    while (content.size() < most) {
        const std::size_t wanted = std::min(buffer.size(), most - content.size());
        const ssize_t length = Uninterrupted([&] { return ::read(descriptor, buffer.data(), wanted); });
        if (length == -1) {
            Fail("cannot read");
        }
        if (length == 0) {
            break;
        }
        content.append(buffer.data(), static_cast<std::size_t>(length));
    }
    return content;
}

// Follows symbolic links to the name that is to be written, which need not exist yet.
fs::path WithoutLinks(fs::path path) {
    std::error_code error;
    for (int links = 0; fs::is_symlink(path, error); ++links) {
        if (links == kMostLinks) {
            throw FileError("cannot follow the link", ELOOP);
        }
        const fs::path target = fs::read_symlink(path, error);
        path = path.parent_path() / target;
    }
    return path;
}

// Whether the name belongs to that file. "/dev/stdout" on a file that was deleted leads to one without a
// name.
bool Is(const fs::path& name, const struct stat& file) {
    struct stat found {};

    return ::stat(name.c_str(), &found) == 0 && found.st_dev == file.st_dev && found.st_ino == file.st_ino;
}

mode_t PermissionsOfNewFile() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return kNewFileBits & ~mask;
}

// Overwrites an existing file, keeping its old bytes at hand until the new ones are written.
void OverwriteInPlace(const fs::path& path, std::string_view content, Flush flush) {
    const Descriptor file = Open(path, O_RDWR);
    if (!file.IsOpen()) {
        Fail("cannot open for writing");
    }
    const std::string old = ReadFrom(file.Get(), std::numeric_limits<std::size_t>::max());
    const auto write = [&file, flush](std::string_view bytes) {
        if (::lseek(file.Get(), 0, SEEK_SET) == -1) {
            Fail("cannot write");
        }
        WriteAll(file.Get(), bytes);
        if (Uninterrupted([&] { return ::ftruncate(file.Get(), static_cast<off_t>(bytes.size())); }) == -1) {
            Fail("cannot write");
        }
        if (flush == Flush::ToDisk) {
            FlushToDisk(file.Get());
        }
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

// A file that is removed at the end of its scope unless it has taken its final name.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& folder)
        : name((folder / ".orvel-XXXXXX").native()), file(::mkostemp(name.data(), O_CLOEXEC)) {}

    ~TemporaryFile() {
        if (isPresent) {
            ::unlink(name.c_str());
        }
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return file.IsOpen(); }

    Descriptor& File() { return file; }

    // False, with errno set, when the system refuses.
    [[nodiscard]] bool RenameTo(const fs::path& path) {
        isPresent = ::rename(name.c_str(), path.c_str()) == -1;
        return !isPresent;
    }

private:
    std::string name;
    Descriptor file;
    bool isPresent = file.IsOpen();
};

void GiveOwnerAndPermissions(int descriptor, const struct stat* old) {
    if (old != nullptr) {
        // Only root may give a file away. A user who may write another's file becomes its owner and keeps its
        // group as far as the system allows: the content matters more.
        if (::fchown(descriptor, old->st_uid, old->st_gid) == -1) {
            constexpr auto kSameOwner = static_cast<uid_t>(-1);
            [[maybe_unused]] const int ignored = ::fchown(descriptor, kSameOwner, old->st_gid);
        }
    }
    const mode_t bits = old != nullptr ? old->st_mode & kPermissionBits : PermissionsOfNewFile();
    if (::fchmod(descriptor, bits) == -1) {
        Fail("cannot set the permissions");
    }
}

void FlushFolder(const fs::path& folder) {
    const Descriptor descriptor = Open(folder, O_RDONLY | O_DIRECTORY);
    // A folder that may be written but not listed can't be opened, and some file systems can't flush one.
    if (descriptor.IsOpen() && ::fsync(descriptor.Get()) == -1 && errno != EINVAL) {
        Fail("cannot flush the folder to the disk");
    }
}

// The last step; false, with errno set, when the system refuses the name.
bool PutInPlace(TemporaryFile& temporary, const fs::path& path, Flush flush) {
    if (flush == Flush::ToDisk) {
        FlushToDisk(temporary.File().Get());
    }
    temporary.File().CloseChecked();
    if (!temporary.RenameTo(path)) {
        return false;
    }
    if (flush == Flush::ToDisk) {
        FlushFolder(FolderOf(path));
    }
    return true;
}

void ReplaceByRename(const fs::path& path, const struct stat* old, std::string_view content, Flush flush) {
    // The folder, or its sticky bit, may forbid what the file itself allows.
    const auto mayOverwrite = [old] { return old != nullptr && (errno == EACCES || errno == EPERM); };
    TemporaryFile temporary(FolderOf(path));
    if (!temporary.IsOpen()) {
        if (mayOverwrite()) {
            OverwriteInPlace(path, content, flush);
            return;
        }
        FailAt(path, "cannot create a file in the folder");
    }
    WriteAll(temporary.File().Get(), content);
    GiveOwnerAndPermissions(temporary.File().Get(), old);
    if (!PutInPlace(temporary, path, flush)) {
        if (!mayOverwrite()) {
            Fail("cannot replace the file");
        }
        OverwriteInPlace(path, content, flush);
    }
}

void WriteStraight(const fs::path& path, std::string_view content) {
    Descriptor device = Open(path, O_WRONLY);
    if (!device.IsOpen()) {
        Fail("cannot open for writing");
    }
    WriteAll(device.Get(), content);
    device.CloseChecked();
}

} // namespace

std::string ReadFile(const fs::path& path, std::size_t most) {
    const Descriptor file = Open(path, O_RDONLY);
    if (!file.IsOpen()) {
        FailAt(path, "cannot open");
    }
    return ReadFrom(file.Get(), most);
}

void ReplacePrivately(const fs::path& path, std::string_view content) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }
    TemporaryFile temporary(FolderOf(path));
    if (!temporary.IsOpen()) {
        FailAt(path, "cannot create a file in the folder");
    }
    // A temporary file is its owner's alone.
    WriteAll(temporary.File().Get(), content);
    if (!PutInPlace(temporary, path, Flush::ToDisk)) {
        Fail("cannot replace the file");
    }
}

void ReplaceFile(const fs::path& path, std::string_view content, Flush flush) {
    if (path.empty()) {
        throw FileError("cannot open for writing", ENOENT);
    }

    struct stat old {};

    if (::stat(path.c_str(), &old) == -1) {
        if (errno != ENOENT) {
            Fail("cannot open for writing");
        }
        ReplaceByRename(WithoutLinks(path), nullptr, content, flush);
    } else if (S_ISREG(old.st_mode)) {
        // Renaming over a file asks nothing of the file itself, so a read-only one is refused here.
        if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == -1) {
            Fail("cannot open for writing");
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
