// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataEntry.h"

#include "core/ProgramState.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::Lines;

class DataEntry : public testing::WindowTest {};

TEST_F(DataEntry, EachKindHasItsWindow) {
    Program().testKind = "centerPivot";
    ShowDataWindow(surroundings);
    EXPECT_EQ(Said(), (Lines{"show frmCenterPivotData"}));
    Program().testKind = "solidSet";
    ShowDataWindow(surroundings);
    EXPECT_EQ(Said(), (Lines{"show frmSolidSetData"}));
}

TEST_F(DataEntry, AnyOtherKindHasNone) {
    for (const char* kind : {"", "centerpivot", "CenterPivot", "solidset", "solidSet "}) {
        Program().testKind = kind;
        ShowDataWindow(surroundings);
        EXPECT_EQ(Said(), Lines{}) << kind;
    }
}

TEST_F(DataEntry, AWindowIsShownWithoutAnOpenTest) {
    ShowDataWindow(surroundings);
    EXPECT_EQ(Said(), (Lines{"show frmCenterPivotData"}));
}

} // namespace

} // namespace orvel
