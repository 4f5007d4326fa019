// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataEntry.h"

#include "core/ProgramState.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

using testing::Lines;
using testing::TemporaryFolder;

constexpr const char* kRefusal =
    "box [No Data File Open] Please create a new file or open an existing file first (Ok)";

class DataEntry : public testing::WindowTest {
protected:
    TemporaryFolder folder;
};

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

TEST_F(DataEntry, AnOpenTestIsEditedInTheWindowOfItsKind) {
    testing::PutContents(folder / "a.cpd", "");
    Program().centerPivotFile = folder / "a.cpd";
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{"show frmCenterPivotData"}));

    testing::PutContents(folder / "a.ssd", "");
    Program().testKind = kSolidSet;
    Program().centerPivotFile.clear();
    Program().solidSetFile = folder / "a.ssd";
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{"show frmSolidSetData"}));
}

TEST_F(DataEntry, WithoutAFileThereIsNothingToEdit) {
    for (const char* kind : {kCenterPivot, kSolidSet}) {
        Program().testKind = kind;
        EditOpenTest(surroundings);
        EXPECT_EQ(Said(), (Lines{kRefusal})) << kind;
    }
}

TEST_F(DataEntry, AFileThatHasVanishedIsNotEdited) {
    Program().centerPivotFile = folder / "gone.cpd";
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{kRefusal}));
    Program().centerPivotFile = folder.Path();
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{kRefusal})) << "a folder is no test file";
}

TEST_F(DataEntry, TheOpenFileOfTheOtherKindDoesNotCount) {
    testing::PutContents(folder / "a.cpd", "");
    Program().centerPivotFile = folder / "a.cpd";
    Program().testKind = kSolidSet;
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{kRefusal}));

    testing::PutContents(folder / "a.ssd", "");
    Program().centerPivotFile.clear();
    Program().solidSetFile = folder / "a.ssd";
    Program().testKind = kCenterPivot;
    EditOpenTest(surroundings);
    EXPECT_EQ(Said(), (Lines{kRefusal}));
}

} // namespace

} // namespace orvel
