// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Messages.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <cerrno>

namespace orvel {
namespace {

class MessagesTest : public testing::LogicTest {};

TEST_F(MessagesTest, KeepsTheTextAndTheReply) {
    const Message question{"One line\rand another?", "A Title", Buttons::YesNo, Icon::Question};
    messageBox.Expect(question, Reply::No);
    EXPECT_EQ(ShowKeptMessage(question), Reply::No);
    EXPECT_EQ(Program().messageText, "One line\rand another?");
    EXPECT_EQ(Program().messageReply, Reply::No);
    EXPECT_FALSE(Program().shownError);
}

TEST_F(MessagesTest, ShowsARunTimeErrorOnFourLines) {
    struct Case {
        ErrorNumber number;
        const char* lines;
    };

    constexpr std::array<Case, 4> kCases = {{
        {ErrorNumber::Overflow, "Error Number: 6\rError Description: Overflow\r"},
        {ErrorNumber::SubscriptOutOfRange, "Error Number: 9\rError Description: Subscript out of range\r"},
        {ErrorNumber::DivisionByZero, "Error Number: 11\rError Description: Division by zero\r"},
        {ErrorNumber::TypeMismatch, "Error Number: 13\rError Description: Type mismatch\r"},
    }};
    for (const Case& one : kCases) {
        const std::string text = std::string{"Sorry, an error occurred generating report...\r"} + one.lines +
                                 "Error Source: ORVEL\r";
        messageBox.Expect({text, "Error", Buttons::Ok, Icon::Critical});
        ShowGenerationError(RunTimeError(one.number));
        EXPECT_EQ(Program().messageText, text);
        EXPECT_EQ(Program().messageReply, Reply::Ok);
        ASSERT_TRUE(Program().shownError);
        EXPECT_EQ(Program().shownError->Number(), static_cast<int>(one.number));
    }
}

TEST_F(MessagesTest, TellsTheUserTheDescriptionOfAFileErrorAndNotItsDetail) {
    messageBox.Expect(testing::GenerationErrorMessage(70, "Permission denied"));
    ShowGenerationError(FileError("cannot open", EACCES));
    ASSERT_TRUE(Program().shownError);
    EXPECT_EQ(Program().shownError->Number(), 70);
}

} // namespace
} // namespace orvel
