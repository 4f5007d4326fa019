// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"
#include "core/CodePage.h"
#include "core/Unicode.h"
#include "report/RtfReader.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// The forms that a report is written in.
namespace orvel::testing {

namespace {

using cli::Json;
using cli::ParseJson;

const std::string kPivot = Example("pivot-1978.cpd");
const std::string kSolid = Example("solid-set-triangle.ssd");
constexpr const char* kNow = "2026-07-04 09:05:03";

std::string PlainReport(const std::string& file) {
    return RunProgram({"report", file, "--now", kNow}).out;
}

TEST(ReportFormats, HtmlIsTheTextInTheCodePageBetweenItsTags) {
    const RunResult run = RunProgram({"report", kPivot, "--format", "html", "--now", kNow});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(SameText(run.out, "<HTML><HEAD></HEAD><PRE>\r\n\r\n" + FromUtf8(PlainReport(kPivot)) +
                                      "\r\n\r\n</PRE></BODY></HTML>\r\n"));
    EXPECT_NE(run.out.find("( <23\xB0 )"), std::string::npos);
}

TEST(ReportFormats, RtfHoldsTheTextInCourierNewAndColoursItsMarks) {
    for (const std::string& file : {kPivot, kSolid}) {
        const RunResult run = RunProgram({"report", file, "--format", "rtf", "--now", kNow});
        EXPECT_EQ(run.status, 0);
        EXPECT_TRUE(std::ranges::all_of(run.out, [](char each) { return each >= 0; }));
        const RichDocument document = ReadRtf(run.out);
        std::string plain = ToUtf8(FromUtf8(PlainReport(file)));
        std::erase(plain, '\r');
        EXPECT_TRUE(SameText(Utf8Of(PlainText(document)), plain));

        const Json json = ParseJson(RunProgram({"report", file, "--json", "--now", kNow}).out);
        std::vector<std::string> expected;
        for (const Json& mark : json["colorRuns"]) {
            const std::string text = FromUtf8(json["text"].get<std::string>());
            expected.push_back(
                std::string{"?rbg"[mark["code"].get<std::size_t>()]} + " " +
                text.substr(mark["start"].get<std::size_t>(), mark["length"].get<std::size_t>()));
        }
        std::vector<std::string> colored;
        for (const Paragraph& paragraph : document.paragraphs) {
            for (const TextRun& textRun : paragraph.runs) {
                EXPECT_EQ(textRun.format.font, "Courier New");
                EXPECT_EQ(textRun.format.halfPoints, 18);
                EXPECT_FALSE(textRun.format.isBold || textRun.format.isItalic);
                if (const auto& color = textRun.format.color) {
                    const char name = *color == Color{255, 0, 0}   ? 'r'
                                      : *color == Color{0, 0, 255} ? 'b'
                                      : *color == Color{0, 255, 0} ? 'g'
                                                                   : '?';
                    colored.push_back(std::string{name} + " " + Utf8Of(textRun.text));
                }
            }
        }
        EXPECT_EQ(colored, expected);
        EXPECT_GT(colored.size(), 5U);
    }
}

TEST(ReportFormats, JsonHoldsTheRunsOfTheMarks) {
    const Json json = ParseJson(RunProgram({"report", kPivot, "--json", "--now", kNow}).out);
    EXPECT_EQ(json["ok"], true);
    EXPECT_EQ(json["text"], PlainReport(kPivot));
    const std::size_t start = FromUtf8(PlainReport(kPivot)).find("0.64  |____");
    EXPECT_EQ(json["colorRuns"][0].dump(),
              R"({"start":)" + std::to_string(start) + R"(,"length":51,"code":2})");
    EXPECT_EQ(json["colorRuns"].size(), 7U);
    EXPECT_EQ(json["messages"], Json::array());
}

TEST(ReportFormats, EachHasItsExtensionInTheOutputFolder) {
    const TemporaryFolder folder;
    for (const char* format : {"text", "rtf", "html"}) {
        EXPECT_EQ(
            RunProgram({"report", "--format", format, "--output-dir", folder.Path(), kPivot, kSolid}).status,
            0);
    }
    EXPECT_EQ(RunProgram({"report", "--json", "--output-dir", folder.Path(), kSolid}).status, 0);
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{"pivot-1978.html", "pivot-1978.rtf", "pivot-1978.txt",
                                                        "solid-set-triangle.html", "solid-set-triangle.json",
                                                        "solid-set-triangle.rtf", "solid-set-triangle.txt"}));
}

TEST(ReportFormats, JsonAndAFormatExcludeEachOther) {
    EXPECT_EQ(RunProgram({"report", kPivot, "--json", "--format", "rtf"}).status, 2);
    EXPECT_EQ(RunProgram({"report", kPivot, "--format", "pdf"}).status, 2);
}

} // namespace

} // namespace orvel::testing
