// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/LogicTest.h"

#include "core/CodePage.h"

namespace orvel::testing {

NumberLocale GermanNumbers() {
    return {',', '.', "\3"};
}

Message GenerationErrorMessage(int number, const std::string& description) {
    return {"Sorry, an error occurred generating report...\rError Number: " + std::to_string(number) +
                "\rError Description: " + description + "\rError Source: ORVEL\r",
            "Error", Buttons::Ok, Icon::Critical};
}

LogicTest::LogicTest() {
    ResetProgram();
    UseCodePage(CodePage::Windows1252());
    UseNumberLocale(InvariantNumberLocale());
    UsePlatform({&messageBox, &beeper, &clock});
}

LogicTest::~LogicTest() {
    UsePlatform({});
    UseNumberLocale(InvariantNumberLocale());
    UseCodePage(CodePage::Windows1252());
}

void LogicTest::RunExpecting(void (*calculate)(), const std::optional<Message>& box) {
    Program().messageText.clear();
    if (box) {
        messageBox.Expect(*box);
    }
    calculate();
    EXPECT_EQ(Program().messageText, box ? box->text : "");
}

} // namespace orvel::testing
