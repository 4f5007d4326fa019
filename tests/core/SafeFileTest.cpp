// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"

#include "tests/core/SafeFileFixture.h"

#include <string>

namespace orvel {
namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::ExpectRunTimeError;
using testing::PutContents;
using testing::TemporaryFolder;

class InFolder {
public:
    explicit InFolder(const fs::path& folder) { fs::current_path(folder); }

    ~InFolder() { fs::current_path(folderBefore); }

    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

private:
    fs::path folderBefore = fs::current_path();
};

using SafeFileTest = Saves;

INSTANTIATE_TEST_SUITE_P(SafeFile, SafeFileTest, kEachFlush, NameOfFlush);

TEST_P(SafeFileTest, CreatesAFile) {
    std::string content(200000, 'x');
    content += '\0';
    Replace(file, content);
    EXPECT_EQ(Contents(file), content);
    Replace(folder / ".hidden", "");
    EXPECT_EQ(Contents(folder / ".hidden"), "");
    EXPECT_EQ(folder.Names(), (Names{".hidden", "file"}));
}

TEST_P(SafeFileTest, ReplacesTheWholeContent) {
    for (const char* name : {"file", ".hidden", ".orvel-old"}) {
        for (const char* content : {"a longer content", "short", "", "again"}) {
            Replace(folder / name, content);
            EXPECT_EQ(Contents(folder / name), content);
        }
    }
    EXPECT_EQ(folder.Names(), (Names{".hidden", ".orvel-old", "file"}));
}

TEST_P(SafeFileTest, WorksInTheCurrentFolder) {
    const InFolder here(folder.Path());
    Replace("file", "one");
    Replace("./file", "two");
    EXPECT_EQ(Contents(file), "two");
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileTest, LeavesNoLitterWhenTheNameCannotBeTaken) {
    const InFolder here(folder.Path());
    ExpectNotReplaced("", ErrorNumber::FileNotFound);
    EXPECT_EQ(folder.Names(), Names{});
}

TEST_P(SafeFileTest, RaisesWhenTheFolderIsMissing) {
    PutContents(file, "old");
    ExpectNotReplaced(folder / "none/file", ErrorNumber::PathNotFound);
    ExpectNotReplaced(folder / "none/", ErrorNumber::PathNotFound);
    ExpectNotReplaced(file / "x", ErrorNumber::PathNotFound);
    ExpectNotReplaced("", ErrorNumber::FileNotFound);
    EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST_P(SafeFileTest, RefusesAFolder) {
    fs::create_directory(folder / "folder");
    for (const fs::path& path : {folder / "folder", folder / "folder/"}) {
        ExpectNotReplaced(path, ErrorNumber::PathFileAccessError);
    }
    EXPECT_TRUE(fs::is_empty(folder / "folder"));
    EXPECT_EQ(folder.Names(), Names{"folder"});
}

TEST(SafeFileReading, GivesTheWholeFileOrItsBeginning) {
    const TemporaryFolder folder;
    std::string content(150000, 'x');
    content[70000] = '\0';
    content.back() = 'y';
    PutContents(folder / "file", content);
    EXPECT_EQ(ReadFile(folder / "file"), content);
    for (const std::size_t most : {0U, 1U, 65536U, 70001U, 149999U, 150000U, 150001U}) {
        EXPECT_EQ(ReadFile(folder / "file", most), content.substr(0, most)) << most;
    }
    PutContents(folder / "empty", "");
    EXPECT_EQ(ReadFile(folder / "empty"), "");
}

TEST(SafeFileReading, NoFileAndAFolderAreErrors) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    const auto expect = [](const fs::path& path, ErrorNumber number) {
        ExpectRunTimeError(number, [&path] { (void)ReadFile(path); });
    };
    expect(folder / "none", ErrorNumber::FileNotFound);
    expect("", ErrorNumber::FileNotFound);
    expect(folder / "none/x", ErrorNumber::PathNotFound);
    expect(folder / "file/x", ErrorNumber::PathNotFound);
    expect(folder.Path(), ErrorNumber::PathFileAccessError);
}

TEST(SafeFileKind, TellsAFileFromNothingAndAFolder) {
    const TemporaryFolder folder;
    PutContents(folder / "file", "x");
    EXPECT_EQ(KindOfFile(folder / "file"), FileKind::Regular);
    for (const fs::path& path : {fs::path(folder / "none"), fs::path(folder / "none/x"),
                                 fs::path(folder / "file/x"), fs::path(folder.Path()), fs::path()}) {
        EXPECT_EQ(KindOfFile(path), FileKind::None) << path;
    }
}

} // namespace
} // namespace orvel
