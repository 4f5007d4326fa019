// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/ReportBuilder.h"

#include "core/CodePage.h"
#include "core/Text.h"
#include "report/MemoryRichTextBox.h"
#include "tests/report/ReportFixture.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::GenerationErrorMessage;
using testing::GermanNumbers;
using testing::MatchesGolden;
using testing::RunsText;

// Notes what is done to it, and what had been calculated then.
class RecordingBox : public MemoryRichTextBox {
public:
    std::vector<std::string> steps;
    // The steps before the text was held back, and those before it was shown.
    std::size_t stepsBeforeHolding = 0;
    std::size_t stepsBeforeShowing = 0;

    void HoldBack() override { stepsBeforeHolding = steps.size(); }
    void ShowHeldBack() override { stepsBeforeShowing = steps.size(); }

    void SetText(std::string_view newText) override {
        const bool isGrown = !Text().empty() && newText.starts_with(Text());
        steps.push_back((isGrown ? "append " : "set ") +
                        FirstLine(isGrown ? newText.substr(Text().size()) : newText));
        MemoryRichTextBox::SetText(newText);
    }
    void Select(std::size_t start, std::size_t length) override {
        Note("select " + std::to_string(start) + "+" + std::to_string(length));
        MemoryRichTextBox::Select(start, length);
    }
    void SetSelectionBold(bool isBold) override {
        Note(isBold ? "bold" : "not bold");
        MemoryRichTextBox::SetSelectionBold(isBold);
    }
    void SetSelectionItalic(bool isItalic) override {
        Note(isItalic ? "italic" : "not italic");
        MemoryRichTextBox::SetSelectionItalic(isItalic);
    }
    void SetFontName(const std::string& name) override {
        Note("font " + name);
        MemoryRichTextBox::SetFontName(name);
    }
    void SetSelectionFontSize(int points) override {
        Note("size " + std::to_string(points));
        MemoryRichTextBox::SetSelectionFontSize(points);
    }
    void SetSelectionColor(Color color) override {
        Note("color " + std::to_string(color.red) + "," + std::to_string(color.green) + "," +
             std::to_string(color.blue));
        MemoryRichTextBox::SetSelectionColor(color);
    }

    // The steps up to the first section.
    [[nodiscard]] std::vector<std::string> StepsBeforeText() const {
        return {steps.begin(), steps.begin() + std::min<std::ptrdiff_t>(6, std::ssize(steps))};
    }

private:
    static std::string FirstLine(std::string_view text) {
        return std::string{Trim(text.substr(0, text.find('\r')))};
    }
    void Note(const std::string& step) {
        const int cups = PivotResults().CupCount + SolidResults().SolidSetCupCount;
        steps.push_back(step + (cups > 0 ? "" : " (nothing calculated)"));
    }
};

class ReportBuilderTest : public testing::ReportTest {
protected:
    void BuildPivot() { builder.BuildCenterPivotReport(); }
    void BuildSolid() { builder.BuildSolidSetReport(); }
    [[nodiscard]] std::string Text() const { return box.Text(); }
    [[nodiscard]] bool Has(const std::string& part) const { return Text().find(part) != std::string::npos; }

    RecordingBox box;
    ReportBuilder builder{box};
};

TEST_F(ReportBuilderTest, TheReportsOfTheExamplesAreAsTheyWere) {
    OpenPivot();
    BuildPivot();
    EXPECT_TRUE(MatchesGolden(ToUtf8(Text()), "pivot-1978-report.txt"));
    EXPECT_TRUE(MatchesGolden(RunsText(builder.ColorRuns(), Text()), "pivot-1978-runs.txt"));

    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    EXPECT_TRUE(MatchesGolden(ToUtf8(Text()), "solid-set-1997-report.txt"));
    EXPECT_TRUE(MatchesGolden(RunsText(builder.ColorRuns(), Text()), "solid-set-1997-runs.txt"));

    ExpectWarnings("No Value Was Entered For Gauge: 209\r\n");
    OpenSolid("solid-set-triangle.ssd");
    BuildSolid();
    EXPECT_TRUE(MatchesGolden(ToUtf8(Text()), "solid-set-triangle-report.txt"));
    EXPECT_TRUE(MatchesGolden(RunsText(builder.ColorRuns(), Text()), "solid-set-triangle-runs.txt"));
}

// The page leaves out the blanks at the end of a line.
TEST_F(ReportBuilderTest, TheReportsOfTheDocumentationAreTheOnesThatAreBuilt) {
    const std::string page = testing::Contents(std::string(ORVEL_DOCS) + "/reports.md");
    for (const char* golden : {"pivot-1978-report.txt", "solid-set-1997-report.txt"}) {
        std::istringstream lines(testing::Contents(testing::TestData(golden)));
        std::string block;
        for (std::string line; std::getline(lines, line);) {
            std::erase(line, '\r');
            const std::string_view text = TrimRight(line);
            block.append(text.empty() ? "" : "    ").append(text).append("\n");
        }
        EXPECT_NE(page.find(block), std::string::npos) << golden;
    }
}

TEST_F(ReportBuilderTest, AReportFollowsTheLocalesSeparators) {
    UseNumberLocale(GermanNumbers());
    OpenPivot();
    BuildPivot();
    EXPECT_TRUE(MatchesGolden(ToUtf8(Text()), "pivot-1978-report-german.txt"));
}

TEST_F(ReportBuilderTest, TheCenterPivotReportCalculatesBeforeTheBoxIsReset) {
    OpenPivot();
    BuildPivot();
    EXPECT_EQ(box.StepsBeforeText(),
              (std::vector<std::string>{"select 0+0", "not bold", "not italic", "font Courier New", "size 9",
                                        "set Center Pivot Water Application Uniformity Test"}));
}

TEST_F(ReportBuilderTest, TheSolidSetReportResetsTheBoxBeforeItCalculates) {
    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    EXPECT_EQ(box.StepsBeforeText(),
              (std::vector<std::string>{
                  "select 0+0 (nothing calculated)", "not bold (nothing calculated)",
                  "not italic (nothing calculated)", "font Courier New (nothing calculated)",
                  "size 9 (nothing calculated)", "set Solid Set Water Application Uniformity Test"}));
}

TEST_F(ReportBuilderTest, SectionAfterSectionOfTheCenterPivotReportIsPutInTheBox) {
    OpenPivot();
    BuildPivot();
    EXPECT_EQ((std::vector<std::string>(box.steps.begin() + 5, box.steps.begin() + 14)),
              (std::vector<std::string>{
                  "set Center Pivot Water Application Uniformity Test", "append Field Information",
                  "append System Information", "append Average Depth:           0.51 inches",
                  "append Data and Graph Summary", "append Percent Timer Analysis",
                  "append Application Rate at Last Tower: 2.46",
                  "append Uniformity Analysis:", "append Other Comments / Recomendations:"}));
}

TEST_F(ReportBuilderTest, SectionAfterSectionOfTheSolidSetReportIsPutInTheBox) {
    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    EXPECT_EQ((std::vector<std::string>(box.steps.begin() + 5, box.steps.begin() + 12)),
              (std::vector<std::string>{
                  "set Solid Set Water Application Uniformity Test", "append Field Information",
                  "append System Information", "append Average Depth = 0.58 inches",
                  "append Uniformity Analysis - Representative Layout", "append ", "append Comments:"}));
    EXPECT_TRUE(Text().ends_with(" \r\n" + Rule()));
}

TEST_F(ReportBuilderTest, AReportIsSeenAsAWhole) {
    OpenPivot();
    box.SetText("another one");
    BuildPivot();
    ASSERT_GT(box.steps.size(), 20U);
    EXPECT_EQ(box.steps[box.stepsBeforeHolding], "set Center Pivot Water Application Uniformity Test");
    EXPECT_EQ(box.stepsBeforeShowing, box.steps.size());
    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    EXPECT_EQ(box.steps.at(box.stepsBeforeHolding), "set Solid Set Water Application Uniformity Test");
    EXPECT_EQ(box.stepsBeforeShowing, box.steps.size());
}

TEST_F(ReportBuilderTest, TheCenterPivotsColoursEndWithTheRunsThatWereEntered) {
    OpenPivot();
    BuildPivot();
    const ColorRunTable& runs = builder.ColorRuns();
    ASSERT_GT(runs.ColorRunCount, 1);
    std::vector<std::string> expected;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(runs.ColorRunCount); ++i) {
        expected.push_back("select " + std::to_string(runs.ColorRunStart[i]) + "+" +
                           std::to_string(runs.ColorRunLength[i]));
        expected.emplace_back(std::array{"", "color 255,0,0", "color 0,0,255",
                                         "color 0,255,0"}[static_cast<std::size_t>(runs.ColorRunCode[i])]);
    }
    expected.emplace_back("select 0+0");
    EXPECT_EQ((std::vector<std::string>(box.steps.begin() + 14, box.steps.end())), expected);
}

TEST_F(ReportBuilderTest, TheSolidSetsColoursRunToTheTablesEnd) {
    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    const auto selections =
        std::ranges::count_if(box.steps, [](const std::string& step) { return step.starts_with("select"); });
    EXPECT_EQ(selections, 1 + 300 + 1);
    EXPECT_EQ(std::ranges::count(box.steps, "color 255,0,0"), 4);
    EXPECT_EQ(std::ranges::count(box.steps, "color 0,0,255"), 3);
    EXPECT_EQ(box.steps.back(), "select 0+0");
}

TEST_F(ReportBuilderTest, TheMarksAreColouredInTheDocumentToTheCharacter) {
    Expect1997Warnings();
    OpenSolid("solid-set-1997.ssd");
    BuildSolid();
    std::vector<std::u32string> red;
    for (const Paragraph& paragraph : box.Document().paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            EXPECT_EQ(run.format.font, "Courier New");
            EXPECT_EQ(run.format.halfPoints, 18);
            if (run.format.color == Color{255, 0, 0}) {
                red.push_back(run.text);
            }
        }
    }
    EXPECT_EQ(red, (std::vector<std::u32string>{U"0.38", U"0.26", U"0.27", U"0.36"}));
}

TEST_F(ReportBuilderTest, TheTableIsClearedAtEveryBuild) {
    OpenPivot();
    BuildPivot();
    Pivot().ClientName = "";
    messageBox.Expect({"You Have Errors That Will Prevent Report Creation.\r\n\r\n"
                       "You Should Enter the Client Name.\r\n\r\n\r\nPlease Correct Entries.",
                       "Errors in Data", Buttons::Ok, Icon::Critical});
    BuildPivot();
    EXPECT_EQ(builder.ColorRuns().ColorRunCount, 0);
    EXPECT_EQ(RunsText(builder.ColorRuns(), Text()), "");
}

TEST_F(ReportBuilderTest, CommentsKeepTheirPadding) {
    OpenPivot();
    Pivot().OtherComments = "  Two blanks stay.";
    BuildPivot();
    EXPECT_TRUE(Has("Other Comments / Recomendations:\r\n  Two blanks stay." + std::string(1982, ' ') +
                    "\r\n\r\n" + RuleLine()));
}

TEST_F(ReportBuilderTest, ErrorsInTheDataLeaveOneSentenceAndNothingIsCalculatedOrColoured) {
    OpenPivot();
    Pivot().ClientName = "";
    OpenSolid("solid-set-1997.ssd");
    Solid().ClientName = "";
    for (int i = 7; i <= 10; ++i) {
        Solid().Gauges[i].Volume = 100.0F;
    }
    for (int kind = 0; kind < 2; ++kind) {
        messageBox.Expect({"You Have Errors That Will Prevent Report Creation.\r\n\r\n"
                           "You Should Enter the Client Name.\r\n\r\n\r\nPlease Correct Entries.",
                           "Errors in Data", Buttons::Ok, Icon::Critical});
    }
    BuildPivot();
    EXPECT_EQ(box.steps, (std::vector<std::string>{"set Errors in data file - report not created."}));
    BuildSolid();
    EXPECT_EQ(Text(), "Errors in data file - report not created.");
    EXPECT_EQ(box.steps.size(), 2U);
    EXPECT_EQ(PivotResults().CupCount, 0);
    EXPECT_EQ(SolidResults().SolidSetCupCount, 0);
}

TEST_F(ReportBuilderTest, WarningsDoNotStopTheReport) {
    OpenPivot();
    Pivot().PercentTimer = "";
    ExpectWarnings("The distance to the last tower;travel speed of the last tower; or percentage timer "
                   "setting has not been entered. Without this information an application chart ( "
                   "percentage timer chart) can not be generated. \r\n\r\n"
                   "In order to calculate the GPM flow rate, the items required to compute the acreage and "
                   "timer chart must be entered.\r\n\r\n"
                   "In order to calculate the Water Application Efficiency data required to calculate the "
                   "GPM flow rate and either estimated or measured flow rate must be entered.\r\n\r\n");
    BuildPivot();
    EXPECT_TRUE(Has("Data and Graph Summary"));
    EXPECT_FALSE(Has("System Timer Setting"));
    EXPECT_FALSE(Has("Calculated Flow Rate"));
    EXPECT_FALSE(Has("Water Application Efficiency"));
    EXPECT_FALSE(Has("Percent Timer Analysis"));
}

TEST_F(ReportBuilderTest, AnErrorThatTheCalculationTrapsLeavesAReportOfWhatStands) {
    OpenPivot();
    for (int i = 1; i <= 56; ++i) {
        Pivot().Gauges[i].Footage = 0.0F;
    }
    messageBox.Expect(GenerationErrorMessage(6, "Overflow"));
    BuildPivot();
    EXPECT_TRUE(Has("Christiansen Method       CU = 88%\r\n"));
    EXPECT_TRUE(Has("Heermann and Hein Method  CU = 00%\r\n"));
    EXPECT_FALSE(Has("Irrigated Acres"));
    EXPECT_TRUE(Has("    0   0.56  |____"));
}

TEST_F(ReportBuilderTest, ADurationThatIsNoNumberLeavesASolidSetReportOfWhatStands) {
    OpenSolid("solid-set-1997.ssd");
    Solid().Duration = "abc";
    Expect1997Warnings();
    messageBox.Expect(GenerationErrorMessage(13, "Type mismatch"));
    BuildSolid();
    EXPECT_TRUE(Has("Application Rate = NOT COMPUTED\r\n\r\n"));
    EXPECT_TRUE(Has("Low Quarter Distribution  CU = 55%\r\n"));
}

TEST_F(ReportBuilderTest, TheCenterPivotBuildPassesErrorsOn) {
    OpenPivot();
    Pivot().PercentTimer = "forty";
    ExpectRunTimeError(ErrorNumber::TypeMismatch, [this] { BuildPivot(); });
    for (int i = 1; i <= 300; ++i) {
        Pivot().Gauges[i].Volume = 100.0F;
    }
    ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [this] { BuildPivot(); });
}

// Answers OK, and notes the report behind the message.
class LookingMessageBox : public MessageBoxService {
public:
    explicit LookingMessageBox(const RichTextBox& ofReport) : report(ofReport) {}

    std::string reportBehind;

    Reply Show(const Message& message) override {
        reportBehind = message.title + ": " + report.Text();
        return Reply::Ok;
    }

private:
    const RichTextBox& report;
};

TEST_F(ReportBuilderTest, TheTextIsEmptyBeforeTheSolidSetBuildShowsItsError) {
    OpenSolid("solid-set-1997.ssd");
    Expect1997Warnings();
    BuildSolid();
    ASSERT_FALSE(Text().empty());
    LookingMessageBox looking(box);
    UsePlatform({&looking, &beeper, &clock});
    Solid().NumberX = "";
    BuildSolid();
    EXPECT_EQ(looking.reportBehind, "Error: ");
}

TEST_F(ReportBuilderTest, TheSolidSetBuildTrapsErrorsAndEmptiesTheText) {
    OpenSolid("solid-set-1997.ssd");
    Expect1997Warnings();
    BuildSolid();
    ASSERT_FALSE(Text().empty());
    Solid().NumberX = "";
    messageBox.Expect(GenerationErrorMessage(13, "Type mismatch"));
    BuildSolid();
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(Program().messageText, GenerationErrorMessage(13, "Type mismatch").text);
    EXPECT_EQ(Program().messageReply, Reply::Ok);
    for (int i = 1; i <= 300; ++i) {
        Solid().Gauges[i].Volume = 100.0F;
    }
    messageBox.Expect(GenerationErrorMessage(9, "Subscript out of range"));
    BuildSolid();
    EXPECT_EQ(Text(), "");
}

} // namespace

} // namespace orvel
