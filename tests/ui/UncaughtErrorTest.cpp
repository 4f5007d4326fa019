// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/UncaughtError.h"

#include "tests/support/WindowTest.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace orvel::ui {

namespace {

// Prints the box, since the process that shows it ends.
class PrintingMessageBox : public MessageBoxService {
public:
    Reply Show(const Message& message) override {
        (void)std::fputs(testing::Surroundings::Line(message).c_str(), stderr);
        return Reply::Ok;
    }
};

TEST(UncaughtErrorDeathTest, AnErrorThatNobodyTrappedIsShownAndEndsTheProgram) {
    PrintingMessageBox box;
    UsePlatform({.messageBox = &box});
    EXPECT_EXIT(ui::Run([] { Raise(ErrorNumber::DiskFull); }), ::testing::ExitedWithCode(1),
                "^box \\[ORVEL\\] Run-time error '61':\\|\\|Disk full \\(Ok, Critical\\)$");
    UsePlatform({});
}

TEST(UncaughtError, AnEventWithoutAnErrorJustRuns) {
    bool hasRun = false;
    ui::Run([&] { hasRun = true; });
    EXPECT_TRUE(hasRun);
}

} // namespace

} // namespace orvel::ui
