// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/cli/BadInput.h"
#include "cli/Json.h"
#include "core/RecordFiles.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

// What goes wrong gets one clear line or the logic's message, the right status, and harms no file.
namespace orvel::testing {

namespace {

constexpr const char* kFourLines = "[Error]\nSorry, an error occurred generating report...\nError Number: ";

TEST_F(BadInput, AFileThatCannotBeReadIsNamedWithTheReason) {
    for (const char* command : {"results", "check", "report", "export", "listing", "dump"}) {
        ExpectOneLine(RunProgram({command, folder / "no.cpd"}), 3,
                      (folder / "no.cpd").string() + ": cannot open: No such file or directory");
    }
    std::filesystem::create_directory(folder / "folder.cpd");
    ExpectOneLine(RunProgram({"results", folder / "folder.cpd"}), 3,
                  (folder / "folder.cpd").string() + ": cannot read: Is a directory");
    ExpectOneLine(RunProgram({"build", folder / "no.json", "-o", folder / "x.cpd"}), 3,
                  (folder / "no.json").string() + ": cannot open: No such file or directory");
}

TEST_F(BadInput, AnEpochThatIsNoNumberIsAWrongCall) {
    const RunResult run =
        RunProgram(Call{.arguments = {"report", kPivot}, .environment = {{"SOURCE_DATE_EPOCH", "soon"}}});
    ExpectOneLine(run, 2, "SOURCE_DATE_EPOCH: must be a number of seconds since 1970");
}

TEST_F(BadInput, ARunTimeErrorEndsTheReportAndLeavesAnExistingOutput) {
    for (int i = 1; i <= 300; ++i) {
        test.Gauges[i].Volume = 100.0F;
    }
    const std::string file = Write("a.cpd");
    PutContents(folder / "out.txt", "what stood before");
    const RunResult run = RunProgram({"report", file, "-o", folder / "out.txt"});
    EXPECT_EQ(run.status, 4);
    EXPECT_TRUE(run.err.starts_with(std::string(kFourLines) + "9\n")) << run.err;
    EXPECT_EQ(Contents(folder / "out.txt"), "what stood before");
    const RunResult json = RunProgram({"report", file, "--json"});
    EXPECT_EQ(json.status, 4);
    EXPECT_NE(json.out.find("\"ok\": false,\n  \"text\": \"\","), std::string::npos) << json.out;
    EXPECT_EQ(RunProgram({"check", file}).status, 4);
}

TEST_F(BadInput, AFieldThatIsNoNumberEndsTheReportThatPrintsIt) {
    test.TotalAcres = "many";
    const RunResult run = RunProgram({"report", Write("a.cpd")});
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(
        run.err.ends_with("Error Number: 13\nError Description: Type mismatch\nError Source: ORVEL\n\n"))
        << run.err;

    PutContents(folder / "old.txt", "old");
    EXPECT_EQ(RunProgram({"report", folder / "a.cpd", "-o", folder / "old.txt"}).status, 4);
    EXPECT_EQ(Contents(folder / "old.txt"), "old");

    const RunResult json = RunProgram({"report", "--json", folder / "a.cpd"});
    EXPECT_EQ(json.status, 4);
    const cli::Json report = cli::ParseJson(json.out);
    EXPECT_EQ(report["ok"], false);
    EXPECT_EQ(report["text"], "");
    EXPECT_TRUE(report["colorRuns"].empty());
    EXPECT_EQ(report["messages"].back()["title"], "Error");
}

TEST_F(BadInput, AReportGoesOnWithWhatStandsAfterACalculationThatFailed) {
    auto solidSet = ReadTest<SolidSetTest>(Example("solid-set-1997.ssd"));
    solidSet.Duration = "abc";
    WriteTest(folder / "a.ssd", solidSet);
    const RunResult run = RunProgram({"report", "--json", "--now", kNow, folder / "a.ssd"});
    EXPECT_EQ(run.status, 4);
    const cli::Json report = cli::ParseJson(run.out);
    EXPECT_EQ(report["ok"], true);
    EXPECT_NE(report["text"].get<std::string>().find("Application Rate = NOT COMPUTED\r\n"),
              std::string::npos);
    EXPECT_EQ(report["colorRuns"].size(), 7U);
    ASSERT_EQ(report["messages"].size(), 2U);
    EXPECT_EQ(report["messages"][0]["title"], "Possible Errors in Data");
    EXPECT_EQ(report["messages"][1]["title"], "Error");

    const RunResult file = RunProgram({"report", "--now", kNow, folder / "a.ssd", "-o", folder / "a.txt"});
    EXPECT_EQ(file.status, 4);
    EXPECT_EQ(Contents(folder / "a.txt"), report["text"].get<std::string>());
}

TEST_F(BadInput, SinglesThatAreNotFiniteRaiseOverflowWhereTheyAreComputedWith) {
    test.Gauges[5].Volume = std::numeric_limits<float>::quiet_NaN();
    const std::string file = Write("nan.cpd");
    for (const char* command : {"results", "check", "report", "export", "listing"}) {
        const RunResult run = RunProgram({command, file});
        EXPECT_EQ(run.status, 4) << command;
        EXPECT_TRUE(run.err.starts_with(std::string(kFourLines) + "6\n")) << command << run.err;
    }
    const RunResult dump = RunProgram({"dump", file});
    EXPECT_EQ(dump.status, 0);
    EXPECT_NE(dump.out.find("\"Volume\": \"0x7fc00000\""), std::string::npos);
}

TEST_F(BadInput, ForeignAndDamagedFilesAreReadAsTheyStand) {
    std::mt19937 random(11);
    std::string noise(20000, '\0');
    std::ranges::generate(noise, [&random] { return static_cast<char>(random()); });
    const std::string whole = Contents(kPivot);
    int number = 0;
    for (const std::string& content :
         {std::string{}, whole.substr(0, 1), whole.substr(0, 4100), whole + noise, noise,
          std::string(9002, '\xFF'), std::string(9002, '0')}) {
        const std::string file = folder / (std::to_string(++number) + ".cpd");
        PutContents(file, content);
        EXPECT_EQ(RunProgram({"dump", file}).status, 0) << number;
        for (const char* command : {"results", "check", "report", "export", "listing"}) {
            const RunResult run = RunProgram({command, file});
            EXPECT_TRUE(run.status == 0 || run.status == 1 || run.status == 4)
                << command << " " << number << " " << run.status << " " << run.err;
        }
        EXPECT_EQ(Contents(file), content) << number;
    }
}

TEST_F(BadInput, FlippedBitsHarmNothing) {
    std::mt19937 random(12);
    for (int round = 0; round < 40; ++round) {
        std::string content = Contents(kPivot);
        for (int flip = 0; flip < 30; ++flip) {
            char& byte = content[random() % content.size()];
            byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << (random() % 8)));
        }
        PutContents(folder / "flipped.cpd", content);
        const RunResult dump = RunProgram({"dump", folder / "flipped.cpd"});
        ASSERT_EQ(dump.status, 0);
        ASSERT_EQ(RunProgram(Call{.arguments = {"build", "-", "-o", folder / "again.cpd"}, .input = dump.out})
                      .status,
                  0);
        ASSERT_EQ(Contents(folder / "again.cpd"), content);
        const int status = RunProgram({"report", folder / "flipped.cpd"}).status;
        EXPECT_TRUE(status == 0 || status == 1 || status == 4) << status;
    }
}

TEST_F(BadInput, JsonThatIsWrongIsNamedAndNothingIsWritten) {
    struct Case {
        const char* json;
        const char* complaint;
    };
    for (const Case& each :
         {Case{"", "syntax error"}, Case{"{", "syntax error"}, Case{"[]", "a test must be an object"},
          Case{R"({"Client": 1})", R"("Client" is no field of the record)"},
          Case{R"({"ClientName": "a", "ClientName": "b"})",
               R"(error at line 1, column 32: "ClientName" is named twice)"},
          Case{R"({"MinIntake": 1e39})",
               R"(error at line 1, column 18: "MinIntake" is a number that no Single holds: 1e39)"},
          Case{R"({"a\u0000b\n": 1})", R"("a\u0000b\n" is no field of the record)"}}) {
        const RunResult run =
            RunProgram(Call{.arguments = {"build", "-", "-o", folder / "x.cpd"}, .input = each.json});
        EXPECT_EQ(run.status, 3) << each.json;
        EXPECT_TRUE(run.err.starts_with("orvel-cli: -: ")) << run.err;
        EXPECT_NE(run.err.find(each.complaint), std::string::npos) << run.err;
        EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << run.err;
    }
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(BadInput, JsonNestedAHundredThousandDeepIsRefused) {
    std::string objects;
    for (int i = 0; i < 100000; ++i) {
        objects += R"({"a":)";
    }
    for (const std::string& json : {std::string(100000, '['), objects}) {
        const RunResult run =
            RunProgram(Call{.arguments = {"build", "-", "-o", folder / "x.cpd"}, .input = json});
        EXPECT_EQ(run.status, 3);
        EXPECT_TRUE(run.err.ends_with(": more than 64 objects and arrays in one another\n")) << run.err;
    }
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(BadInput, AnOutputThatCannotBeWrittenIsNamedWithTheReason) {
    const std::string place = folder / "missing/x.txt";
    ExpectOneLine(RunProgram({"report", kPivot, "-o", place}), 3,
                  place + ": cannot create a file in the folder: No such file or directory");
    std::filesystem::create_directory(folder / "folder");
    EXPECT_EQ(RunProgram({"report", kPivot, "-o", folder / "folder"}).status, 3);
}

TEST_F(BadInput, AnOutputNeverOverwritesItsInput) {
    const std::string file = Write("a.cpd");
    const std::string before = Contents(file);
    std::filesystem::create_hard_link(file, folder / "twin");
    for (const std::string& output : {file, (folder / "twin").string()}) {
        const RunResult run = RunProgram({"dump", file, "-o", output});
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "orvel-cli: " + output + ": the output would overwrite the input\n");
    }
    std::filesystem::copy_file(file, folder / "b.txt");
    EXPECT_EQ(RunProgram({"report", "--kind", "centerPivot", folder / "b.txt", "--output-dir", folder.Path()})
                  .status,
              2);
    EXPECT_EQ(Contents(folder / "b.txt"), before);
    EXPECT_EQ(Contents(file), before);
}

TEST_F(BadInput, SettingsThatCannotBeReadAreNamed) {
    std::filesystem::create_directory(folder / "soil.dat");
    std::filesystem::create_directory(folder / "user.usr");
    EXPECT_EQ(RunProgram({"report", kPivot, "--program-dir", folder.Path()}).status, 0)
        << "a folder of that name is no settings file";
    std::filesystem::remove(folder / "user.usr");
    PutContents(folder / "user.usr", "Short");
    const RunResult run = RunProgram({"report", kPivot, "--program-dir", folder.Path()});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("Alder Creek Farms                  Short\r\n"), std::string::npos);
    EXPECT_EQ(Contents(folder / "user.usr"), "Short");
}

} // namespace

} // namespace orvel::testing
