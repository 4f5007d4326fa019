// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"
#include "core/ProgramState.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace orvel::testing {

// The line between two sections of a report.
inline const std::string kRule(80, '=');
inline const std::string kRuleLine = kRule + "\r\n";

// Numbers as German writes them: "," before the decimals, "." between thousands.
[[nodiscard]] NumberLocale GermanNumbers();

// The message box that a trapped run-time error shows.
[[nodiscard]] Message GenerationErrorMessage(int number, const std::string& description);

// Runs a test of the logic at program start: blank records, Windows-1252, invariant numbers, strict fakes.
class LogicTest : public ::testing::Test {
protected:
    LogicTest();
    ~LogicTest() override;

    // Runs a calculation, which must show that box and keep its text, or show none.
    void RunExpecting(void (*calculate)(), const std::optional<Message>& box);

    FakeMessageBox messageBox;
    FakeBeeper beeper;
    FakeClock clock;
};

// Expects a statement to raise the run-time error of that number.
template <class Statement>
void ExpectRunTimeError(ErrorNumber number, Statement statement) {
    try {
        statement();
        ADD_FAILURE() << "no run-time error " << static_cast<int>(number);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), static_cast<int>(number)) << error.what();
    }
}

} // namespace orvel::testing
