// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramDirectory.h"

#include "core/FileNames.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace orvel {

namespace {

class ProgramDirectory : public ::testing::Test {
protected:
    ProgramDirectory() { ::unsetenv("ORVEL_PROGRAM_DIR"); }
    ~ProgramDirectory() override { ::unsetenv("ORVEL_PROGRAM_DIR"); }
};

TEST_F(ProgramDirectory, IsTheFolderOfTheExecutable) {
    EXPECT_EQ(DefaultProgramDirectory(), FolderOfExecutable());
}

TEST_F(ProgramDirectory, IsTheFolderThatTheVariableNamesWhetherItIsThereOrNot) {
    ::setenv("ORVEL_PROGRAM_DIR", "/home/ida/no such folder", 1);
    EXPECT_EQ(DefaultProgramDirectory(), "/home/ida/no such folder");
}

TEST_F(ProgramDirectory, AnEmptyVariableNamesNone) {
    ::setenv("ORVEL_PROGRAM_DIR", "", 1);
    EXPECT_EQ(DefaultProgramDirectory(), FolderOfExecutable());
}

} // namespace

} // namespace orvel
