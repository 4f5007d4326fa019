// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <string>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

class FileNamesTest : public testing::LogicTest {};

TEST_F(FileNamesTest, KnowsWhichFilesExist) {
    const TemporaryFolder folder;
    PutContents(folder / "Test one.cpd", "");
    PutContents(folder / ".hidden", "x");
    for (const char* name : {"Test one.cpd", ".hidden"}) {
        EXPECT_TRUE(FileExists(folder / name)) << name;
        EXPECT_FALSE(FolderExists(folder / name)) << name;
    }
    for (const char* name : {"nothing", "none/x", ".hidden/x"}) {
        EXPECT_FALSE(FileExists(folder / name)) << name;
        EXPECT_FALSE(FolderExists(folder / name)) << name;
    }
    EXPECT_TRUE(FolderExists(folder.Path()));
    EXPECT_FALSE(FolderExists(""));
}

TEST_F(FileNamesTest, FindsAFileInAnotherCase) {
    const TemporaryFolder folder;
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), "");
    EXPECT_EQ(FindFile(folder / "none", "help.rtf"), "");
    EXPECT_EQ(FindFile("", "help.rtf"), "");
    PutContents(folder / "help.rtf.txt", "");
    PutContents(folder / "xhelp.rtf", "");
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), "");
    PutContents(folder / "HELP.Rtf", "found");
    EXPECT_EQ(testing::Contents(FindFile(folder.Path(), "help.rtf")), "found");
}

TEST_F(FileNamesTest, CountsNeitherAFolderNorAnEmptyPathAsAFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(FileExists(folder.Path()));
    EXPECT_FALSE(FileExists(folder.Path() / ""));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists("."));
}

TEST_F(FileNamesTest, TakesWildcardsLiterally) {
    const TemporaryFolder folder;
    PutContents(folder / "a.cpd", "x");
    for (const char* name : {"*", "*.cpd", "?.cpd", "[a].cpd"}) {
        EXPECT_FALSE(FileExists(folder / name)) << name;
    }
}

TEST_F(FileNamesTest, NamesAFileWithoutItsFolder) {
    struct Case {
        const char* path;
        const char* name;
    };

    constexpr std::array<Case, 7> kCases = {{
        {"/home/tester/North field.cpd", "North field.cpd"},
        {"North field.cpd", "North field.cpd"},
        {"../a/b.c.ssd", "b.c.ssd"},
        {"/a/.hidden", ".hidden"},
        {"/a/ b ", " b "},
        {"/a/", ""},
        {"", ""},
    }};
    for (const Case& one : kCases) {
        EXPECT_EQ(FileNameText(one.path), one.name) << one.path;
    }
}

TEST_F(FileNamesTest, ShowsNamesInTheCodePage) {
    const auto name = [](const char* path) { return FileNameText(PathOfSystemText(path)); };
    const auto whole = [](const char* path) { return PathText(PathOfSystemText(path)); };
    EXPECT_EQ(name("/h\xC3\xB6"
                   "fe/Pr\xC3\xBC"
                   "fung \xE2\x82\xAC.cpd"),
              "Pr\xFC"
              "fung \x80.cpd");
    EXPECT_EQ(whole("/h\xC3\xB6"
                    "fe/a.cpd"),
              "/h\xF6"
              "fe/a.cpd");
    // What the page lacks.
    EXPECT_EQ(name("/a/\xE6\xB0\xB4.cpd"), "?.cpd");
    EXPECT_EQ(whole("/\xE6\xB0\xB4/a.cpd"), "/?/a.cpd");
    EXPECT_EQ(whole(""), "");
    EXPECT_EQ(PathUtf8(PathOfSystemText("/\xE6\xB0\xB4/a.cpd")), "/\xE6\xB0\xB4/a.cpd");
}

TEST_F(FileNamesTest, MatchesExtensionsInAnyCase) {
    for (const char* path : {"a.cpd", "A.CPD", "/x/y.z/Test 1.CpD", "a.ssd.cpd", "a..cpd", ".cpd"}) {
        EXPECT_TRUE(HasExtension(path, "cpd")) << path;
        EXPECT_TRUE(HasExtension(path, "CPD")) << path;
    }
    for (const char* path : {"a.ssd", "acpd", "a.cpd2", "a.cp", "a.cpd ", "a.cpd.txt", "a.", "a", "",
                             "/x.cpd/a", "/x.cpd/", "cpd"}) {
        EXPECT_FALSE(HasExtension(path, "cpd")) << path;
    }
}

} // namespace
} // namespace orvel
