// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Unicode.h"
#include "report/RtfReader.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>

// Rich text as word processors write it, and the text they see in it.
namespace orvel {

namespace {

using testing::Contents;
using testing::TestData;

// Where our text differs from the one beside the file, and why.
struct Difference {
    const char* file;
    const char* theirs;
    const char* ours;
};

constexpr std::array<Difference, 7> kDifferences = {{
    // Footnotes are left out, their marks too.
    {"f1_footnote", "footnote1 and", "footnote and"},
    {"f1_footnote", "one.2 Final", "one. Final"},
    {"f2_footnote", "footnote1 and", "footnote and"},
    {"f2_footnote", "one.2 Final", "one. Final"},
    {"latex2rtf", "1. \u2022", ". \u2022"},
    // Of two blanks each gets a thin one beside it.
    {"latex2rtf", "1\u2006 \u2006 One", "1 One"},
    // The labels of the inner list stand in the file as the outer list's; the circles come from its list
    // table.
    {"h4_lists", "\u25E6 conference \u25E6 williams", "\u2022 conference \u2022 williams"},
}};

// Words with one blank between them.
std::string Words(const std::string& text) {
    std::istringstream stream(text);
    std::string words;
    for (std::string word; stream >> word;) {
        words += (words.empty() ? "" : " ") + word;
    }
    return words;
}

RichDocument Read(const std::string& name) {
    return ReadRtf(Contents(TestData("rtf/" + name + ".rtf")));
}

class RtfFiles : public testing::LogicTest {};

TEST_F(RtfFiles, TheTextIsTheOneThatWordProcessorsSee) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TestData("rtf"))) {
        if (entry.path().extension() != ".rtf") {
            continue;
        }
        ++files;
        const std::string name = entry.path().stem().string();
        constexpr std::size_t kByteOrderMark = 3;
        std::string expected = Words(Contents(TestData("rtf/" + name + ".txt")).substr(kByteOrderMark));
        for (const Difference& difference : kDifferences) {
            if (name == difference.file) {
                const std::size_t place = expected.find(difference.theirs);
                ASSERT_NE(place, std::string::npos) << difference.theirs;
                expected.replace(place, std::string_view(difference.theirs).size(), difference.ours);
            }
        }
        EXPECT_EQ(Words(Utf8Of(PlainText(Read(name)))), expected) << name;
    }
    EXPECT_EQ(files, 15);
}

// The format of the run that holds the text.
CharacterFormat FormatOf(const RichDocument& document, std::u32string_view text) {
    for (const Paragraph& paragraph : document.paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            if (run.text.find(text) != std::u32string::npos) {
                return run.format;
            }
        }
    }
    ADD_FAILURE() << "no run holds " << Utf8Of(text);
    return {};
}

TEST_F(RtfFiles, BoldItalicAndUnderlineAreSeen) {
    const RichDocument document = Read("h2_bolditalic");
    const auto style = [&document](std::u32string_view text) {
        const CharacterFormat format = FormatOf(document, text);
        return std::string(format.isBold ? "b" : "") + (format.isItalic ? "i" : "") +
               (format.isUnderlined ? "u" : "");
    };
    EXPECT_EQ(style(U"Plain"), "");
    EXPECT_EQ(style(U"bold"), "b");
    EXPECT_EQ(style(U"italic"), "i");
    EXPECT_EQ(style(U"under"), "u");
    EXPECT_EQ(style(U"both"), "bi");
    EXPECT_EQ(style(U"Whole bold paragraph"), "b");
    EXPECT_EQ(FormatOf(document, U"Courier run").font, "Liberation Mono");
}

TEST_F(RtfFiles, CellsAreSeparatedByTabsAndRowsByLineEnds) {
    EXPECT_EQ(Utf8Of(PlainText(Read("h5_table"))), "Before.\n"
                                                   "Name\tValue\n"
                                                   "alpha\t1.5\n"
                                                   "beta\t22.75\n"
                                                   "merged cell\n"
                                                   "Between.\n"
                                                   // The cell on the left holds a table of one row.
                                                   "outer\n"
                                                   "in1\tin2\n"
                                                   "\tright\t\n"
                                                   "After.\n");
}

TEST_F(RtfFiles, LabelsOfListsStandBeforeTheirTabs) {
    EXPECT_EQ(Utf8Of(PlainText(Read("h4_lists"))),
              "\u2022\tapple\n\u2022\tpear\n\u2022\tconference\n\u2022\twilliams\n\u2022\tplum\n"
              " 1.\tone\n 2.\ttwo\n a.\ttwo a\n b.\ttwo b\n 3.\tthree\n"
              "After the lists.\n");
}

TEST_F(RtfFiles, FontsAndSizesAreSeen) {
    const RichDocument document = Read("h1_headings");
    const auto font = [&document](std::u32string_view text) {
        const CharacterFormat format = FormatOf(document, text);
        return format.font + " " + std::to_string(format.halfPoints) + (format.isBold ? " bold" : "");
    };
    EXPECT_EQ(font(U"Main title"), "Liberation Serif 48 bold");
    EXPECT_EQ(font(U"Section A"), "Liberation Serif 36 bold");
    EXPECT_EQ(font(U"Sub A.1"), "Liberation Serif 28 bold");
    EXPECT_EQ(font(U"with a line\u2028break inside."), "Liberation Serif 24");
}

TEST_F(RtfFiles, ColoursAndAlignmentsAreSeen) {
    const RichDocument document = Read("h3_colours");
    EXPECT_EQ(FormatOf(document, U"red").color, (Color{255, 0, 0}));
    EXPECT_EQ(FormatOf(document, U"blue").color, (Color{0, 0, 255}));
    EXPECT_EQ(FormatOf(document, U"green").color, (Color{0, 128, 0}));
    EXPECT_EQ(FormatOf(document, U"white on black").color, (Color{255, 255, 255}));
    EXPECT_EQ(FormatOf(document, U"automatic").color, std::nullopt);
    EXPECT_EQ(document.paragraphs.at(0).alignment, Alignment::Left);
    EXPECT_EQ(document.paragraphs.at(1).alignment, Alignment::Center);
    EXPECT_EQ(document.paragraphs.at(2).alignment, Alignment::Right);
    EXPECT_EQ(document.paragraphs.at(3).alignment, Alignment::Left);
}

} // namespace

} // namespace orvel
