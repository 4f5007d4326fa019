// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"

#include "core/RunTimeError.h"
#include "tests/core/ReadFailures.h"
#include "tests/core/SafeFileFixture.h"
#include "tests/support/OrdinaryUser.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <initializer_list>
#include <string>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using testing::AsOrdinaryUser;
using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

constexpr mode_t kPermissionBits = 07777;
constexpr rlim_t kMostBytes = 4096;

// For its lifetime no file of this process grows beyond kMostBytes: writing more fails as on a full disk.
class FullDisk {
public:
    FullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &limitBefore);
        const struct rlimit limit { kMostBytes, limitBefore.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &limitBefore);
        // NOLINTNEXTLINE(cert-err33-c): it was valid before
        std::signal(SIGXFSZ, handlerBefore);
    }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handlerBefore)(int) = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit limitBefore {};
};

class WithMask {
public:
    explicit WithMask(mode_t mask) : maskBefore(::umask(mask)) {}

    ~WithMask() { ::umask(maskBefore); }

    WithMask(const WithMask&) = delete;
    WithMask& operator=(const WithMask&) = delete;

private:
    mode_t maskBefore;
};

struct stat StatusOf(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

mode_t BitsOf(const fs::path& path) {
    return StatusOf(path).st_mode & kPermissionBits;
}

// Writes so much that FullDisk stops it on the way.
void ReplaceByTooMuch(const fs::path& path, Flush flush) {
    const FullDisk full;
    ReplaceFile(path, std::string(3 * kMostBytes, 'n'), flush);
}

using SafeFileOnPosix = Saves;

INSTANTIATE_TEST_SUITE_P(SafeFile, SafeFileOnPosix, kEachFlush, NameOfFlush);

TEST_P(SafeFileOnPosix, LeavesTheOldFileToWhoeverHasItOpen) {
    PutContents(file, "old");
    const int old = ::open(file.c_str(), O_RDONLY);
    Replace(file, "new");
    std::array<char, 8> buffer{};
    EXPECT_EQ(::read(old, buffer.data(), buffer.size()), 3);
    ::close(old);
    EXPECT_STREQ(buffer.data(), "old");
    EXPECT_EQ(Contents(file), "new");
}

TEST_P(SafeFileOnPosix, WritesBesideTheFileAndThenTakesItsName) {
    PutContents(file, "old");
    const int watch = ::inotify_init1(IN_NONBLOCK);
    ::inotify_add_watch(watch, folder.Path().c_str(), IN_CREATE | IN_MODIFY | IN_DELETE | IN_MOVE);
    Replace(file, "new");
    std::array<char, 4096> buffer{};
    const ssize_t length = ::read(watch, buffer.data(), buffer.size());
    ::close(watch);
    std::vector<std::pair<std::uint32_t, std::string>> events;
    for (std::size_t at = 0; at < static_cast<std::size_t>(std::max<ssize_t>(length, 0));) {
        inotify_event event{};
        std::memcpy(&event, &buffer[at], sizeof event);
        events.emplace_back(event.mask, &buffer[at + sizeof event]);
        at += sizeof event + event.len;
    }
    ASSERT_EQ(events.size(), 4U);
    const std::string temporary = events[0].second;
    EXPECT_EQ(temporary.substr(0, 7), ".orvel-");
    EXPECT_EQ(temporary.size(), 13U);
    const std::vector<std::pair<std::uint32_t, std::string>> expected = {
        {IN_CREATE, temporary}, {IN_MODIFY, temporary}, {IN_MOVED_FROM, temporary}, {IN_MOVED_TO, "file"}};
    EXPECT_EQ(events, expected);
}

TEST_P(SafeFileOnPosix, KeepsThePermissions) {
    for (const mode_t bits : {0600U, 0640U, 0755U, 0666U, 0200U, 04755U, 02751U}) {
        PutContents(file, "old");
        ASSERT_EQ(::chmod(file.c_str(), bits), 0);
        const WithMask mask(077);
        Replace(file, "new");
        EXPECT_EQ(BitsOf(file), bits);
        fs::remove(file);
    }
}

TEST_P(SafeFileOnPosix, KeepsOwnerAndGroupWhereItMay) {
    PutContents(file, "old");
    // Root may give the file away; anyone else is its owner and stays it.
    (void)!::chown(file.c_str(), 4241, 4242);
    const struct stat before = StatusOf(file);
    Replace(file, "new");
    EXPECT_EQ(StatusOf(file).st_uid, before.st_uid);
    EXPECT_EQ(StatusOf(file).st_gid, before.st_gid);
    EXPECT_EQ(Contents(file), "new");
}

TEST_P(SafeFileOnPosix, KeepsTheGroupOfAFileThatAGroupShares) {
    constexpr gid_t kGroup = 4242;
    PutContents(file, "old");
    fs::permissions(folder.Path(), fs::perms::all);
    (void)!::chown(file.c_str(), ::getuid(), kGroup);
    ASSERT_EQ(::chmod(file.c_str(), 0664), 0);
    std::vector<gid_t> groups(static_cast<std::size_t>(::getgroups(0, nullptr)));
    ASSERT_NE(::getgroups(static_cast<int>(groups.size()), groups.data()), -1);
    (void)!::setgroups(1, &kGroup);
    const gid_t before = StatusOf(file).st_gid;
    {
        const TemporaryFolder own;
        const AsOrdinaryUser user(own.Path());
        Replace(file, "new");
    }
    (void)!::setgroups(groups.size(), groups.data());
    EXPECT_EQ(Contents(file), "new");
    EXPECT_EQ(BitsOf(file), 0664U);
    EXPECT_EQ(StatusOf(file).st_gid, before) << "the group must keep its access";
}

TEST_P(SafeFileOnPosix, GivesANewFileWhatTheMaskLeaves) {
    for (const mode_t mask : {0U, 022U, 027U, 077U}) {
        const WithMask withMask(mask);
        Replace(file, "new");
        EXPECT_EQ(BitsOf(file), 0666U & ~mask);
        fs::remove(file);
        EXPECT_EQ(::umask(mask), mask) << "the mask itself stays";
    }
}

TEST_P(SafeFileOnPosix, ReplacesTheTargetOfALink) {
    fs::create_directory(folder / "sub");
    PutContents(folder / "sub/target", "old");
    ASSERT_EQ(::chmod((folder / "sub/target").c_str(), 0640), 0);
    fs::create_symlink("sub/target", folder / "relative");
    fs::create_symlink(folder / "sub/target", folder / "absolute");
    fs::create_symlink("../relative", folder / "sub/chain");
    fs::create_directory_symlink("sub", folder / "alias");
    fs::create_symlink("../alias/target", folder / "sub/up");
    for (const char* name :
         {"relative", "absolute", "sub/chain", "alias/chain", "alias/up", "alias/target"}) {
        Replace(folder / name, name);
        EXPECT_EQ(Contents(folder / "sub/target"), name);
        EXPECT_EQ(fs::is_symlink(folder / name), std::string_view(name) != "alias/target") << name;
    }
    EXPECT_EQ(BitsOf(folder / "sub/target"), 0640U);
    EXPECT_EQ(fs::read_symlink(folder / "relative"), "sub/target");
    EXPECT_EQ(folder.Names(), (Names{"absolute", "alias", "relative", "sub"}));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "sub"), {}), 3);
}

TEST_P(SafeFileOnPosix, CreatesTheTargetOfADanglingLink) {
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/target", folder / "link");
    Replace(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Contents(folder / "sub/target"), "new");
    fs::create_symlink("none/target", folder / "lost");
    ExpectNotReplaced(folder / "lost", ErrorNumber::PathNotFound);
    EXPECT_TRUE(fs::is_symlink(folder / "lost"));
    EXPECT_EQ(folder.Names(), (Names{"link", "lost", "sub"}));
}

TEST_P(SafeFileOnPosix, RefusesALoopOfLinks) {
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    fs::create_symlink("self", folder / "self");
    for (const char* name : {"a", "b", "self"}) {
        ExpectNotReplaced(folder / name, ErrorNumber::PathFileAccessError);
        EXPECT_TRUE(fs::is_symlink(folder / name)) << name;
    }
    EXPECT_EQ(folder.Names(), (Names{"a", "b", "self"}));
}

TEST_P(SafeFileOnPosix, RefusesAReadOnlyFile) {
    PutContents(file, "old");
    fs::create_symlink("file", folder / "link");
    const AsOrdinaryUser user(folder.Path());
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read);
    for (const char* name : {"file", "link"}) {
        ExpectNotReplaced(folder / name, ErrorNumber::PermissionDenied);
        EXPECT_EQ(Contents(file), "old");
        EXPECT_EQ(BitsOf(file), 0440U);
    }
    EXPECT_EQ(folder.Names(), (Names{"file", "link"}));
}

TEST_P(SafeFileOnPosix, OverwritesInPlaceWhereTheFolderLetsNoFileBeCreated) {
    PutContents(file, "old");
    const AsOrdinaryUser user(folder.Path());
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0500), 0);
    const ino_t before = StatusOf(file).st_ino;
    for (const std::string& content : {std::string(70000, 'x'), std::string{"short"}, std::string{}}) {
        Replace(file, content);
        EXPECT_EQ(Contents(file), content);
    }
    EXPECT_EQ(StatusOf(file).st_ino, before);
    EXPECT_EQ(BitsOf(file), 0640U);
    EXPECT_EQ(folder.Names(), Names{"file"});
    ExpectNotReplaced(folder / "another", ErrorNumber::PermissionDenied);
    ASSERT_EQ(::chmod(file.c_str(), 0440), 0);
    ExpectNotReplaced(file, ErrorNumber::PermissionDenied);
    EXPECT_EQ(Contents(file), "");
    EXPECT_EQ(folder.Names(), Names{"file"});
}

// Only root can set the scene: another's file that everybody may write, in a folder whose sticky bit lets
// nobody else replace it.
TEST_P(SafeFileOnPosix, OverwritesInPlaceWhereAStickyFolderForbidsReplacing) {
    PutContents(file, "old");
    const bool isRoot = ::geteuid() == 0;
    ASSERT_EQ(::chmod(file.c_str(), 0666), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 01777), 0);
    const ino_t before = StatusOf(file).st_ino;
    if (isRoot) {
        ASSERT_EQ(::seteuid(65534), 0);
    }
    Replace(file, "new");
    if (isRoot) {
        ASSERT_EQ(::seteuid(0), 0);
        EXPECT_EQ(StatusOf(file).st_ino, before);
    }
    EXPECT_EQ(Contents(file), "new");
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileOnPosix, KeepsTheOldFileWhenTheDiskIsFull) {
    PutContents(file, "old");
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    const struct stat before = StatusOf(file);
    ExpectRunTimeError(ErrorNumber::DiskFull, [&] { ReplaceByTooMuch(file, GetParam()); });
    EXPECT_EQ(Contents(file), "old");
    EXPECT_EQ(StatusOf(file).st_ino, before.st_ino);
    EXPECT_EQ(StatusOf(file).st_mtime, before.st_mtime);
    EXPECT_EQ(BitsOf(file), 0640U);
    ExpectRunTimeError(ErrorNumber::DiskFull, [&] { ReplaceByTooMuch(folder / "new", GetParam()); });
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileOnPosix, PutsTheOldBytesBackWhenOverwritingFails) {
    const std::string half(kMostBytes / 2, 'h');
    const std::string whole(kMostBytes, 'w');
    PutContents(file, "old");
    PutContents(folder / "half", half);
    PutContents(folder / "whole", whole);
    const AsOrdinaryUser user(folder.Path());
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0500), 0);
    for (const char* name : {"file", "half", "whole"}) {
        ExpectRunTimeError(ErrorNumber::DiskFull, [&] { ReplaceByTooMuch(folder / name, GetParam()); });
    }
    EXPECT_EQ(Contents(file), "old");
    EXPECT_EQ(Contents(folder / "half"), half);
    EXPECT_EQ(Contents(folder / "whole"), whole);
    EXPECT_EQ(folder.Names(), (Names{"file", "half", "whole"}));
}

TEST_P(SafeFileOnPosix, WritesADeviceStraight) {
    fs::create_symlink("/dev/full", folder / "full");
    fs::create_symlink("/dev/null", folder / "null");
    // An ordinary user could not do any harm to the devices.
    const AsOrdinaryUser user(folder.Path());
    for (const fs::path& full : std::initializer_list<fs::path>{fs::path("/dev/full"), folder / "full"}) {
        ExpectNotReplaced(full, ErrorNumber::DiskFull);
    }
    for (const fs::path& null : std::initializer_list<fs::path>{fs::path("/dev/null"), folder / "null"}) {
        Replace(null, std::string(100000, 'x'));
        EXPECT_EQ(Contents(null), "");
    }
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(KindOfFile("/dev/null"), FileKind::Other);
    EXPECT_EQ(folder.Names(), (Names{"full", "null"}));
}

TEST_P(SafeFileOnPosix, LinksThatLeadToEachOtherAreRefused) {
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_THROW(Replace(folder / "a", "new"), FileError);
    EXPECT_EQ(folder.Names(), (Names{"a", "b"}));
}

TEST_P(SafeFileOnPosix, WritesAPipeStraight) {
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    const int reader = ::open(file.c_str(), O_RDWR | O_NONBLOCK);
    Replace(file, "through the pipe");
    std::array<char, 64> buffer{};
    EXPECT_EQ(::read(reader, buffer.data(), buffer.size()), 16);
    ::close(reader);
    EXPECT_STREQ(buffer.data(), "through the pipe");
    EXPECT_TRUE(fs::is_fifo(file));
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileOnPosix, WritesAPipeWithoutANameStraight) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    fs::create_symlink("/dev/fd/" + std::to_string(ends[1]), folder / "link");
    const std::string number = std::to_string(ends[1]);
    for (const fs::path& path : std::initializer_list<fs::path>{
             fs::path("/dev/fd/" + number), fs::path("/proc/self/fd/" + number), folder / "link"}) {
        Replace(path, "through the pipe");
        std::array<char, 64> buffer{};
        EXPECT_EQ(::read(ends[0], buffer.data(), buffer.size()), 16);
        EXPECT_STREQ(buffer.data(), "through the pipe");
    }
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_EQ(folder.Names(), Names{"link"});
}

TEST_P(SafeFileOnPosix, OverwritesAFileThatHasLostItsName) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_NE(descriptor, -1);
    fs::remove(file);
    for (const std::string_view content : {"a longer content", "short"}) {
        Replace("/dev/fd/" + std::to_string(descriptor), content);
        std::array<char, 64> buffer{};
        EXPECT_EQ(::pread(descriptor, buffer.data(), buffer.size(), 0), std::ssize(content));
        EXPECT_EQ(buffer.data(), content);
    }
    ::close(descriptor);
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_P(SafeFileOnPosix, RefusesAFolderAndASocket) {
    fs::create_directory(folder / "folder");
    fs::create_directory_symlink("folder", folder / "link");
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(file.string().size(), sizeof address.sun_path);
    file.string().copy(&address.sun_path[0], sizeof address.sun_path - 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bind asks for it
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    for (const fs::path& path :
         std::initializer_list<fs::path>{folder / "folder", folder / "link", folder / "folder/", file}) {
        ExpectNotReplaced(path, ErrorNumber::PathFileAccessError);
    }
    ::close(socket);
    EXPECT_TRUE(fs::is_socket(file));
    EXPECT_TRUE(fs::is_directory(folder / "folder"));
    EXPECT_TRUE(fs::is_empty(folder / "folder"));
    EXPECT_EQ(folder.Names(), (Names{"file", "folder", "link"}));
}

TEST(SafeFileReadingOnPosix, GivesTheBeginningOfADevice) {
    EXPECT_EQ(ReadFile("/dev/zero", 5), std::string(5, '\0'));
}

TEST(SafeFileReadingOnPosix, SaysWhatFailed) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    fs::create_symlink("none", folder / "link");
    const AsOrdinaryUser user(folder.Path());
    fs::permissions(folder / "file", fs::perms::owner_write);
    testing::ExpectReadFailures({
        {folder / "none", 53, "cannot open: No such file or directory"},
        {folder / "link", 53, "cannot open: No such file or directory"},
        {"", 53, "cannot open: No such file or directory"},
        {folder / "none/x", 76, "cannot open: No such file or directory"},
        {folder / "file/x", 76, "cannot open: Not a directory"},
        {folder / "file", 70, "cannot open: Permission denied"},
        {folder.Path(), 75, "cannot read: Is a directory"},
    });
}

} // namespace
} // namespace orvel
