// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/Program.h"

#include "tests/support/TestFiles.h"

namespace orvel::testing {

RunResult RunProgram(const std::vector<std::string>& arguments) {
    return RunProgram(Call{.arguments = arguments});
}

void ExpectBuildOfDumpGivesTheSameBytes(const std::filesystem::path& testFile) {
    const TemporaryFolder folder;
    const std::string extension = testFile.extension().string();
    std::string bytes = Contents(testFile);
    for (std::size_t i = 0; i < bytes.size(); i += 7) {
        bytes[i] = static_cast<char>(i * i);
    }
    PutContents(folder / ("wild" + extension), bytes);
    const RunResult dump = RunProgram({"dump", folder / ("wild" + extension)});
    ASSERT_EQ(dump.status, 0);
    const RunResult build = RunProgram(
        Call{.arguments = {"build", "-", "-o", folder / ("again" + extension)}, .input = dump.out});
    EXPECT_EQ(build.status, 0) << build.err;
    EXPECT_EQ(Contents(folder / ("again" + extension)), bytes);
}

} // namespace orvel::testing
