// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>

// The text of a rich-text file.
namespace orvel::testing {

namespace {

using cli::Json;
using cli::ParseJson;

class TextCommand : public ::testing::Test {
protected:
    std::string Put(const std::string& rtf) {
        PutContents(folder / "a.rtf", rtf);
        return folder / "a.rtf";
    }

    TemporaryFolder folder;
};

TEST_F(TextCommand, PrintsTheTextAsUtf8WithLineFeeds) {
    const RunResult run = RunProgram({"text", Put(R"({\rtf1\ansi one\par tw\'f6\par\u8364?\tab x})")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "one\ntw\u00F6\n\u20AC\tx\n");
    EXPECT_EQ(run.err, "");
}

TEST_F(TextCommand, JsonHoldsTheRunsInUnicodeCharacters) {
    const std::string rtf =
        R"({\rtf1\ansi\deff0{\fonttbl{\f0 Courier New;}}{\colortbl;\red255\green0\blue16;})"
        R"(\fs18\u8364?a{\b\cf1 b}\par{\i\ul\fs19 c}})";
    const Json json = ParseJson(RunProgram({"text", "--json", Put(rtf)}).out);
    EXPECT_EQ(json["text"], "\u20ACab\nc");
    EXPECT_EQ(json["runs"].dump(),
              R"([{"start":0,"length":2,"font":"Courier New","size":9,"bold":false,"italic":false,)"
              R"("underline":false,"color":null},)"
              R"({"start":2,"length":1,"font":"Courier New","size":9,"bold":true,"italic":false,)"
              R"("underline":false,"color":"#ff0010"},)"
              R"({"start":4,"length":1,"font":"Courier New","size":9.5,"bold":false,"italic":true,)"
              R"("underline":true,"color":null}])");
}

TEST_F(TextCommand, GoesToAFile) {
    EXPECT_EQ(RunProgram({"text", Put(R"({\rtf1 x})"), "-o", folder / "a.txt"}).status, 0);
    EXPECT_EQ(Contents(folder / "a.txt"), "x\n");
}

TEST_F(TextCommand, AnEmptyDocumentPrintsNothing) {
    const RunResult run = RunProgram({"text", Put("")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
}

TEST_F(TextCommand, AMissingFileIsOneLine) {
    const std::string missing = folder / "none.rtf";
    const RunResult run = RunProgram({"text", missing});
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.err, "orvel-cli: " + missing + ": cannot open: No such file or directory\n");
}

} // namespace

} // namespace orvel::testing
