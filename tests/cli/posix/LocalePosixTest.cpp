// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace orvel::testing {

namespace {

TEST(CommandsOnPosix, ReportFollowsTheLocaleOfItsEnvironment) {
    const TemporaryFolder folder;
    const std::string pivot = Example("pivot-1978.cpd");
    const RunResult compiled = RunProgram({"--version"});
    ASSERT_EQ(compiled.status, 0);
    const std::string localedef = "localedef -i de_DE -f UTF-8 " + (folder / "de_DE.UTF-8").string();
    ASSERT_EQ(std::system(localedef.c_str()), 0);
    const RunResult run =
        RunProgram(Call{.arguments = {"report", pivot, "--now", "2026-07-04 09:05:03"},
                        .environment = {{"LC_ALL", "de_DE.UTF-8"}, {"LOCPATH", folder.Path()}}});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("System Length 1.420\r\n"), std::string::npos);
    EXPECT_NE(run.out.find("Calculated Flow Rate:           871,41 GPM\r\n"), std::string::npos);
}

} // namespace

} // namespace orvel::testing
