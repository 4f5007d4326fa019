// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PrinterSettings.h"

#include "tests/report/PrintableBox.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::Lines;

class PrinterSettingsTest : public testing::PrintingTest {};

TEST_F(PrinterSettingsTest, SetBackGivesBackWhatSaveThemFound) {
    printer.orientation = Orientation::Landscape;
    printer.copies = 4;
    PrinterSettings("SaveThem");
    EXPECT_EQ(Said(), Lines{});
    printer.orientation = Orientation::Portrait;
    printer.copies = 1;
    PrinterSettings("SetBack");
    EXPECT_EQ(Said(), (Lines{"orientation 2", "printer's copies 4"}));
}

TEST_F(PrinterSettingsTest, TheLastSavedSettingsStayForEverySetBack) {
    printer.copies = 2;
    PrinterSettings("SaveThem");
    printer.orientation = Orientation::Landscape;
    printer.copies = 5;
    PrinterSettings("SaveThem");
    printer.copies = 1;
    PrinterSettings("SetBack");
    PrinterSettings("SetBack");
    EXPECT_EQ(Said(), (Lines{"orientation 2", "printer's copies 5", "orientation 2", "printer's copies 5"}));
}

TEST_F(PrinterSettingsTest, AnotherWordLeavesWhatWasSaved) {
    printer.copies = 2;
    PrinterSettings("SaveThem");
    printer.copies = 3;
    PrinterSettings("savethem");
    EXPECT_EQ(Program().savedPrinterSettings->copies, 2);
    EXPECT_EQ(Program().savedPrinterSettings->orientation, Orientation::Portrait);
    EXPECT_EQ(printer.copies, 3);
}

TEST_F(PrinterSettingsTest, NothingSavedIsNothingSetBack) {
    PrinterSettings("SetBack");
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(PrinterSettingsTest, OtherWordsDoNothing) {
    for (const char* word : {"savethem", "setback", ""}) {
        PrinterSettings(word);
    }
    PrinterSettings("SetBack");
    EXPECT_EQ(Said(), Lines{});
}

} // namespace

} // namespace orvel
