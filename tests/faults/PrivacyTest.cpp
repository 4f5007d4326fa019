// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"
#include "tests/faults/Tracer.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

// Who can't read a file can't read what is to become it either, at no moment of its saving.
namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr const char* kListOfNewFiles = "system.posix_acl_default";
constexpr auto kNobody = static_cast<unsigned>(ACL_UNDEFINED_ID);
constexpr gid_t kForeignGroup = 4242;

struct Permissions {
    struct stat status {};
    std::string accessList;

    [[nodiscard]] bool Has(mode_t bits) const { return (status.st_mode & bits) == bits; }
};

Permissions PermissionsOf(const fs::path& path) {
    Permissions permissions;
    EXPECT_EQ(::stat(path.c_str(), &permissions.status), 0);
    std::array<char, 1024> list{};
    const ssize_t length = ::getxattr(path.c_str(), kAccessList, list.data(), list.size());
    permissions.accessList.assign(list.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    return permissions;
}

void ExpectNoMoreReaders(const Permissions& actual, const Permissions& old) {
    EXPECT_TRUE(!actual.Has(S_IROTH) || old.Has(S_IROTH));
    const bool isSameGroup = actual.status.st_gid == old.status.st_gid && actual.accessList == old.accessList;
    EXPECT_TRUE(!actual.Has(S_IRGRP) || (isSameGroup ? old.Has(S_IRGRP) : old.Has(S_IROTH)));
}

// For the owner and a user by name; the file's group may do nothing. A namespace knows no other user's
// number.
struct AccessList {
    posix_acl_xattr_header header = {POSIX_ACL_XATTR_VERSION};
    std::array<posix_acl_xattr_entry, 5> entries = {{
        {ACL_USER_OBJ, ACL_READ | ACL_WRITE, kNobody},
        {ACL_USER, ACL_READ | ACL_WRITE, ::geteuid()},
        {ACL_GROUP_OBJ, 0, kNobody},
        {ACL_MASK, ACL_READ | ACL_WRITE, kNobody},
        {ACL_OTHER, 0, kNobody},
    }};
};

class Privacy : public ::testing::Test {
protected:
    void PutOld(mode_t bits) const {
        PutContents(file, "old");
        GiveToOrdinaryUser(folder.Path());
        ASSERT_EQ(::chmod(file.c_str(), bits), 0);
    }

    // Saves and looks at every file there at every step. What the file allows behind it is what it gives.
    Permissions Save(const Permissions& old, mode_t mask = 022) {
        int looks = 0;
        const TracedRun run = RunTraced({.prepare = [mask] { ::umask(mask); },
                                         .act = [this] { ReplaceFile(file, "new", Flush::ToDisk); },
                                         .report = [] { return "saved"; }},
                                        {}, [&] {
                                            for (const auto& entry : fs::directory_iterator(folder.Path())) {
                                                ExpectNoMoreReaders(PermissionsOf(entry), old);
                                                looks += entry.path() == file ? 0 : 1;
                                            }
                                        });
        EXPECT_EQ(run.report, "saved");
        EXPECT_GT(looks, 4) << "of the temporary file";
        Permissions given = PermissionsOf(file);
        // An ordinary user may look into it only then.
        EXPECT_EQ(::chmod(file.c_str(), 0600), 0);
        EXPECT_EQ(Contents(file), "new");
        return given;
    }

    TemporaryFolder folder;
    fs::path file = folder / "file";
};

TEST_F(Privacy, OfAFileThatIsReplaced) {
    for (const mode_t bits : {0600U, 0640U, 0644U, 0604U, 0660U, 0200U}) {
        SCOPED_TRACE(bits);
        PutOld(bits);
        const Permissions old = PermissionsOf(file);
        EXPECT_EQ(Save(old).status.st_mode, old.status.st_mode);
        fs::remove(file);
    }
}

TEST_F(Privacy, OfANewFile) {
    GiveToOrdinaryUser(folder.Path());
    for (const mode_t mask : {077U, 027U, 022U, 0U}) {
        SCOPED_TRACE(mask);
        Permissions allowed;
        allowed.status.st_mode = S_IFREG | (0666U & ~mask);
        allowed.status.st_gid = PermissionsOf(folder.Path()).status.st_gid;
        EXPECT_EQ(Save(allowed, mask).status.st_mode, allowed.status.st_mode);
        fs::remove(file);
    }
}

TEST_F(Privacy, OfANewFileInAFolderThatGivesItsFilesAnAccessList) {
    GiveToOrdinaryUser(folder.Path());
    AccessList list;
    for (const std::uint16_t othersMay : std::array<std::uint16_t, 2>{0, ACL_READ}) {
        SCOPED_TRACE(othersMay);
        list.entries.back().e_perm = othersMay;
        ASSERT_EQ(::setxattr(folder.Path().c_str(), kListOfNewFiles, &list, sizeof list, 0), 0);
        PutContents(file, "as any program makes it");
        GiveToOrdinaryUser(folder.Path());
        const Permissions ofAnyOther = PermissionsOf(file);
        ASSERT_EQ(ofAnyOther.Has(S_IROTH), othersMay == ACL_READ);
        fs::remove(file);
        const Permissions now = Save(ofAnyOther);
        EXPECT_EQ(now.status.st_mode, ofAnyOther.status.st_mode);
        EXPECT_EQ(now.accessList, ofAnyOther.accessList);
        fs::remove(file);
    }
}

// Only root can set the scene; to anybody else the file just stays in a group of its user's.
TEST_F(Privacy, OfAFileWhoseGroupCannotBeKept) {
    for (const mode_t bits : {0640U, 0604U, 0664U, 02660U}) {
        SCOPED_TRACE(bits);
        PutOld(bits);
        (void)!::chown(file.c_str(), static_cast<uid_t>(-1), kForeignGroup);
        ASSERT_EQ(::chmod(file.c_str(), bits), 0);
        const Permissions old = PermissionsOf(file);
        const mode_t now = Save(old).status.st_mode & 07777U;
        if (old.status.st_gid == kForeignGroup) {
            EXPECT_EQ(now, bits == 0664U ? 0644U : 0600U);
        } else {
            EXPECT_EQ(now, bits);
        }
        fs::remove(file);
    }
}

TEST_F(Privacy, OfAFileWithAnAccessList) {
    PutOld(0600);
    const AccessList list;
    ASSERT_EQ(::setxattr(file.c_str(), kAccessList, &list, sizeof list, 0), 0);
    const Permissions old = PermissionsOf(file);
    ASSERT_TRUE(old.Has(0660)) << "of all that the list names";
    const Permissions now = Save(old);
    EXPECT_EQ(now.accessList, old.accessList);
    EXPECT_EQ(now.status.st_mode, old.status.st_mode);
}

TEST_F(Privacy, OfAFileInAFolderThatGivesItsFilesAnAccessList) {
    PutOld(0640);
    const AccessList list;
    ASSERT_EQ(::setxattr(folder.Path().c_str(), kListOfNewFiles, &list, sizeof list, 0), 0);
    const Permissions old = PermissionsOf(file);
    EXPECT_EQ(Save(old).accessList, "");
}

} // namespace

} // namespace orvel::testing
