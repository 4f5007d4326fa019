// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/SafeFile.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// A call that makes no sense gets one line that says why, status 2, and nothing is done.
namespace orvel::testing {

namespace {

const std::string kPivot = Example("pivot-1978.cpd");

using Arguments = std::vector<std::string>;

struct Case {
    Arguments arguments;
    std::string complaint;
};

void ExpectComplaints(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        const RunResult run = RunProgram(each.arguments);
        EXPECT_EQ(run.status, 2) << each.complaint;
        EXPECT_EQ(run.out, "") << each.complaint;
        EXPECT_EQ(run.err, "orvel-cli: " + each.complaint + "\n");
    }
}

TEST(WrongCalls, ACommandThatIsMissingOrUnknownIsNamed) {
    ExpectComplaints({
        {{}, "a command is missing; --help lists them"},
        {{"explain"}, "unknown command: explain"},
        {{"explain", kPivot, "--json"}, "unknown command: explain"},
        {{"Results", kPivot}, "unknown command: Results"},
        {{"--colour"}, "unknown option before the command: --colour"},
        {{"--json", "results", kPivot}, "unknown option before the command: --json"},
    });
}

TEST(WrongCalls, AnUnknownOptionIsNamed) {
    ExpectComplaints({
        {{"results", kPivot, "--colour"}, "unknown option for results: --colour"},
        {{"results", "--colour"}, "unknown option for results: --colour"},
        {{"dump", kPivot, "--json"}, "unknown option for dump: --json"},
        {{"results", "-x", kPivot}, "unknown option for results: -x"},
        {{"text", "help.rtf", "--kind", "solidSet"}, "unknown option for text: --kind"},
    });
}

TEST(WrongCalls, WhatIsMissingIsNamed) {
    for (const char* command : {"results", "check", "report", "export", "listing", "dump", "text"}) {
        ExpectComplaints({{{command}, "FILE is required"}});
    }
    ExpectComplaints({
        {{"build"}, "JSON is required"},
        {{"build", "-"}, "--output is required"},
        {{"results", kPivot, "--kind"}, "--kind needs a value"},
        {{"report", kPivot, "--now"}, "--now needs a value"},
        {{"build", "-", "-o"}, "--output needs a value"},
    });
}

TEST(WrongCalls, WhatIsTooMuchIsNamed) {
    for (const std::string command : {"check", "listing", "dump", "text"}) {
        ExpectComplaints({{{command, kPivot, kPivot}, command + " takes only one FILE"}});
    }
    ExpectComplaints({
        {{"build", "a", "b", "-o", "x.cpd"}, "build takes only one JSON"},
        {{"results", kPivot, "-o", "a", "-o", "b"}, "--output is given more than once"},
        {{"results", kPivot, "--kind", "solidSet", "--kind", "solidSet"}, "--kind is given more than once"},
        {{"results", kPivot, "--json=maybe"}, "--json takes no value"},
        {{"report", kPivot, kPivot}, "several files need --output-dir"},
        {{"report", kPivot, "--json", "--format", "text"}, "--json excludes --format"},
        {{"report", kPivot, "--output-dir", "/", "-o", "x"}, "--output excludes --output-dir"},
    });
}

TEST(WrongCalls, AValueThatIsNoneIsNamedWithWhatItMustBe) {
    const std::string noKind = "--kind: must be centerPivot or solidSet";
    const std::string noFormat = "--format: must be text, rtf or html";
    const std::string noTime = "--now: must be a date and time, YYYY-MM-DD HH:MM:SS";
    ExpectComplaints({
        {{"results", kPivot, "--kind", "CenterPivot"}, noKind},
        {{"results", kPivot, "--kind", ""}, noKind},
        {{"report", kPivot, "--format", "pdf"}, noFormat},
        {{"report", kPivot, "--format", ""}, noFormat},
        {{"report", kPivot, "--now", "yesterday"}, noTime},
        {{"report", kPivot, "--now", "0000-01-01 00:00:00"}, noTime},
        {{"build", "-", "-o", "x.cpd", "--now", "yesterday"}, noTime},
        {{"report", kPivot, "--output-dir", "missing"}, "--output-dir: no such folder: missing"},
        {{"report", kPivot, "--output-dir", kPivot}, "--output-dir: no such folder: " + kPivot},
        {{"report", kPivot, "--program-dir", "missing"}, "--program-dir: no such folder: missing"},
        {{"build", "-", "-o", "x.cpd", "--program-dir", "missing"}, "--program-dir: no such folder: missing"},
        {{"results", "a.txt"}, "a.txt: neither .cpd nor .ssd; --kind says which kind of test it is"},
    });
}

TEST(WrongCalls, AnEmptyNameIsNamedByItsOption) {
    for (const char* command : {"results", "check", "report", "export", "listing", "dump", "text"}) {
        ExpectComplaints({
            {{command, ""}, "FILE: must not be empty"},
            {{command, kPivot, "-o", ""}, "--output: must not be empty"},
            {{command, kPivot, "--output", ""}, "--output: must not be empty"},
            {{command, kPivot, "--program-dir", ""}, "--program-dir: must not be empty"},
        });
    }
    ExpectComplaints({
        {{"report", kPivot, "--output-dir", ""}, "--output-dir: must not be empty"},
        {{"export", kPivot, "--output-dir", ""}, "--output-dir: must not be empty"},
        {{"results", kPivot, ""}, "FILE: must not be empty"},
        {{"build", "", "-o", "x.cpd"}, "JSON: must not be empty"},
        {{"build", "-", "-o", ""}, "--output: must not be empty"},
    });
}

TEST(WrongCalls, EveryCommandTakesTheProgramFolderAndTheTime) {
    const TemporaryFolder folder;
    const Arguments surroundings = {"--program-dir", folder.Path(), "--now", "2001-02-03 04:05:06"};
    PutContents(folder / "a.rtf", R"({\rtf1 text})");
    PutContents(folder / "a.json", "{}");
    for (Arguments arguments : {Arguments{"results", kPivot},
                                {"check", kPivot},
                                {"report", kPivot},
                                {"export", kPivot},
                                {"listing", kPivot},
                                {"dump", kPivot},
                                {"text", folder / "a.rtf"},
                                {"build", folder / "a.json", "-o", folder / "a.cpd"}}) {
        arguments.insert(arguments.end(), surroundings.begin(), surroundings.end());
        const RunResult run = RunProgram(arguments);
        EXPECT_EQ(run.status, 0) << arguments.front() << run.err;
        EXPECT_EQ(run.err, "");
    }
    EXPECT_EQ(folder.Names(), (Arguments{"a.cpd", "a.json", "a.rtf"}));
}

TEST(WrongCalls, HelpSaysWhatTheFileOfEachCommandIs) {
    const RunResult text = RunProgram(Arguments{"text", "--help"});
    EXPECT_EQ(text.status, 0);
    EXPECT_EQ(text.err, "");
    EXPECT_NE(text.out.find("A rich-text file\n"), std::string::npos) << text.out;
    EXPECT_EQ(text.out.find("--kind"), std::string::npos) << text.out;
    const RunResult report = RunProgram(Arguments{"report", "--help"});
    EXPECT_NE(report.out.find("A test file, .cpd or .ssd\n"), std::string::npos) << report.out;
    EXPECT_NE(report.out.find("--kind centerPivot|solidSet "), std::string::npos) << report.out;
    EXPECT_NE(report.out.find("--format text|rtf|html "), std::string::npos) << report.out;
}

} // namespace

} // namespace orvel::testing
