// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Options.h"

#include "core/FileNames.h"
#include "core/Version.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::ui {

namespace {

struct Call {
    std::optional<Options> options;
    int status = -1;
    std::string out;
    std::string err;
};

Call CallWith(const std::vector<const char*>& arguments) {
    Call call;
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    call.options = ReadOptions({arguments.begin(), arguments.end()}, call.status);
    call.out = ::testing::internal::GetCapturedStdout();
    call.err = ::testing::internal::GetCapturedStderr();
    return call;
}

TEST(ProgramOptions, NothingNeedsToBeGiven) {
    const Call call = CallWith({});
    ASSERT_TRUE(call.options);
    EXPECT_FALSE(call.options->file);
    EXPECT_EQ(call.options->programDirectory, FolderOfExecutable());
}

TEST(ProgramOptions, TakesAFileAndAProgramDirectory) {
    const testing::TemporaryFolder folder;
    const Call call = CallWith({"a b.cpd", "--program-dir", folder.Path().c_str()});
    ASSERT_TRUE(call.options);
    EXPECT_EQ(call.options->file, std::filesystem::current_path() / "a b.cpd");
    EXPECT_EQ(call.options->programDirectory, folder.Path());
    EXPECT_EQ(CallWith({"--", "-a.ssd"}).options->file, std::filesystem::current_path() / "-a.ssd");
    EXPECT_EQ(CallWith({"--program-dir", "."}).options->programDirectory, std::filesystem::current_path());
    EXPECT_EQ(CallWith({"--program-dir", "/"}).options->programDirectory, "/");
}

TEST(ProgramOptions, HelpAndVersionArePrintedAndNothingStarts) {
    const Call version = CallWith({"--version"});
    EXPECT_FALSE(version.options);
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, std::string("orvel ") + ProgramVersion() + "\n");
    const Call help = CallWith({"--help"});
    EXPECT_FALSE(help.options);
    EXPECT_EQ(help.status, 0);
    for (const char* part : {"[FILE]", "--program-dir FOLDER ", "--version", "--help"}) {
        EXPECT_NE(help.out.find(part), std::string::npos) << help.out;
    }
}

TEST(ProgramOptions, AnEmptyFileNameIsAWrongCall) {
    EXPECT_EQ(CallWith({""}).err, "orvel: FILE: must not be empty\n");
}

TEST(ProgramOptions, AWrongCallIsOneLine) {
    for (const auto& arguments : std::vector<std::vector<const char*>>{{"--colour"},
                                                                       {"a.cpd", "b.cpd"},
                                                                       {"--program-dir", "/no/such/folder"},
                                                                       {""},
                                                                       {"--program-dir"}}) {
        const Call call = CallWith(arguments);
        EXPECT_FALSE(call.options);
        EXPECT_EQ(call.status, 2);
        EXPECT_TRUE(call.err.starts_with("orvel: ")) << call.err;
        EXPECT_EQ(call.err.find('\n'), call.err.size() - 1) << call.err;
    }
}

} // namespace

} // namespace orvel::ui
