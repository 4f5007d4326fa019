// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramDirectory.h"

#include "core/FileNames.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

class ProgramDirectory : public ::testing::Test {
protected:
    ProgramDirectory() { SetVariable(""); }
    ~ProgramDirectory() override { SetVariable(""); }

    static void SetVariable(const char* folder) { testing::SetInEnvironment("ORVEL_PROGRAM_DIR", folder); }
};

TEST_F(ProgramDirectory, IsTheFolderOfTheExecutableWhereTheVariableIsEmpty) {
    EXPECT_EQ(DefaultProgramDirectory(), FolderOfExecutable());
}

TEST_F(ProgramDirectory, IsTheFolderThatTheVariableNamesWhetherItIsThereOrNot) {
    SetVariable("/home/ida/no such folder");
    EXPECT_EQ(DefaultProgramDirectory(), "/home/ida/no such folder");
}

} // namespace

} // namespace orvel
