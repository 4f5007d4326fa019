// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileIdentity.h"
#include "core/FileNames.h"
#include "core/FilePermissions.h"
#include "core/windows/Handle.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <string>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

class FileNamesOnWindows : public testing::LogicTest {};

TEST_F(FileNamesOnWindows, ANameFollowsTheLastOfEitherSeparator) {
    for (const wchar_t* path : {LR"(C:\tests\a.cpd)", L"C:/tests/a.cpd", LR"(C:/tests\a.cpd)",
                                LR"(C:\tests/a.cpd)", L"C:a.cpd", LR"(\\server\share\a.cpd)", L"a.cpd"}) {
        EXPECT_EQ(FileNameText(path), "a.cpd");
        EXPECT_TRUE(HasExtension(path, "CPD"));
    }
    EXPECT_FALSE(HasExtension(LR"(C:\a.cpd\b)", "cpd"));
}

TEST_F(FileNamesOnWindows, PathsShowInTheCodePageAndWholeInUtf8) {
    EXPECT_EQ(PathText(L"C:\\Pr\u00FCfung \u20AC \u6C34.cpd"), "C:\\Pr\xFC"
                                                               "fung \x80 ?.cpd");
    EXPECT_EQ(PathUtf8(L"\u6C34.cpd"), "\xE6\xB0\xB4.cpd");
    EXPECT_EQ(PathUtf8(std::wstring(1, wchar_t{0xD800})), "\xEF\xBF\xBD") << "half a character";
    EXPECT_EQ(PathUtf8(""), "");
    EXPECT_EQ(PathOfSystemText("\xE6\xB0\xB4.cpd"), fs::path(L"\u6C34.cpd"));
    EXPECT_EQ(PathOfText("Pr\xFC"
                         "fung.cpd"),
              fs::path(L"Pr\u00FCfung.cpd"));
}

TEST_F(FileNamesOnWindows, TheExecutableHasAFolder) {
    const fs::path folder = FolderOfExecutable();
    EXPECT_TRUE(folder.is_absolute()) << folder;
    EXPECT_TRUE(FileExists(folder / "core_record_tests.exe")) << folder;
}

TEST_F(FileNamesOnWindows, ADeviceIsNoFileOfItsOwn) {
    EXPECT_TRUE(IsDevice("NUL"));
    EXPECT_TRUE(IsDevice("nul"));
    EXPECT_TRUE(IsDevice(LR"(\\.\pipe\orvel)"));
    for (const wchar_t* path : {L"a.cpd", L"C:\\NULL.cpd", L"C:/a/b.cpd", LR"(\\.\C:\a.cpd)", L""}) {
        EXPECT_FALSE(IsDevice(path)) << fs::path(path);
    }
    EXPECT_FALSE(IdentityOf("NUL"));
}

TEST_F(FileNamesOnWindows, OneFileIsTheSameInAnyCaseAndByEitherSeparator) {
    const TemporaryFolder folder;
    PutContents(folder / "Test.cpd", "x");
    const auto identity = IdentityOf(folder / "Test.cpd");
    ASSERT_TRUE(identity);
    EXPECT_EQ(IdentityOf(folder / "TEST.CPD"), identity);
    EXPECT_EQ(FullPath(folder / "TEST.CPD"), FullPath(folder / "test.cpd"));
    EXPECT_EQ(FullPath(folder.Path().generic_wstring() + L"/./Test.cpd"), FullPath(folder / "Test.cpd"));
    EXPECT_EQ(FullPath(folder / "none/New.cpd").filename(), "New.cpd") << "of what is not there yet";
    EXPECT_EQ(PathForComparison(L"out/\u00E4.txt"), PathForComparison(L"OUT\\\u00C4.TXT"));
    EXPECT_NE(PathForComparison("a"), PathForComparison("b"));
}

TEST_F(FileNamesOnWindows, ALongPathIsTakenAsAnyOther) {
    const TemporaryFolder folder;
    fs::path deep = folder.Path();
    while (deep.native().size() < 400) {
        deep /= std::string(50, 'd');
        ASSERT_NE(::CreateDirectoryW(SystemName(deep).c_str(), nullptr), 0) << ::GetLastError();
    }
    EXPECT_TRUE(SystemName(deep).starts_with(LR"(\\?\)")) << SystemName(deep).size();
    EXPECT_EQ(SystemName("short"), fs::current_path().native() + LR"(\short)");
    EXPECT_EQ(SystemName(""), L"");
    EXPECT_TRUE(
        SystemName(LR"(\\server\share\)" + std::wstring(300, L'x')).starts_with(LR"(\\?\UNC\server\)"));
    EXPECT_TRUE(FolderExists(deep));
    EXPECT_FALSE(FileExists(deep));
    EXPECT_FALSE(FileExists(deep / "a.cpd"));
    EXPECT_TRUE(IdentityOf(deep));
}

TEST_F(FileNamesOnWindows, AFileThatMayBeReadIsNotClosed) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    EXPECT_FALSE(IsClosedToUser(folder / "file"));
    EXPECT_FALSE(IsClosedToUser(folder / "none"));
    EXPECT_FALSE(IsClosedToUser(""));
}

} // namespace
} // namespace orvel
