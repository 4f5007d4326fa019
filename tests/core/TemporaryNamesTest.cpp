// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/TemporaryNames.h"

#include "core/RunTimeError.h"
#include "tests/core/TemporaryFilesFixture.h"
#include "tests/support/LogicTest.h"

#include <filesystem>

namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::ExpectRunTimeError;
using testing::PutContents;

TEST_F(TemporaryFiles, WhatAKilledProgramLeftIsRemovedByTheNextSave) {
    for (const char* name : {".orvel-save-1", ".orvel-save-2", ".orvel-save-5", ".orvel-save-8"}) {
        PutContents(folder / name, "half of a tes");
    }
    ExpectLeftBySave({});
}

TEST_F(TemporaryFiles, AFolderAFileOfTwoNamesAndOtherNamesStay) {
    fs::create_directory(folder / ".orvel-save-1");
    PutContents(folder / ".orvel-save-3", "x");
    fs::create_hard_link(folder / ".orvel-save-3", folder / "second name");
    PutContents(folder / ".orvel-save-9", "x");
    PutContents(folder / ".orvel-save-10", "x");
    PutContents(folder / ".orvel-abcdef", "x");
    ExpectLeftBySave(folder.Names());
}

TEST_F(TemporaryFiles, ASaveFindsANameWhereAllEightAreTaken) {
    for (const std::string_view name : kTemporaryNames) {
        fs::create_directory(folder / std::string(name));
    }
    ExpectLeftBySave(folder.Names());
}

TEST_F(TemporaryFiles, NoFileIsSavedUnderOneOfTheirNames) {
    for (const std::string_view name : kTemporaryNames) {
        ExpectRunTimeError(ErrorNumber::PathFileAccessError,
                           [&] { ReplaceFile(folder / std::string(name), "new", Flush::Lazy); });
    }
    EXPECT_EQ(folder.Names(), Names{});
}

TEST(TemporaryNames, OtherNamesHaveSixDigits) {
    EXPECT_EQ(OtherTemporaryName(0), ".orvel-000000");
    EXPECT_EQ(OtherTemporaryName(0x12ABCDEF), ".orvel-abcdef");
}

} // namespace

} // namespace orvel
