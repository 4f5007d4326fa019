// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "centerpivot/CenterPivot.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/TestFile.h"
#include "solidset/SolidSet.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"

#include <string>

namespace orvel::testing {

// The part of a fixture that opens examples, for a user who has filled in everything. The results are those
// of program start before and afterwards.
class OpenedExamples {
public:
    OpenedExamples() {
        ResetCenterPivot();
        ResetSolidSet();
        Program().userSettings = CompleteUserSettings();
    }
    ~OpenedExamples() {
        ResetCenterPivot();
        ResetSolidSet();
    }
    OpenedExamples(const OpenedExamples&) = delete;
    OpenedExamples& operator=(const OpenedExamples&) = delete;

    static void OpenPivot() {
        Program().testKind = kCenterPivot;
        Program().centerPivotFile = Example("pivot-1978.cpd");
        Program().centerPivotTest = ReadTest<CenterPivotTest>(Program().centerPivotFile);
    }

    static void OpenSolid(const std::string& name = "solid-set-triangle.ssd") {
        Program().testKind = kSolidSet;
        Program().solidSetFile = Example(name);
        Program().solidSetTest = ReadTest<SolidSetTest>(Program().solidSetFile);
    }
};

} // namespace orvel::testing
