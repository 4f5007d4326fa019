// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/windows/Handle.h"
#include "tests/cli/Program.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

// What the command line does with Windows' names, streams and folders.
namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

class CommandsOnWindows : public ::testing::Test {
protected:
    CommandsOnWindows() { fs::copy_file(Example("pivot-1978.cpd"), folder / "a.cpd"); }

    [[nodiscard]] std::string Report(const std::string& file) const {
        const RunResult run =
            RunProgram({"report", file, "--now", "2026-07-04 09:05:03", "--program-dir", folder.Path()});
        EXPECT_EQ(run.status, 0) << run.err;
        return run.out;
    }

    TemporaryFolder folder;
};

TEST_F(CommandsOnWindows, FilesAreNamedWithEitherSeparator) {
    const std::string report = Report(folder / "a.cpd");
    EXPECT_FALSE(report.empty());
    EXPECT_EQ(Report(folder.Path().generic_string() + "/a.cpd"), report);
    EXPECT_EQ(Report(folder.Path().string() + "\\A.CPD").size(), report.size());
    // From the root of the drive: a name that is no option.
    const std::string drive = folder.Path().root_name().string();
    const std::string rooted = folder.Path().generic_string().substr(drive.size());
    ASSERT_EQ(rooted.front(), '/');
    EXPECT_EQ(RunProgram({"check", drive + rooted + "/a.cpd"}).status, 0);
    const RunResult missing = RunProgram({"check", "/orvel no such folder/a.cpd"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.err,
              "orvel-cli: /orvel no such folder/a.cpd: cannot open: No such file or directory\n");
}

TEST_F(CommandsOnWindows, ANameOutsideTheCodePageIsReadWrittenAndShown) {
    const std::string water = "\xE6\xB0\xB4 \xC3\xA9 \xF0\x9F\x9A\x9C";
    fs::copy_file(Example("pivot-1978.cpd"), folder.Path() / PathOfSystemText(water + ".cpd"));
    const std::string base = folder.Path().string() + "\\" + water;
    EXPECT_EQ(RunProgram({"report", base + ".cpd", "-o", base + ".txt"}).status, 0);
    EXPECT_TRUE(fs::exists(folder.Path() / PathOfSystemText(water + ".txt")));
    const RunResult missing = RunProgram({"dump", base + ".ssd"});
    EXPECT_EQ(missing.status, 3);
    EXPECT_EQ(missing.err, "orvel-cli: " + base + ".ssd: cannot open: No such file or directory\n");
    const RunResult several = RunProgram({"results", "--json", base + ".cpd", folder / "a.cpd"});
    EXPECT_EQ(several.status, 0);
    EXPECT_NE(several.out.find(water + ".cpd\""), std::string::npos);
}

TEST_F(CommandsOnWindows, LineEndsComeOutAsTheyAre) {
    const std::string report = Report(folder / "a.cpd");
    EXPECT_GT(std::ranges::count(report, '\r'), 10);
    EXPECT_EQ(std::ranges::count(report, '\r'), std::ranges::count(report, '\n'));
    EXPECT_EQ(report.find("\r\r"), std::string::npos);
    const RunResult dump = RunProgram({"dump", folder / "a.cpd"});
    EXPECT_EQ(dump.out.find('\r'), std::string::npos) << "JSON has LF";
}

TEST_F(CommandsOnWindows, LineEndsComeThroughAPipeAsTheyAre) {
    SECURITY_ATTRIBUTES inherited{};
    inherited.nLength = sizeof inherited;
    inherited.bInheritHandle = TRUE;
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    ASSERT_NE(::CreatePipe(&readEnd, &writeEnd, &inherited, 1U << 20U), 0);
    const Handle reader(readEnd);
    Handle writer(writeEnd);
    const fs::path program(ORVEL_CLI);
    std::wstring command = L"orvel-cli report --now \"2026-07-04 09:05:03\" \"" +
                           fs::path(folder / "a.cpd").native() + L"\" --program-dir \"" +
                           folder.Path().native() + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = INVALID_HANDLE_VALUE;
    start.hStdOutput = writer.Get();
    start.hStdError = writer.Get();
    PROCESS_INFORMATION started{};
    ASSERT_NE(::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                               &start, &started),
              0);
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    writer = Handle();
    std::string text;
    std::array<char, 4096> buffer{};
    DWORD length = 0;
    while (::ReadFile(reader.Get(), buffer.data(), buffer.size(), &length, nullptr) != 0 && length > 0) {
        text.append(buffer.data(), length);
    }
    EXPECT_EQ(::WaitForSingleObject(process.Get(), INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(text, Report(folder / "a.cpd"));
    EXPECT_EQ(std::ranges::count(text, '\r'), std::ranges::count(text, '\n'));
    EXPECT_EQ(text.find("\r\r"), std::string::npos);
}

TEST_F(CommandsOnWindows, BytesOfStandardInputComeInAsTheyAre) {
    // 0x1A ends a text for programs that read one.
    const RunResult run = RunProgram(Call{.arguments = {"build", "-", "-o", folder / "b.cpd"},
                                          .input = "{\"ClientName\": \"a\x1A\", \"Dummy\": 1}"});
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(run.err.find("U+001A"), std::string::npos) << run.err;
    EXPECT_EQ(RunProgram(Call{.arguments = {"build", "-", "-o", folder / "b.cpd"},
                              .input = "{\r\n\"FieldComments\": \"a\\r\\nb\"\r\n}"})
                  .status,
              0);
    EXPECT_EQ(ReadTest<CenterPivotTest>(folder / "b.cpd").FieldComments.Trimmed(), "a\r\nb");
}

TEST_F(CommandsOnWindows, SettingsAreThoseOfTheProgramsFolder) {
    const fs::path program = folder.Path() / L"pro \u6C34 gram";
    fs::create_directory(program);
    fs::copy_file(fs::path(ORVEL_CLI), program / "orvel-cli.exe");
    Program().programDirectory = program;
    SaveUserSettings(CompleteUserSettings());
    EXPECT_TRUE(fs::exists(program / "user.usr"));
    const fs::path out = folder / "out.txt";
    std::wstring command = L"orvel-cli report \"" + fs::path(Example("pivot-1978.cpd")).native() +
                           L"\" -o \"" + out.native() + L"\" --now \"2026-07-04 09:05:03\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    ASSERT_NE(::CreateProcessW((program / "orvel-cli.exe").c_str(), command.data(), nullptr, nullptr, FALSE,
                               0, nullptr, nullptr, &start, &started),
              0);
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    EXPECT_EQ(::WaitForSingleObject(process.Get(), INFINITE), WAIT_OBJECT_0);
    EXPECT_TRUE(MatchesGolden(Contents(out), "pivot-1978-report.txt"));
    Program().programDirectory.clear();
}

TEST_F(CommandsOnWindows, FilesThatDifferInCaseAloneWouldShareAnOutput) {
    fs::create_directory(folder / "x");
    fs::create_directory(folder / "out");
    fs::copy_file(folder / "a.cpd", folder / "x/A.CPD");
    const RunResult run =
        RunProgram({"report", folder / "a.cpd", folder / "x/A.CPD", "--output-dir", folder / "out"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("another file would be written to"), std::string::npos) << run.err;
    EXPECT_TRUE(fs::is_empty(folder / "out"));
}

TEST_F(CommandsOnWindows, AnOutputMayBeADevice) {
    const RunResult run = RunProgram({"report", folder / "a.cpd", "-o", "NUL"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
}

TEST_F(CommandsOnWindows, AnOutputThatAnotherProgramHoldsStaysAndIsNamed) {
    PutContents(folder / "out.txt", "old");
    RunResult run;
    {
        const Handle busy = OpenExisting(folder / "out.txt", GENERIC_READ, kSharedWithNone);
        run = RunProgram({"report", folder / "a.cpd", "-o", folder / "out.txt"});
    }
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "orvel-cli: " + (folder / "out.txt").string() +
                           ": cannot replace the file: Permission denied\n");
    EXPECT_EQ(Contents(folder / "out.txt"), "old");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"a.cpd", "out.txt"}));
}

} // namespace

} // namespace orvel::testing
