// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

TEST(Text, RuleLineIsEightyEqualSignsAndALineEnd) {
    EXPECT_EQ(RuleLine(), std::string(80, '=') + "\r\n");
}

} // namespace

} // namespace orvel
