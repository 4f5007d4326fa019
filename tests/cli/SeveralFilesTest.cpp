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

// One call with several files.
namespace orvel::testing {

namespace {

const std::string kPivot = Example("pivot-1978.cpd");

class SeveralFiles : public ::testing::Test {
protected:
    SeveralFiles() {
        std::filesystem::copy_file(kPivot, folder / "good.cpd");
        auto test = ReadTest<CenterPivotTest>(kPivot);
        test.EndGunRadius = "";
        WriteTest(folder / "noacres.cpd", test);
        test.ClientName = "";
        WriteTest(folder / "errors.cpd", test);
        for (int i = 1; i <= 300; ++i) {
            test.Gauges[i].Volume = 50.0F;
        }
        WriteTest(folder / "toomany.cpd", test);
        std::filesystem::create_directory(folder / "out");
    }

    [[nodiscard]] std::string Out(const std::string& name) const { return folder / ("out/" + name); }

    TemporaryFolder folder;
};

TEST_F(SeveralFiles, ResultsAsJsonAreOneObjectALineInTheOrderGiven) {
    const RunResult run = RunProgram(
        {"results", "--json", folder / "noacres.cpd", folder / "toomany.cpd", folder / "good.cpd"});
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.err, "");
    std::istringstream lines(run.out);
    std::vector<cli::Json> objects;
    for (std::string line; std::getline(lines, line);) {
        objects.push_back(cli::ParseJson(line));
    }
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_EQ(objects[0].begin().key(), "file");
    EXPECT_EQ(objects[0]["file"], (folder / "noacres.cpd").string());
    EXPECT_EQ(objects[1]["file"], (folder / "toomany.cpd").string());
    EXPECT_EQ(objects[2]["file"], (folder / "good.cpd").string());
    EXPECT_EQ(objects[2]["CupCount"], 56);
}

TEST_F(SeveralFiles, NothingOfOneFileIsLeftOverInTheNext) {
    const RunResult run =
        RunProgram({"results", "--json", kPivot, folder / "noacres.cpd", folder / "toomany.cpd"});
    std::istringstream lines(run.out);
    std::string line;
    std::getline(lines, line);
    EXPECT_GT(cli::ParseJson(line)["IrrigatedAcres"].get<float>(), 151.0F);
    std::getline(lines, line);
    EXPECT_EQ(cli::ParseJson(line)["IrrigatedAcres"], 0);
    std::getline(lines, line);
    EXPECT_EQ(cli::ParseJson(line)["CupCount"], 0);
    EXPECT_EQ(cli::ParseJson(line)["MaximumDepth"], 0);
}

TEST_F(SeveralFiles, ResultsAsTextAreABlockEach) {
    const RunResult run = RunProgram({"results", folder / "good.cpd", kPivot});
    const std::string block = RunProgram({"results", kPivot}).out;
    EXPECT_EQ(run.out, (folder / "good.cpd").string() + ":\n" + block + "\n" + kPivot + ":\n" + block);
}

TEST_F(SeveralFiles, MessagesStandBehindTheNameOfTheirFile) {
    const RunResult run =
        RunProgram({"report", "--output-dir", Out(""), folder / "good.cpd", folder / "toomany.cpd"});
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.err, "orvel-cli: " + (folder / "toomany.cpd").string() +
                           ":\n[Error]\nSorry, an error occurred generating report...\nError Number: 9\n"
                           "Error Description: Subscript out of range\nError Source: ORVEL\n\n");
}

TEST_F(SeveralFiles, TheHighestStatusCountsAndTheOthersAreStillDone) {
    const RunResult run = RunProgram({"report", "--output-dir", Out(""), folder / "errors.cpd",
                                      folder / "missing.cpd", folder / "good.cpd"});
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(run.err.find("orvel-cli: " + (folder / "missing.cpd").string() +
                           ": cannot open: No such file or directory\n"),
              std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(Out("good.txt")));
    EXPECT_FALSE(std::filesystem::exists(Out("errors.txt")));
    EXPECT_FALSE(std::filesystem::exists(Out("missing.txt")));
}

TEST_F(SeveralFiles, ReportsAreNamedAfterTheirTests) {
    EXPECT_EQ(RunProgram({"report", "--output-dir", Out(""), folder / "good.cpd", kPivot}).status, 0);
    EXPECT_EQ(RunProgram({"report", "--json", "--output-dir", Out(""), kPivot}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(Out("good.txt")));
    EXPECT_TRUE(std::filesystem::exists(Out("pivot-1978.txt")));
    EXPECT_EQ(cli::ParseJson(Contents(Out("pivot-1978.json")))["ok"], true);
}

TEST_F(SeveralFiles, ANameThatIsNothingButAnExtensionStaysWhole) {
    std::filesystem::copy_file(kPivot, folder / ".cpd");
    std::filesystem::copy_file(kPivot, folder / "a.b.cpd");
    EXPECT_EQ(RunProgram({"report", "--output-dir", Out(""), folder / ".cpd", folder / "a.b.cpd"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(Out(".cpd.txt")));
    EXPECT_TRUE(std::filesystem::exists(Out("a.b.txt")));
}

TEST_F(SeveralFiles, ExportsAreNamedAfterTheirTests) {
    EXPECT_EQ(RunProgram({"export", "--output-dir", Out(""), folder / "good.cpd", kPivot}).status, 0);
    EXPECT_EQ(Contents(Out("good.txt")), Contents(TestData("pivot-1978-export.txt")));
}

TEST_F(SeveralFiles, FilesThatWouldShareAnOutputAreAWrongCallAndNothingIsWritten) {
    std::filesystem::create_directory(folder / "other");
    std::filesystem::copy_file(kPivot, folder / "other/good.CPD");
    const RunResult run = RunProgram(
        {"report", "--output-dir", Out(""), kPivot, folder / "good.cpd", folder / "other/good.CPD"});
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(std::filesystem::is_empty(Out("")));
}

TEST_F(SeveralFiles, ReportAndExportWantAFolder) {
    for (const char* command : {"report", "export"}) {
        const RunResult run = RunProgram({command, folder / "good.cpd", kPivot});
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.err, "orvel-cli: several files need --output-dir\n");
        EXPECT_EQ(RunProgram({command, folder / "good.cpd", kPivot, "-o", Out("all.txt")}).status, 2);
    }
    EXPECT_TRUE(std::filesystem::is_empty(Out("")));
}

TEST_F(SeveralFiles, ResultsGoToOneOutputFile) {
    const RunResult run =
        RunProgram({"results", "--json", folder / "good.cpd", kPivot, "-o", Out("all.jsonl")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Contents(Out("all.jsonl")), RunProgram({"results", "--json", folder / "good.cpd", kPivot}).out);
}

} // namespace

} // namespace orvel::testing
