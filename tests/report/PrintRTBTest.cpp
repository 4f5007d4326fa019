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
    printer.offsetY = 75;
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.page, (TwipsRect{0, 0, 12240 - 720, 15840 - 360}));
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1080, 1260, 10800 - 360, 14400 - 180}));
    Said();
}

TEST_F(PrintRTB, AnOffsetIsRoundedToWholeTwips) {
    box.SetText("text");
    printer.offsetX = 1; // 2.4
    printer.offsetY = 4; // 9.6
    PrintRichText(box);
    EXPECT_EQ(box.lastRange.drawing, (TwipsRect{1438, 1430, 10798, 14390}));
    Said();
}

TEST_F(PrintRTB, APaperThatTakesNoLineIsAnError) {
    box.SetText("text");
    box.pageEnds = {0};
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { PrintRichText(box); });
    EXPECT_EQ(Said(), (Lines{"blank", "twips", "draw from 0 to -1 on page 1"}));
}

TEST_F(PrintRTB, ErrorsOfThePrinterAreNotTrapped) {
    box.SetText("text");
    printer.blankError = ErrorNumber::DeviceIoError;
    ExpectRunTimeError(ErrorNumber::DeviceIoError, [this] { PrintRichText(box); });
    EXPECT_EQ(Said(), (Lines{"blank"}));
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
