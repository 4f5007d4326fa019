// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"

#include "tests/support/LogicTest.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TestFiles.h"

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::PutContents;
using testing::TemporaryFolder;

class FileNamesOnPosix : public testing::LogicTest {};

TEST_F(FileNamesOnPosix, KnowsWhatIsBehindALink) {
    const TemporaryFolder folder;
    PutContents(folder / "Test one.cpd", "");
    fs::create_symlink("Test one.cpd", folder / "link");
    fs::create_symlink("nothing", folder / "dangling");
    fs::create_symlink("loop", folder / "loop");
    fs::create_directory_symlink(".", folder / "folder link");
    EXPECT_TRUE(FileExists(folder / "link"));
    for (const char* name : {"test one.cpd", "dangling", "loop", "folder link"}) {
        EXPECT_FALSE(FileExists(folder / name)) << name;
    }
}

TEST_F(FileNamesOnPosix, SeesNoFileInAFolderThatMayNotBeEntered) {
    const TemporaryFolder folder;
    PutContents(folder / "a.cpd", "x");
    const testing::AsOrdinaryUser user(folder.Path());
    EXPECT_TRUE(FileExists(folder / "a.cpd"));
    fs::permissions(folder.Path(), fs::perms::none);
    EXPECT_FALSE(FileExists(folder / "a.cpd"));
}

TEST_F(FileNamesOnPosix, FindsAFileWhateverTheCaseOfItsLetters) {
    const testing::TemporaryFolder folder;
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), "");
    EXPECT_EQ(FindFile(folder / "none", "help.rtf"), "");
    EXPECT_EQ(FindFile("", "help.rtf"), "");

    std::filesystem::create_directory(folder / "HELP.RTF");
    testing::PutContents(folder / "help.rtf.txt", "");
    testing::PutContents(folder / "xhelp.rtf", "");
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), "") << "a folder is no file";

    testing::PutContents(folder / "hElp.rtf", "");
    testing::PutContents(folder / "Help.RTF", "");
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), folder / "Help.RTF") << "the first by name";
    testing::PutContents(folder / "help.rtf", "");
    EXPECT_EQ(FindFile(folder.Path(), "help.rtf"), folder / "help.rtf") << "the very name";
}

TEST_F(FileNamesOnPosix, AWildcardMayBePartOfAName) {
    const TemporaryFolder folder;
    PutContents(folder / "*.cpd", "x");
    EXPECT_TRUE(FileExists(folder / "*.cpd"));
    EXPECT_FALSE(FileExists(folder / "?.cpd"));
}

TEST_F(FileNamesOnPosix, ABackslashIsPartOfAName) {
    EXPECT_EQ(FileNameText(R"(C:\tests\a.cpd)"), R"(C:\tests\a.cpd)");
}

} // namespace

} // namespace orvel
