// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Services.h"

#include "cli/ExitStatus.h"
#include "tests/support/Environment.h"
#include "tests/support/LogicTest.h"

#include <gtest/gtest.h>

namespace orvel::cli {

namespace {

// An empty one counts as unset.
void SetEpoch(const char* epoch) {
    testing::SetInEnvironment("SOURCE_DATE_EPOCH", epoch);
}

class CommandLineServices : public orvel::testing::LogicTest {
protected:
    ~CommandLineServices() override { SetEpoch(""); }
};

TEST_F(CommandLineServices, MessageBlockHasTitleTextAndAnEmptyLine) {
    EXPECT_EQ(MessageBlock({"One line", "Title", Buttons::Ok, Icon::None}), "[Title]\nOne line\n\n");
}

TEST_F(CommandLineServices, MessageBlockTurnsEveryLineEndIntoLf) {
    EXPECT_EQ(MessageBlock({"a\rb\r\nc\r", "T", Buttons::Ok, Icon::None}), "[T]\na\nb\nc\n\n");
    EXPECT_EQ(MessageBlock({"a\r\n\r\nb", "T", Buttons::Ok, Icon::None}), "[T]\na\n\nb\n\n");
}

TEST_F(CommandLineServices, MessagesAreUtf8OutsideTheLogic) {
    EXPECT_EQ(MessageBlock({"<23\xB0", "T", Buttons::Ok, Icon::None}), "[T]\n<23\xC2\xB0\n\n");
    EXPECT_EQ(MessagesJson({{"<23\xB0", "T", Buttons::Ok, Icon::None}})[0]["text"], "<23\xC2\xB0");
}

TEST_F(CommandLineServices, MessagesInJsonKeepTheirLineEndsAndNameButtonsAndIcon) {
    const Json json = MessagesJson({{"a\rb\r\n", "First", Buttons::Ok, Icon::Critical},
                                    {"", "", Buttons::YesNo, Icon::Question},
                                    {"", "", Buttons::YesNoCancel, Icon::Information},
                                    {"", "", Buttons::Ok, Icon::Warning},
                                    {"", "", Buttons::Ok, Icon::None}});
    EXPECT_EQ(json[0].dump(), R"({"title":"First","text":"a\rb\r\n","buttons":"OK","icon":"critical"})");
    EXPECT_EQ(json[1].dump(), R"({"title":"","text":"","buttons":"YesNo","icon":"question"})");
    EXPECT_EQ(json[2].dump(), R"({"title":"","text":"","buttons":"YesNoCancel","icon":"information"})");
    EXPECT_EQ(json[3]["icon"], "warning");
    EXPECT_EQ(json[4]["icon"], "none");
}

TEST_F(CommandLineServices, DateAndTimeAreReadInOneFormOnly) {
    const auto moment = ParseDateTime("2024-02-29 23:59:58");
    ASSERT_TRUE(moment);
    EXPECT_EQ(moment->year, 2024);
    EXPECT_EQ(moment->month, 2);
    EXPECT_EQ(moment->day, 29);
    EXPECT_EQ(moment->hour, 23);
    EXPECT_EQ(moment->minute, 59);
    EXPECT_EQ(moment->second, 58);
    EXPECT_TRUE(ParseDateTime("0001-01-01 00:00:00"));
    for (const char* text :
         {"", "2023-02-29 00:00:00", "2024-13-01 00:00:00", "2024-01-00 00:00:00", "2024-01-01 24:00:00",
          "2024-01-01 00:60:00", "2024-01-01 00:00:60", "2024-01-01T00:00:00", "2024-01-01 00:00:0",
          "2024-01-01 00:00:000", "0000-01-01 00:00:00", "2024-1-01 000:00:00", "+024-01-01 00:00:00"}) {
        EXPECT_FALSE(ParseDateTime(text)) << text;
    }
}

TEST_F(CommandLineServices, ClockTakesTheGivenTimeFirst) {
    SetEpoch("0");
    EXPECT_EQ(CommandClock(DateTime{2001, 2, 3, 4, 5, 6}).Now().year, 2001);
}

TEST_F(CommandLineServices, ClockTakesSourceDateEpochInUtc) {
    SetEpoch("951827696");
    const DateTime moment = CommandClock(std::nullopt).Now();
    EXPECT_EQ(moment.year, 2000);
    EXPECT_EQ(moment.month, 2);
    EXPECT_EQ(moment.day, 29);
    EXPECT_EQ(moment.hour, 12);
    EXPECT_EQ(moment.minute, 34);
    EXPECT_EQ(moment.second, 56);
}

TEST_F(CommandLineServices, ClockRefusesAnEpochThatIsNoNumberOfSeconds) {
    for (const char* epoch : {"soon", " ", "12x", "-1", "253402300800", "99999999999999999999"}) {
        SetEpoch(epoch);
        EXPECT_THROW((void)CommandClock(std::nullopt).Now(), CommandError) << epoch;
    }
}

TEST_F(CommandLineServices, ClockTakesAnEmptyEpochForNone) {
    SetEpoch("");
    EXPECT_GE(CommandClock(std::nullopt).Now().year, 2026);
}

TEST_F(CommandLineServices, ClockElseTellsTheLocalTime) {
    EXPECT_GE(CommandClock(std::nullopt).Now().year, 2026);
}

} // namespace

} // namespace orvel::cli
