// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "settings/SetDirectory.h"

#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

class DirectoryChoice : public testing::WindowTest {};

TEST_F(DirectoryChoice, IsTheBrowsersFolder) {
    surroundings.paths = {"/some/folder", {}};
    EXPECT_EQ(SetDirectory(), "/some/folder");
    EXPECT_EQ(surroundings.Said(), (testing::Lines{"browse [Please Select Default Directory For Files]"}));
    EXPECT_EQ(SetDirectory(), "");
    surroundings.Said();
}

} // namespace

} // namespace orvel
