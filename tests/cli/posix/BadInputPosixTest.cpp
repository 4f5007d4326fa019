// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/BadInput.h"

#include <filesystem>
#include <vector>

namespace orvel::testing {

namespace {

class BadInputOnPosix : public BadInput {};

TEST_F(BadInputOnPosix, NamesWithControlCharactersOrWrongBytesStayOnOneLine) {
    const std::string name = folder / "a\nb\r\t\x1B[31m\x7F\xC2\x9B\xE2\x80\xA8\xFF.cpd";
    ExpectOneLine(RunProgram({"check", name}), 3,
                  (folder / R"(a\nb\r\t\u001b[31m\u007f\u009b\u2028)").string() +
                      "\xEF\xBF\xBD.cpd: cannot open: No such file or directory");
    ExpectOneLine(RunProgram({"check", kPivot, "--program-dir", "no\nfolder\xFF"}), 2,
                  "--program-dir: no such folder: no\\nfolder\xEF\xBF\xBD");
    ExpectOneLine(RunProgram({"report", "a\n.cpd", "b/a\n.cpd", "--output-dir", folder.Path()}), 2,
                  "b/a\\n.cpd: another file would be written to " + folder.Path().string() + "/a\\n.txt too");
}

TEST_F(BadInputOnPosix, AFullDiskBehindStandardOutputIsAnError) {
    const RunResult run = RunProgram(Call{.arguments = {"report", kPivot}, .outputFile = "/dev/full"});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "orvel-cli: standard output: cannot write: No space left on device\n");
}

TEST_F(BadInputOnPosix, HelpAndVersionThatCannotBePrintedAreAnError) {
    for (const char* request : {"--help", "--version"}) {
        const RunResult run = RunProgram(Call{.arguments = {request}, .outputFile = "/dev/full"});
        EXPECT_EQ(run.status, 3) << request;
        EXPECT_EQ(run.err, "orvel-cli: standard output: cannot write: No space left on device\n");
    }
}

TEST_F(BadInputOnPosix, AFileThatCannotGrowLeavesTheOldOneAndNoLitter) {
    PutContents(folder / "old.txt", "old");
    const RunResult run =
        RunProgram(Call{.arguments = {"report", kPivot, "-o", folder / "old.txt"}, .fileSizeLimit = 1000});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "orvel-cli: " + (folder / "old.txt").string() + ": cannot write: File too large\n");
    EXPECT_EQ(Contents(folder / "old.txt"), "old");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"old.txt"});
}

TEST_F(BadInputOnPosix, ADeviceWithoutRoomIsNamedWithTheReason) {
    const RunResult full = RunProgram({"report", kPivot, "-o", "/dev/full"});
    ExpectOneLine(full, 3, "/dev/full: cannot write: No space left on device");
}

TEST_F(BadInputOnPosix, AnOutputNeverOverwritesItsInputBehindALink) {
    const std::string file = Write("a.cpd");
    const std::string before = Contents(file);
    std::filesystem::create_symlink(file, folder / "link");
    const std::string link = folder / "link";
    ExpectOneLine(RunProgram({"dump", file, "-o", link}), 2, link + ": the output would overwrite the input");
    EXPECT_EQ(Contents(file), before);
}

} // namespace

} // namespace orvel::testing
