// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"

#include <gtest/gtest.h>

namespace orvel::testing {

inline void ExpectInvariant(const NumberLocale& locale) {
    EXPECT_EQ(locale.decimalSeparator, '.');
    EXPECT_EQ(locale.groupSeparator, ',');
    EXPECT_EQ(locale.grouping, "\3");
}

} // namespace orvel::testing
