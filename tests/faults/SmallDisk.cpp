// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/faults/SmallDisk.h"

#include "tests/support/TestFiles.h"

#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <system_error>
#include <unistd.h>

namespace orvel::testing {

namespace {

void Check(int result, const char* what) {
    if (result == -1) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

// What is mounted from here on concerns nobody else.
void HaveOwnMounts() {
    static bool hasOwn = false;
    if (hasOwn) {
        return;
    }
    if (::geteuid() == 0) {
        Check(::unshare(CLONE_NEWNS), "unshare");
    } else {
        const std::string user = std::to_string(::geteuid());
        const std::string group = std::to_string(::getegid());
        Check(::unshare(CLONE_NEWUSER | CLONE_NEWNS), "unshare");
        PutContents("/proc/self/setgroups", "deny");
        PutContents("/proc/self/uid_map", user + " " + user + " 1");
        PutContents("/proc/self/gid_map", group + " " + group + " 1");
    }
    Check(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "mount");
    hasOwn = true;
}

} // namespace

SmallDisk::SmallDisk(const std::filesystem::path& inFolder) : folder(inFolder) {
    HaveOwnMounts();
    Check(::mount("none", folder.c_str(), "tmpfs", 0, "size=1m"), "mount");
}

SmallDisk::~SmallDisk() {
    ::umount2(folder.c_str(), MNT_DETACH);
}

void SmallDisk::LeaveFree(std::size_t blocks) const {
    struct statvfs status {};

    Check(::statvfs(folder.c_str(), &status), "statvfs");
    const int filler = ::open((folder / kFiller).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    Check(filler, "open");
    const int result =
        ::posix_fallocate(filler, 0, static_cast<off_t>((status.f_bavail - blocks) * status.f_bsize));
    ::close(filler);
    if (result != 0) {
        throw std::system_error(result, std::generic_category(), "posix_fallocate");
    }
}

} // namespace orvel::testing
