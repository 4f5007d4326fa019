// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/cli/Program.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

// What each command does with one good file.
namespace orvel::testing {

namespace {

using cli::Json;
using cli::ParseJson;

const std::string kPivot = Example("pivot-1978.cpd");
constexpr const char* kNow = "2026-07-04 09:05:03";

// The example with one change, in a folder of the test's own.
class Commands : public ::testing::Test {
protected:
    Commands() : test(ReadTest<CenterPivotTest>(kPivot)) {}

    std::string Write(const std::string& name) {
        WriteTest(folder / name, test);
        return folder / name;
    }

    TemporaryFolder folder;
    CenterPivotTest test;
};

TEST_F(Commands, ReportPrintsTheReportWithTheSettingsOfTheProgramDirectory) {
    Program().programDirectory = folder.Path();
    SaveUserSettings(CompleteUserSettings());
    const RunResult run = RunProgram({"report", kPivot, "--now", kNow, "--program-dir", folder.Path()});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(MatchesGolden(run.out, "pivot-1978-report.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"user.usr"});
}

TEST_F(Commands, ReportWithoutSettingsLeavesTheTesterOutAndCreatesNothing) {
    const RunResult run = RunProgram({"report", kPivot, "--now", kNow, "--program-dir", folder.Path()});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("For Further Information Contact:\r\nAlder Creek Farms                  \r\n"),
              std::string::npos);
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(Commands, ReportTakesTheTimeFromSourceDateEpoch) {
    const RunResult run = RunProgram(
        Call{.arguments = {"report", kPivot}, .environment = {{"SOURCE_DATE_EPOCH", "951827696"}}});
    EXPECT_NE(run.out.find("Report Date:  2000-02-29 12:34:56\r\n"), std::string::npos);
}

TEST_F(Commands, ReportAsJsonHoldsTheTextAndTheMessages) {
    test.TravelSpeedMinutes = "";
    const RunResult run = RunProgram({"report", Write("a.cpd"), "--json", "--now", kNow});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const Json json = ParseJson(run.out);
    EXPECT_EQ(json["ok"], true);
    EXPECT_TRUE(json["text"].get<std::string>().starts_with("                 Center Pivot Water"));
    EXPECT_EQ(json["colorRuns"].size(), 6U);
    ASSERT_EQ(json["messages"].size(), 1U);
    EXPECT_EQ(json["messages"][0]["title"], "Possible Errors in Data");
    EXPECT_EQ(json["messages"][0]["buttons"], "OK");
    EXPECT_EQ(json["messages"][0]["icon"], "critical");
}

TEST_F(Commands, ReportOfDataWithErrorsHasStatusOneAndWritesOnlyTheMessages) {
    test.ClientName = "";
    const std::string file = Write("a.cpd");
    PutContents(folder / "out.txt", "what stood before");
    const RunResult run = RunProgram({"report", file, "-o", folder / "out.txt"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "[Errors in Data]\nYou Have Errors That Will Prevent Report Creation.\n\n"
                       "You Should Enter the Client Name.\n\n\nPlease Correct Entries.\n\n");
    EXPECT_EQ(Contents(folder / "out.txt"), "what stood before");

    const Json json = ParseJson(RunProgram({"report", file, "--json"}).out);
    EXPECT_EQ(json["ok"], false);
    EXPECT_EQ(json["text"], "Errors in data file - report not created.");
}

TEST_F(Commands, ResultsPrintsEveryResult) {
    const RunResult run = RunProgram({"results", kPivot});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(MatchesGolden(run.out, "pivot-1978-results.txt"));
}

TEST_F(Commands, ResultsAsJsonAgreesWithTheLiteratureOnThe1978Test) {
    const RunResult run = RunProgram({"results", kPivot, "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(MatchesGolden(run.out, "pivot-1978-results.json"));
    const Json json = ParseJson(run.out);
    EXPECT_NEAR(json["ChristiansenCU"].get<float>(), 87.997F, 0.0005F);
    EXPECT_NEAR(json["HeermannHeinCU"].get<float>(), 87.4994F, 0.00005F);
    EXPECT_EQ(json["CupCount"], 56);
    EXPECT_EQ(json["CupDepths"].size(), 56U);
}

TEST_F(Commands, ResultsOfATestWithoutCupsShowTheErrorAndWhatStands) {
    test = NewCenterPivotTest();
    const RunResult run = RunProgram({"results", Write("empty.cpd"), "--json"});
    EXPECT_EQ(run.status, 4);
    const Json json = ParseJson(run.out);
    EXPECT_EQ(json["CupCount"], 0);
    EXPECT_EQ(json["AverageDepth"], 0);
    EXPECT_TRUE(json["ApplicationRateAtLastTower"].is_null());
    ASSERT_EQ(json["messages"].size(), 1U);
    EXPECT_EQ(json["messages"][0]["text"],
              "Sorry, an error occurred generating report...\rError Number: 6\rError Description: "
              "Overflow\rError Source: ORVEL\r");
}

TEST_F(Commands, AnApplicationRateThatFailsShowsItsErrorAndIsNull) {
    test.RadLastSprinkler = "wide";
    const RunResult run = RunProgram({"results", Write("a.cpd"), "--json"});
    EXPECT_EQ(run.status, 4);
    const Json json = ParseJson(run.out);
    EXPECT_TRUE(json["ApplicationRateAtLastTower"].is_null());
    EXPECT_EQ(json["CupCount"], 56);
    ASSERT_EQ(json["messages"].size(), 1U);
    EXPECT_NE(json["messages"][0]["text"].get<std::string>().find("Error Number: 13\r"), std::string::npos);
}

TEST_F(Commands, CheckSaysWhetherAReportMayBeBuilt) {
    RunResult run = RunProgram({"check", kPivot});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_EQ(ParseJson(RunProgram({"check", kPivot, "--json"}).out).dump(), R"({"ok":true,"messages":[]})");

    test.GuageSpacing = "  ";
    run = RunProgram({"check", Write("a.cpd"), "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(ParseJson(run.out).dump(),
              R"({"ok":false,"messages":[{"title":"Errors in Data","text":"You Have Errors That Will )"
              R"(Prevent Report Creation.\r\n\r\nGauge Spacing Must be Entered.\r\n\r\n\r\n)"
              R"(Please Correct Entries.","buttons":"OK","icon":"critical"}]})");
}

TEST_F(Commands, ExportIsTheSummaryAndAnEmptyLine) {
    const RunResult run = RunProgram({"export", kPivot});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(MatchesGolden(run.out, "pivot-1978-export.txt"));
    EXPECT_TRUE(run.out.starts_with("1,185,0.56\r\n2,207.5,0.64\r\n"));
    EXPECT_TRUE(run.out.ends_with("56,1422.5,0.33\r\n\r\n"));
}

TEST_F(Commands, ExportOfACalculationThatFailedWritesWhatStands) {
    test = NewCenterPivotTest();
    const RunResult run = RunProgram({"export", Write("empty.cpd")});
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.out, "\r\n");
    EXPECT_EQ(run.err, "[Error]\nSorry, an error occurred generating report...\nError Number: 6\n"
                       "Error Description: Overflow\nError Source: ORVEL\n\n");
}

TEST_F(Commands, ListingPrintsTheRecord) {
    const RunResult run = RunProgram({"listing", kPivot});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(MatchesGolden(run.out, "pivot-1978-listing.txt"));
}

TEST_F(Commands, TheExampleIsBuiltFromItsJson) {
    const RunResult run = RunProgram({"build", Example("pivot-1978.json"), "-o", folder / "built.cpd"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out + run.err, "");
    EXPECT_EQ(Contents(folder / "built.cpd"), Contents(kPivot));
}

TEST_F(Commands, BuildOfADumpGivesTheSameBytes) {
    ExpectBuildOfDumpGivesTheSameBytes(kPivot);
}

TEST_F(Commands, BuildMakesTheFileNewAsAWhole) {
    PutContents(folder / "old.cpd", std::string(20000, 'x'));
    EXPECT_EQ(RunProgram(Call{.arguments = {"build", "-", "-o", folder / "old.cpd"}, .input = "{}"}).status,
              0);
    EXPECT_EQ(std::filesystem::file_size(folder / "old.cpd"), 9002U);
    EXPECT_EQ(ReadTest<CenterPivotTest>(folder / "old.cpd").SoilSlope.Trimmed(), "Soil Slope");
}

TEST_F(Commands, BuildTakesTheKindFromWhoeverSaysIt) {
    const auto build = [](const std::string& json, std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"build", "-", "-o"});
        return RunProgram(Call{.arguments = arguments, .input = json}).status;
    };
    EXPECT_EQ(build("{}", {folder / "A.CPD"}), 0);
    EXPECT_EQ(build("{}", {folder / "a.dat", "--kind", "centerPivot"}), 0);
    EXPECT_EQ(build(R"({"kind": "centerPivot"})", {folder / "b.dat"}), 0);
    EXPECT_EQ(build("{}", {folder / "c.dat"}), 2);
    EXPECT_EQ(build(R"({"kind": "solidSet"})", {folder / "d.cpd"}), 3);
    EXPECT_EQ(build(R"({"kind": "centerpivot"})", {folder / "e.cpd"}), 3);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"A.CPD", "a.dat", "b.dat"}));
}

TEST_F(Commands, DumpOfAShortFileBuildsAFilledUpOne) {
    PutContents(folder / "short.cpd", Contents(kPivot).substr(0, 40));
    const RunResult dump = RunProgram({"dump", folder / "short.cpd", "--output", folder / "short.json"});
    EXPECT_EQ(dump.status, 0);
    EXPECT_EQ(dump.out, "");
    EXPECT_EQ(RunProgram({"build", folder / "short.json", "-o", folder / "full.cpd"}).status, 0);
    const auto full = ReadTest<CenterPivotTest>(folder / "full.cpd");
    EXPECT_EQ(full.ClientName.Trimmed(), "Alder Creek Farms");
    EXPECT_EQ(full.DateofTest.Trimmed(), "08/15");
    EXPECT_TRUE(full.SoilType.IsBlank());
    EXPECT_EQ(std::filesystem::file_size(folder / "full.cpd"), 9002U);
}

TEST_F(Commands, KindOverridesTheExtension) {
    std::filesystem::copy_file(kPivot, folder / "pivot.dat");
    EXPECT_EQ(RunProgram({"check", folder / "pivot.dat"}).status, 2);
    EXPECT_EQ(RunProgram({"check", folder / "pivot.dat", "--kind", "centerPivot"}).status, 0);
}

TEST_F(Commands, HelpAndVersionAreNoErrors) {
    const RunResult version = RunProgram({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.starts_with("orvel-cli "));
    const RunResult help = RunProgram({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* command : {"results", "check", "report", "export", "listing", "dump", "build", "text"}) {
        EXPECT_NE(help.out.find(command), std::string::npos) << command;
        EXPECT_EQ(RunProgram({command, "--help"}).status, 0) << command;
    }
}

} // namespace

} // namespace orvel::testing
