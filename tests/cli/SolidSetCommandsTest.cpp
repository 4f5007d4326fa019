// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"
#include "core/RecordFiles.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

// What each command does with a solid-set test, and with both kinds in one call.
namespace orvel::testing {

namespace {

using cli::Json;
using cli::ParseJson;

const std::string kSolid = Example("solid-set-1997.ssd");
const std::string kPivot = Example("pivot-1978.cpd");
constexpr const char* kNow = "2026-07-04 09:05:03";

constexpr const char* kTypeMismatch = "Sorry, an error occurred generating report...\rError Number: 13\r"
                                      "Error Description: Type mismatch\rError Source: ORVEL\r";

class SolidSetCommands : public ::testing::Test {
protected:
    SolidSetCommands() : test(ReadTest<SolidSetTest>(kSolid)) {}

    std::string Write(const std::string& name) {
        WriteTest(folder / name, test);
        return folder / name;
    }

    TemporaryFolder folder;
    SolidSetTest test;
};

TEST_F(SolidSetCommands, ReportPrintsTheUniformityThatWasPublished) {
    const RunResult run = RunProgram({"report", kSolid, "--now", kNow});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\r\nChristiansen Method       CU = 75%\r\n"
                           "Low Quarter Distribution  CU = 55%\r\n"),
              std::string::npos);
    EXPECT_EQ(run.err, "[Possible Errors in Data]\nPotention Input Problems Were Found.\n\n"
                       "The Value For Gauge 7 May be Low (<50% of Average).\n"
                       "The Value For Gauge 10 May be Low (<50% of Average).\n\n\n"
                       "These May Not Be Errors, But Should Be Checked.\n\n");
}

TEST_F(SolidSetCommands, ResultsPrintsEveryResult) {
    for (const char* name : {"solid-set-1997", "solid-set-triangle"}) {
        const std::string file = Example(std::string{name} + ".ssd");
        const RunResult run = RunProgram({"results", file});
        EXPECT_EQ(run.status, 0);
        EXPECT_TRUE(MatchesGolden(run.out, std::string{name} + "-results.txt"));
        EXPECT_TRUE(
            MatchesGolden(RunProgram({"results", file, "--json"}).out, std::string{name} + "-results.json"));
    }
}

TEST_F(SolidSetCommands, ResultsOfAFaultyDurationShowTheErrorAndWhatStands) {
    test.Duration = "abc";
    const RunResult run = RunProgram({"results", "--json", Write("a.ssd")});
    EXPECT_EQ(run.status, 4);
    const Json json = ParseJson(run.out);
    EXPECT_EQ(json["SolidSetCupCount"], 16);
    EXPECT_NEAR(json["SolidSetDU"].get<float>(), 55.225F, 0.001F);
    EXPECT_EQ(json["SolidSetApplicationRate"], 0);
    ASSERT_EQ(json["messages"].size(), 1U);
    EXPECT_EQ(json["messages"][0]["text"], kTypeMismatch);
}

TEST_F(SolidSetCommands, ExportAndListingAreAsTheyWere) {
    for (const char* name : {"solid-set-1997", "solid-set-triangle"}) {
        const std::string file = Example(std::string{name} + ".ssd");
        EXPECT_TRUE(MatchesGolden(RunProgram({"export", file}).out, std::string{name} + "-export.txt"));
        EXPECT_TRUE(MatchesGolden(RunProgram({"listing", file}).out, std::string{name} + "-listing.txt"));
    }
}

TEST_F(SolidSetCommands, ExportBeyondThreeHundredPointsFailsAndWritesNothing) {
    test.NumberX = "7";
    test.NumberY = "43";
    const RunResult run = RunProgram({"export", Write("a.ssd"), "-o", folder / "out.txt"});
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.err, "[Error]\nSorry, an error occurred generating report...\nError Number: 9\n"
                       "Error Description: Subscript out of range\nError Source: ORVEL\n\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.txt"));
}

TEST_F(SolidSetCommands, ABlankNumberOfCupsEndsTheCheckWithARunTimeError) {
    test.NumberX = "";
    const RunResult run = RunProgram({"check", "--json", Write("a.ssd")});
    EXPECT_EQ(run.status, 4);
    const Json json = ParseJson(run.out);
    EXPECT_EQ(json["ok"], false);
    ASSERT_EQ(json["messages"].size(), 1U);
    EXPECT_EQ(json["messages"][0]["text"], kTypeMismatch);
    EXPECT_EQ(json["messages"][0]["title"], "Error");
    EXPECT_EQ(json["messages"][0]["icon"], "critical");
}

TEST_F(SolidSetCommands, ANumberOfCupsOfZeroIsAnErrorInTheData) {
    test.NumberX = "0";
    const RunResult run = RunProgram({"check", Write("a.ssd")});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.err.starts_with("[Errors in Data]\nYou Have Errors That Will Prevent Report Creation.\n\n"
                                    "The X Axis Must be Entered.\n\n\nPlease Correct Entries.\n\n"));
}

TEST_F(SolidSetCommands, AReportThatEndsInARunTimeErrorIsEmptyAndLeavesTheOutput) {
    test.NumberY = "";
    const std::string file = Write("a.ssd");
    PutContents(folder / "out.txt", "what stood before");
    EXPECT_EQ(RunProgram({"report", file, "-o", folder / "out.txt"}).status, 4);
    EXPECT_EQ(Contents(folder / "out.txt"), "what stood before");
    const RunResult run = RunProgram({"report", file, "--json"});
    EXPECT_EQ(run.status, 4);
    const Json json = ParseJson(run.out);
    EXPECT_EQ(json["ok"], false);
    EXPECT_EQ(json["text"], "");
    EXPECT_EQ(json["colorRuns"], Json::array());
    EXPECT_EQ(json["messages"][0]["text"], kTypeMismatch);
}

TEST_F(SolidSetCommands, TheExamplesAreBuiltFromTheirJson) {
    for (const char* name : {"solid-set-1997", "solid-set-triangle"}) {
        const std::string example = std::string{name};
        EXPECT_EQ(RunProgram({"build", Example(example + ".json"), "-o", folder / "built.ssd"}).status, 0);
        EXPECT_EQ(Contents(folder / "built.ssd"), Contents(Example(example + ".ssd")));
    }
}

TEST_F(SolidSetCommands, BuildOfADumpGivesTheSameBytes) {
    ExpectBuildOfDumpGivesTheSameBytes(kSolid);
}

TEST_F(SolidSetCommands, ANewTestHasItsOwnPrompts) {
    EXPECT_EQ(RunProgram(Call{.arguments = {"build", "-", "-o", folder / "new.SSD"}, .input = "{}"}).status,
              0);
    EXPECT_EQ(std::filesystem::file_size(folder / "new.SSD"), 10930U);
    const auto built = ReadTest<SolidSetTest>(folder / "new.SSD");
    EXPECT_EQ(built.SystemManufacturer.Trimmed(), "Sprinkler Manufacturer");
    EXPECT_EQ(built.CommonTillage.Trimmed(), "Conventional");
}

TEST_F(SolidSetCommands, BothKindsInOneCallAndNothingOfOneIsLeftInTheNext) {
    test.GuageDiameter = "wide";
    const RunResult run = RunProgram({"results", "--json", kPivot, kSolid, Write("faulty.ssd"), kPivot});
    EXPECT_EQ(run.status, 4);
    std::istringstream lines(run.out);
    std::vector<Json> objects;
    for (std::string line; std::getline(lines, line);) {
        objects.push_back(ParseJson(line));
    }
    ASSERT_EQ(objects.size(), 4U);
    EXPECT_EQ(objects[0]["kind"], "centerPivot");
    EXPECT_EQ(objects[1]["kind"], "solidSet");
    EXPECT_EQ(objects[1]["SolidSetCupCount"], 16);
    EXPECT_EQ(objects[2]["SolidSetAverageDepth"], 0);
    EXPECT_EQ(objects[2]["SolidSetDepths"][0], 0);
    EXPECT_EQ(objects[3]["CupCount"], 56);
}

} // namespace

} // namespace orvel::testing
