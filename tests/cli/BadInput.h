// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordFiles.h"
#include "tests/cli/Program.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>

namespace orvel::testing {

inline const std::string kPivot = Example("pivot-1978.cpd");
inline constexpr const char* kNow = "2026-07-04 09:05:03";

// The example with one change, in a folder of the test's own.
class BadInput : public ::testing::Test {
protected:
    BadInput() : test(ReadTest<CenterPivotTest>(kPivot)) {}

    std::string Write(const std::string& name) {
        WriteTest(folder / name, test);
        return folder / name;
    }

    static void ExpectOneLine(const RunResult& run, int status, const std::string& line) {
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "orvel-cli: " + line + "\n");
    }

    TemporaryFolder folder;
    CenterPivotTest test;
};

} // namespace orvel::testing
