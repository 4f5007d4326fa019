// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramState.h"

#include "core/RecordLayout.h"

#include <gtest/gtest.h>

namespace orvel {
namespace {

void ExpectProgramStart() {
    const ProgramState& program = Program();
    for (const CenterPivotTest& test = program.centerPivotTest; const Field& field : kCenterPivotFields) {
        const std::byte empty = field.kind == FieldKind::Text ? std::byte{' '} : std::byte{0};
        for (const std::byte byte : FieldBytes(test, field)) {
            ASSERT_EQ(byte, empty) << field.name;
        }
    }
    EXPECT_TRUE(program.solidSetTest.ClientName.IsBlank());
    EXPECT_TRUE(program.userSettings.DefaultDirectory.IsBlank());
    EXPECT_TRUE(program.soilIntakeTable[1].SoilName.IsBlank());
    EXPECT_EQ(program.testKind, "centerPivot");
    EXPECT_EQ(program.centerPivotFile, "");
    EXPECT_EQ(program.solidSetFile, "");
    EXPECT_EQ(program.programDirectory, "");
    EXPECT_EQ(program.messageText, "");
    EXPECT_EQ(program.messageReply, Reply::None);
    EXPECT_FALSE(program.shownError);
}

TEST(ProgramStateTest, ComesBackToProgramStart) {
    ResetProgram();
    ExpectProgramStart();
    ProgramState& program = Program();
    program.centerPivotTest.ClientName = "Client";
    program.centerPivotTest.Gauges[300].Spare = 1.0F;
    program.solidSetTest.ClientName = "Client";
    program.userSettings.DefaultDirectory = "/tests";
    program.soilIntakeTable[1].SoilName = "Gravel";
    program.testKind = kSolidSet;
    program.centerPivotFile = "a.cpd";
    program.solidSetFile = "a.ssd";
    program.programDirectory = "/program";
    program.messageText = "Text";
    program.messageReply = Reply::Yes;
    program.shownError = RunTimeError(ErrorNumber::Overflow);
    EXPECT_EQ(Program().testKind, "solidSet") << "one state for the whole run";
    ResetProgram();
    ExpectProgramStart();
}

TEST(ProgramStateTest, SpellsTheKindsOfTest) {
    EXPECT_STREQ(kCenterPivot, "centerPivot");
    EXPECT_STREQ(kSolidSet, "solidSet");
}

} // namespace
} // namespace orvel
