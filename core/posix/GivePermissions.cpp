// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/posix/GivePermissions.h"

#include "core/posix/Descriptor.h"

#include <cerrno>
#include <string>
#include <sys/xattr.h>
#include <unistd.h>

namespace orvel {

namespace {

constexpr const char* kStep = "set the permissions";
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr mode_t kPermissionBits = 07777;

void SetBits(int file, mode_t bits) {
    if (::fchmod(file, bits) == -1) {
        FailedTo(kStep);
    }
}

void KeepOwnerAndGroup(const struct stat& old, int file) {
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    if (::fchown(file, old.st_uid, old.st_gid) == -1) {
        [[maybe_unused]] const int ignored = ::fchown(file, kSameOwner, old.st_gid);
    }
}

struct stat StatusOf(int file) {
    struct stat status {};

    if (::fstat(file, &status) == -1) {
        FailedTo(kStep);
    }
    return status;
}

// Empty where the file has none, or the file system knows none.
std::string AccessListOf(const std::filesystem::path& path) {
    constexpr std::size_t kLongest = 65536;
    std::string list(kLongest, '\0');
    const ssize_t length = ::getxattr(path.c_str(), kAccessList, list.data(), list.size());
    if (length == -1) {
        if (errno != ENODATA && errno != ENOTSUP) {
            FailedTo(kStep);
        }
        return {};
    }
    list.resize(static_cast<std::size_t>(length));
    return list;
}

// An empty one takes away what the folder has given.
void SetAccessList(int file, const std::string& list) {
    const int result = list.empty() ? ::fremovexattr(file, kAccessList)
                                    : ::fsetxattr(file, kAccessList, list.data(), list.size(), 0);
    if (result == -1 && errno != ENODATA && errno != ENOTSUP) {
        FailedTo(kStep);
    }
}

} // namespace

void GivePermissionsOf(const std::filesystem::path& old, const struct stat& oldStatus, int newFile) {
    KeepOwnerAndGroup(oldStatus, newFile);
    const struct stat status = StatusOf(newFile);
    mode_t bits = oldStatus.st_mode & kPermissionBits;
    if (status.st_uid != oldStatus.st_uid) {
        bits &= ~mode_t{S_ISUID};
    }
    if (status.st_gid == oldStatus.st_gid) {
        SetAccessList(newFile, AccessListOf(old));
    } else {
        // The list speaks of the group that could not be kept.
        SetAccessList(newFile, {});
        const mode_t ofBoth = bits >> 3 & bits & S_IRWXO;
        bits = (bits & (S_ISUID | S_ISVTX | S_IRWXU)) | ofBoth << 3 | ofBoth;
    }
    SetBits(newFile, bits);
}

} // namespace orvel
