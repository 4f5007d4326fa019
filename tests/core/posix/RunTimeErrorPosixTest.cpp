// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RunTimeError.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace orvel {

namespace {

TEST(RunTimeErrorOnPosix, ASpentQuotaIsAFullDisk) {
    EXPECT_EQ(FileError("cannot write", EDQUOT).Number(), static_cast<int>(ErrorNumber::DiskFull));
}

} // namespace

} // namespace orvel
