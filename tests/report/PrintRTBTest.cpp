// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PrintRTB.h"

#include "tests/report/PrintableBox.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::Lines;

class PrintRTB : public testing::PrintingTest {};

TEST_F(PrintRTB, ATextOfOnePageIsDrawnOnceAndFreedBehindTheJob) {
    box.SetText("one page");
    PrintRichText(box);
    EXPECT_EQ(Said(), (Lines{"blank", "twips", "draw from 0 to -1 on page 1", "end of document", "free"}));
}

TEST_F(PrintRTB, EveryFurtherPageBeginsWithABlankAndWhereTheLastOneEnded) {
    box.SetText("page 1page 2page 3");
    box.pageEnds = {6, 12};
    PrintRichText(box);
    EXPECT_EQ(Said(), (Lines{"blank", "twips", "draw from 0 to -1 on page 1", "new page", "blank",
                             "draw from 6 to -1 on page 2", "new page", "blank",
                             "draw from 12 to -1 on page 3", "end of document", "free"}));
}

TEST_F(PrintRTB, APageThatEndsWithTheTextIsTheLast) {
    box.SetText("page 1page 2");
    box.pageEnds = {6, 12, 99};
    PrintRichText(box);
    EXPECT_EQ(Said().size(), 8U);
    EXPECT_EQ(box.pageEnds.size(), 1U);
}

TEST_F(PrintRTB, TheMarginsAreAnInchFromThePapersEdges) {
    box.SetText("text");
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 12240, 15840}));
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1440, 1440, 10800, 14400}));

    printer.offsetX = 150; // 0.25 inch
    printer.offsetY = 37;  // 177.6 twips
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 12240 - 720, 15840 - 355}));
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1080, 1440 - 178, 10800 - 360, 14400 - 178}));
    Said();
}

TEST_F(PrintRTB, LengthsAreRoundedToWholeTwips) {
    box.SetText("text");
    printer.offsetX = 1; // 2.4
    printer.offsetY = 2; // 9.6
    printer.width = 11905.5F;
    printer.height = 16837.75F;
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1438, 1430, 10466 - 2, 15398 - 10}));
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 11901, 16819}));

    printer.offsetX = 4; // 9.6
    printer.offsetY = 3; // 14.4
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1430, 1426, 10466 - 10, 15398 - 14}));
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 11886, 16809}));
    Said();
}

TEST_F(PrintRTB, EveryPageIsDrawnInTheSamePlace) {
    box.SetText("page 1page 2");
    box.pageEnds = {6};
    printer.offsetX = 150;
    PrintRichText(box);
    EXPECT_EQ(Said().at(5), "draw from 6 to -1 on page 2");
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1080, 1440, 10440, 14400}));
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 11520, 15840}));
}

TEST_F(PrintRTB, EachPrintIsAJobOfItsOwn) {
    box.SetText("page 1page 2");
    box.pageEnds = {6};
    PrintRichText(box);
    PrintRichText(box);
    const Lines said = Said();
    EXPECT_EQ(said.size(), 13U);
    EXPECT_EQ(said.at(10), "draw from 0 to -1 on page 1");
}

TEST_F(PrintRTB, LineEndsCountForTheEndOfTheText) {
    box.SetText("a\r\nb");
    box.pageEnds = {3, 4};
    PrintRichText(box);
    EXPECT_EQ(Said(), (Lines{"blank", "twips", "draw from 0 to -1 on page 1", "new page", "blank",
                             "draw from 3 to -1 on page 2", "end of document", "free"}));
}

TEST_F(PrintRTB, ABoxThatCannotDrawIsAnError) {
    MemoryRichTextBox letterless;
    letterless.SetText("text");
    ExpectRunTimeError(ErrorNumber::InvalidProcedureCall, [&letterless] { PrintRichText(letterless); });
    EXPECT_EQ(Said(), (Lines{"blank", "twips"}));
}

TEST_F(PrintRTB, APaperThatTakesNoLineIsAnError) {
    box.SetText("text");
    box.pageEnds = {0};
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { PrintRichText(box); });
    EXPECT_EQ(Said(), (Lines{"blank", "twips", "draw from 0 to -1 on page 1", "free"}));
}

TEST_F(PrintRTB, APageThatGoesNoFurtherThanTheLastOneIsAnError) {
    box.SetText("page 1page 2");
    box.pageEnds = {6, 6};
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { PrintRichText(box); });
    const Lines said = Said();
    EXPECT_EQ(Lines(said.end() - 2, said.end()), (Lines{"draw from 6 to -1 on page 2", "free"}));
}

TEST_F(PrintRTB, ErrorsOfThePrinterAreNotTrapped) {
    box.SetText("text");
    printer.blankError = ErrorNumber::DeviceIoError;
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { PrintRichText(box); });
    EXPECT_EQ(Said(), (Lines{"blank", "free"}));

    printer.blankError.reset();
    printer.newPageError = ErrorNumber::DiskFull;
    box.pageEnds = {2};
    ExpectRunTimeError(ErrorNumber::DiskFull, [this] { PrintRichText(box); });
    const Lines said = Said();
    EXPECT_EQ(Lines(said.end() - 2, said.end()), (Lines{"new page", "free"}));
}

TEST_F(PrintRTB, OnlyATextThatIsEmptyIsNotPrinted) {
    EXPECT_FALSE(HasTextToPrint(box));
    EXPECT_EQ(Said(), (Lines{"box [Printing Error] There is no text to print. (Ok)"}));
    for (const char* text : {" ", "\r\n", "text"}) {
        box.SetText(text);
        EXPECT_TRUE(HasTextToPrint(box));
    }
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(PrintRTB, ACommandThatSucceedsDropsAndTellsNothing) {
    RunPrintCommand([this] { surroundings.Note("steps"); });
    EXPECT_EQ(Said(), (Lines{"steps"}));
}

TEST_F(PrintRTB, ACommandThatFailsDropsItsJobAndTells) {
    RunPrintCommand([] { Raise(ErrorNumber::DeviceIoError); });
    EXPECT_EQ(Said(), (Lines{"job dropped", "box [Printing Error] The text could not be printed: Device I/O "
                                            "error. (Ok, Critical)"}));
}

TEST_F(PrintRTB, ACommandThatTheUserCancelsEndsQuietly) {
    RunPrintCommand([] { Raise(ErrorNumber::CancelWasSelected); });
    EXPECT_EQ(Said(), Lines{});
}

} // namespace

} // namespace orvel
