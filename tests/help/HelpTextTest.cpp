// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "help/HelpText.h"

#include "core/Unicode.h"
#include "report/RtfReader.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace orvel::help {

namespace {

using testing::Contents;
using testing::SameText;

// Each run with its marks: B bold, I italic, F formula.
std::string Marked(const Paragraph& paragraph) {
    std::string text;
    for (const TextRun& run : paragraph.runs) {
        text += "[";
        text += run.format.isBold ? "B" : "";
        text += run.format.isItalic ? "I" : "";
        text += run.format.font == "Courier New" ? "F" : "";
        text += "|" + Utf8Of(run.text) + "]";
    }
    return text;
}

std::vector<std::string> Shown(std::string_view source) {
    std::vector<std::string> lines;
    for (const Paragraph& paragraph : HelpDocument(source).paragraphs) {
        lines.push_back(Marked(paragraph));
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(HelpText, TitleSectionsEntriesAndParagraphsAreParagraphsWithGaps) {
    EXPECT_EQ(Shown("# Title\n\nOne\ntwo.\n\n## Section\n\n- entry,\n  longer\n- another\n"),
              (Lines{"[B|Title]", "[| ]", "[|One two.]", "[| ]", "[B|Section]", "[| ]",
                     "[|\u2022 entry, longer]", "[| ]", "[|\u2022 another]"}));
}

TEST(HelpText, MarksChangeTheFormat) {
    EXPECT_EQ(Shown("a **b** *c* `D x D` ***e***"), (Lines{"[|a ][B|b][| ][I|c][| ][F|D x D][| ][BI|e]"}));
}

TEST(HelpText, ABackslashTakesTheMeaningFromAMark) {
    EXPECT_EQ(Shown(R"("\*" marks \`it\`)"), (Lines{R"([|"*" marks `it`])"}));
}

TEST(HelpText, TheLinesOfAParagraphAreJoinedWithTheirMarks) {
    EXPECT_EQ(Shown("**Gauge\nSpacing** here"), (Lines{"[B|Gauge Spacing][| here]"}));
}

TEST(HelpText, PicturesAreForTheManualOnly) {
    EXPECT_EQ(Shown("a\n\n![A window](screenshots/a.png)\n\nb"), (Lines{"[|a]", "[| ]", "[|b]"}));
    EXPECT_NE(ManualPage("# T\n\n![A window](screenshots/a.png)\n").find("![A window](screenshots/a.png)"),
              std::string::npos);
}

TEST(HelpText, HeadingsAreLargerAndInColour) {
    const RichDocument document = HelpDocument("# Title\n\n## Section\n\ntext");
    const CharacterFormat& title = document.paragraphs[0].runs[0].format;
    const CharacterFormat& section = document.paragraphs[2].runs[0].format;
    const CharacterFormat& text = document.paragraphs[4].runs[0].format;
    EXPECT_GT(title.halfPoints, section.halfPoints);
    EXPECT_GT(section.halfPoints, text.halfPoints);
    EXPECT_TRUE(title.color && section.color && !text.color);
}

TEST(HelpText, ASectionIsNearerToItsTextThanToWhatIsAboveIt) {
    const RichDocument document = HelpDocument("text\n\n## Section\n\ntext\n\ntext\n\n- entry\n- entry");
    const auto gap = [&](std::size_t paragraph) {
        return document.paragraphs.at(paragraph).runs.at(0).format.halfPoints;
    };
    const int aboveSection = gap(1);
    const int belowSection = gap(3);
    const int betweenTexts = gap(5);
    const int aboveList = gap(7);
    const int withinList = gap(9);
    EXPECT_GT(aboveSection, betweenTexts);
    EXPECT_GT(betweenTexts, belowSection);
    EXPECT_EQ(aboveList, betweenTexts);
    EXPECT_EQ(withinList, belowSection);
}

TEST(HelpText, AMarkThatNothingEndsIsAnError) {
    for (const char* source : {"a **b", "a *b", "a `b", "- a **b\n- c**"}) {
        EXPECT_THROW((void)HelpDocument(source), std::invalid_argument) << source;
    }
}

TEST(HelpText, TheManualListsItsSectionsBelowTheTitle) {
    EXPECT_TRUE(SameText(ManualPage("# Title\n\nText.\n\n## Where files are\n\nHere.\n"),
                         "# Title\n\n"
                         "The program shows this text, without its pictures, under Instructions.\n\n"
                         "- [Where files are](#where-files-are)\n\n"
                         "Text.\n\n## Where files are\n\nHere.\n"));
}

TEST(HelpText, AManualWithoutATitleIsAnError) {
    EXPECT_THROW((void)ManualPage(""), std::invalid_argument);
    EXPECT_THROW((void)ManualPage("Text.\n"), std::invalid_argument);
}

TEST(HelpText, TheManualAmongTheDocumentsIsMadeFromTheSource) {
    EXPECT_TRUE(
        SameText(Contents(std::string(ORVEL_DOCS) + "/manual.md"), ManualPage(Contents(ORVEL_HELP_SOURCE))))
        << "make it anew: cmake --build --preset dev --target orvel_manual";
}

TEST(HelpText, TheHelpFileIsMadeFromTheSource) {
    const RichDocument document = HelpDocument(Contents(ORVEL_HELP_SOURCE));
    EXPECT_EQ(ReadRtf(Contents(ORVEL_HELP_FILE)), document);
    EXPECT_EQ(PlainText(document).find(U"**"), std::u32string::npos);
    EXPECT_EQ(PlainText(document).find(U'`'), std::u32string::npos);
}

} // namespace

} // namespace orvel::help
