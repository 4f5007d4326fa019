// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RunTimeError.h"
#include "core/SafeFile.h"
#include "core/windows/Handle.h"
#include "core/windows/TemporaryFile.h"
#include "tests/core/ReadFailures.h"
#include "tests/core/SafeFileFixture.h"
#include "tests/core/TemporaryFilesFixture.h"

#include <array>
#include <filesystem>
#include <string>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

using SafeFileOnWindows = Saves;

INSTANTIATE_TEST_SUITE_P(SafeFile, SafeFileOnWindows, kEachFlush, NameOfFlush);

TEST_P(SafeFileOnWindows, RefusesAReadOnlyFile) {
    PutContents(file, "old");
    ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    ExpectNotReplaced(file, ErrorNumber::PermissionDenied);
    EXPECT_EQ(Contents(file), "old");
    EXPECT_NE(::GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_EQ(folder.Names(), Names{"file"});
    ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL), 0);
}

TEST_P(SafeFileOnWindows, KeepsTheOldFileWhileAnotherProgramHasItForItself) {
    PutContents(file, "old");
    {
        const Handle busy = OpenExisting(file, GENERIC_READ, kSharedWithNone);
        ASSERT_TRUE(busy.IsOpen());
        ExpectNotReplaced(file, ErrorNumber::PermissionDenied);
        EXPECT_EQ(folder.Names(), Names{"file"}) << "no litter";
    }
    EXPECT_EQ(Contents(file), "old");
    Replace(file, "new");
    EXPECT_EQ(Contents(file), "new");
}

TEST_P(SafeFileOnWindows, KeepsTheOldFileWhileAnotherProgramReadsIt) {
    PutContents(file, "old");
    const Handle reader = OpenExisting(file, GENERIC_READ, FILE_SHARE_READ);
    ASSERT_TRUE(reader.IsOpen());
    ExpectNotReplaced(file, ErrorNumber::PermissionDenied);
    EXPECT_EQ(ReadFrom(reader), "old");
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileOnWindows, LeavesTheOldFileToWhoeverHasItOpenAndSharesItsName) {
    PutContents(file, "old");
    {
        const Handle reader = OpenExisting(file, GENERIC_READ);
        Replace(file, "new");
        EXPECT_EQ(ReadFrom(reader), "old");
        EXPECT_EQ(Contents(file), "new");
    }
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileOnWindows, TakesNamesByEitherSeparatorAndInAnyCase) {
    const std::wstring path = folder.Path().native();
    Replace(path + LR"(\a.cpd)", "one");
    Replace(folder.Path().generic_wstring() + L"/a.cpd", "two");
    EXPECT_EQ(Contents(folder / "a.cpd"), "two");
    Replace(folder / "A.CPD", "three");
    EXPECT_EQ(Contents(folder / "a.cpd"), "three");
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST_P(SafeFileOnWindows, TakesNamesOutsideTheCodePage) {
    const fs::path water = folder.Path() / L"\u6C34 \u00E9 \U0001F69C.cpd";
    for (const char* content : {"one", "two"}) {
        Replace(water, content);
        EXPECT_EQ(ReadFile(water), content);
    }
    EXPECT_EQ(folder.Names().size(), 1U);
}

TEST_P(SafeFileOnWindows, TakesALongPath) {
    fs::path deep = folder.Path();
    while (deep.native().size() < 400) {
        deep /= std::string(50, 'd');
        ASSERT_NE(::CreateDirectoryW(SystemName(deep).c_str(), nullptr), 0);
    }
    for (const char* content : {"one", "two"}) {
        Replace(deep / "a.cpd", content);
        EXPECT_EQ(ReadFile(deep / "a.cpd"), content);
    }
    EXPECT_EQ(KindOfFile(deep / "a.cpd"), FileKind::Regular);
}

TEST_P(SafeFileOnWindows, WritesADeviceStraight) {
    EXPECT_EQ(KindOfFile("NUL"), FileKind::Other);
    Replace("NUL", std::string(100000, 'x'));
    EXPECT_EQ(ReadFile("NUL"), "");
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_P(SafeFileOnWindows, AWrongNameOrDriveIsAnError) {
    ExpectNotReplaced(folder / "a?b", ErrorNumber::PathFileAccessError);
    ExpectNotReplaced(folder / "none/file", ErrorNumber::PathNotFound);
    ExpectNotReplaced(R"(Q:\none\file)", ErrorNumber::PathNotFound);
    EXPECT_EQ(folder.Names(), Names{});
}

TEST(SafeFileReadingOnWindows, SaysWhatFailed) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    const Handle busy = OpenExisting(folder / "file", GENERIC_READ, kSharedWithNone);
    testing::ExpectReadFailures({
        {folder / "none", 53, "cannot open: No such file or directory"},
        {"", 53, "cannot open: No such file or directory"},
        {folder / "none/x", 76, "cannot open: No such file or directory"},
        {folder / "file/x", 76, "cannot open: No such file or directory"},
        {folder / "file", 70, "cannot open: Permission denied"},
        {folder.Path(), 75, "cannot read: Is a directory"},
    });
}

TEST(SystemErrorOnWindows, HasTheNumberOfItsReason) {
    struct Row {
        DWORD error;
        int number;
    };
    static constexpr std::array kRows = {
        Row{ERROR_FILE_NOT_FOUND, 53},
        Row{ERROR_PATH_NOT_FOUND, 76},
        Row{ERROR_INVALID_DRIVE, 76},
        Row{ERROR_BAD_NETPATH, 76},
        Row{ERROR_ACCESS_DENIED, 70},
        Row{ERROR_SHARING_VIOLATION, 70},
        Row{ERROR_LOCK_VIOLATION, 70},
        Row{ERROR_DISK_FULL, 61},
        Row{ERROR_HANDLE_DISK_FULL, 61},
        Row{ERROR_FILE_TOO_LARGE, 61},
        Row{1295, 61}, // a spent quota
        Row{ERROR_CRC, 57},
        Row{ERROR_IO_DEVICE, 57},
        Row{ERROR_NOT_READY, 57},
        Row{ERROR_WRITE_PROTECT, 75},
        Row{ERROR_INVALID_NAME, 75},
        Row{ERROR_INVALID_FUNCTION, 75},
    };
    for (const Row& row : kRows) {
        try {
            FailedAt("file", "open", row.error);
        } catch (const FileError& error) {
            EXPECT_EQ(error.Number(), row.number) << row.error;
        }
    }
}

using TemporaryFilesOnWindows = TemporaryFiles;

TEST_F(TemporaryFilesOnWindows, EachSaveUnderWayHasOneOfItsOwn) {
    ExpectEachSaveHasOneOfItsOwn<TemporaryFile>(TemporaryFile::Readers::OfFolder);
}

TEST_F(TemporaryFilesOnWindows, OneThatIsOpenStays) {
    PutContents(folder / ".orvel-save-5", "x");
    const Handle busy = OpenExisting(folder / ".orvel-save-5", GENERIC_READ, kSharedWithNone);
    ExpectLeftBySave({".orvel-save-5"});
}

TEST_F(TemporaryFilesOnWindows, OneThatWasTakenAwayBeforeItHadItsNameSaysSo) {
    PutContents(folder / "file", "old");
    for (const auto oldFile : {TemporaryFile::OldFile::KeepsItsPermissions, TemporaryFile::OldFile::Goes}) {
        TemporaryFile temporary(folder.Path(), TemporaryFile::Readers::OfFolder);
        ASSERT_TRUE(temporary.IsOpen());
        ASSERT_FALSE(temporary.TakeName(folder / "none/taken", oldFile));
        EXPECT_TRUE(temporary.IsThere());
        fs::remove(folder / ".orvel-save-1");
        EXPECT_FALSE(temporary.TakeName(folder / "file", oldFile));
        EXPECT_FALSE(temporary.IsThere());
    }
    EXPECT_EQ(Contents(folder / "file"), "old");
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_F(TemporaryFilesOnWindows, TheirNamesAreTheirsInAnyCase) {
    EXPECT_TRUE(TemporaryFile::IsNameOfOne(folder / ".ORVEL-Save-1"));
    EXPECT_FALSE(TemporaryFile::IsNameOfOne(folder / ".orvel-save-9"));
}

TEST_F(TemporaryFilesOnWindows, APrivateFileReplacesWhatWasThere) {
    PutContents(folder / "file", "for everybody");
    ReplacePrivately(folder / "file", "mine");
    EXPECT_EQ(Contents(folder / "file"), "mine");
    ReplacePrivately(folder / "new", "mine too");
    EXPECT_EQ(Contents(folder / "new"), "mine too");
    EXPECT_EQ(folder.Names(), (Names{"file", "new"}));
    ExpectRunTimeError(ErrorNumber::PathNotFound, [this] { ReplacePrivately(folder / "none/x", "y"); });
}

} // namespace
} // namespace orvel
