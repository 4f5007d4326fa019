// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/posix/TemporaryFile.h"

#include "core/TemporaryNames.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvel {

namespace {

namespace fs = std::filesystem;

bool MayBeOurs(const struct stat& file) {
    const uid_t user = ::geteuid();
    return S_ISREG(file.st_mode) && file.st_nlink == 1 && (user == 0 || file.st_uid == user);
}

void RemoveIfLeftBehind(const fs::path& path) {
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK;
    Descriptor file = Open(path, O_RDONLY | kFlags);
    if (!file.IsOpen() && errno == EACCES) {
        // Of a file that may be written only.
        file = Open(path, O_WRONLY | kFlags);
    }

    struct stat opened {};
    struct stat named {};

    // The name is looked at behind the lock: before that, a save could have ended and another one begun.
    if (file.IsOpen() && ::fstat(file.Get(), &opened) == 0 && MayBeOurs(opened) &&
        ::flock(file.Get(), LOCK_EX | LOCK_NB) == 0 && ::lstat(path.c_str(), &named) == 0 &&
        named.st_dev == opened.st_dev && named.st_ino == opened.st_ino) {
        ::unlink(path.c_str());
    }
}

// Another program that tidies up can come between a file's creation and its lock.
bool IsTakenAway(const Descriptor& file) {
    struct stat status {};
    return (::flock(file.Get(), LOCK_EX | LOCK_NB) == -1 && errno == EWOULDBLOCK) ||
           (::fstat(file.Get(), &status) == 0 && status.st_nlink == 0);
}

} // namespace

TemporaryFile::TemporaryFile(const fs::path& folder, unsigned mode) {
    for (const std::string_view each : kTemporaryNames) {
        const fs::path path = folder / each;
        RemoveIfLeftBehind(path);
        if (!IsOpen() && !Create(path, mode) && errno != EEXIST) {
            return;
        }
    }
    const auto first = static_cast<unsigned>(::getpid());
    for (unsigned i = 0; i < kMostOtherNames && !IsOpen(); ++i) {
        if (!Create(folder / OtherTemporaryName(first + i), mode) && errno != EEXIST) {
            return;
        }
    }
}

TemporaryFile::~TemporaryFile() {
    if (IsOpen()) {
        ::unlink(name.c_str());
    }
}

bool TemporaryFile::IsNameOfOne(const fs::path& path) {
    return std::ranges::find(kTemporaryNames, path.filename().native()) != kTemporaryNames.end();
}

bool TemporaryFile::TakeName(const fs::path& path) {
    // Not the file itself: its lock must last until the name has changed, else it looks like one left behind.
    file.Twin().CloseChecked();
    if (::rename(name.c_str(), path.c_str()) == -1) {
        return false;
    }
    file = Descriptor();
    return true;
}

bool TemporaryFile::Create(const fs::path& path, unsigned mode) {
    Descriptor created = Open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
    if (!created.IsOpen()) {
        return false;
    }
    if (IsTakenAway(created)) {
        errno = EEXIST;
        return false;
    }
    file = std::move(created);
    name = path;
    return true;
}

} // namespace orvel
