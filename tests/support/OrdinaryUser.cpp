// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace orvel::testing {

namespace fs = std::filesystem;

void GiveToOrdinaryUser(const fs::path& folder) {
    if (::geteuid() != 0) {
        return;
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        EXPECT_EQ(::lchown(entry.path().c_str(), kOrdinaryUser, kOrdinaryUser), 0);
    }
    EXPECT_EQ(::lchown(folder.c_str(), kOrdinaryUser, kOrdinaryUser), 0);
}

AsOrdinaryUser::AsOrdinaryUser(const fs::path& folder) {
    if (::geteuid() != 0) {
        return;
    }
    GiveToOrdinaryUser(folder);
    EXPECT_EQ(::seteuid(kOrdinaryUser), 0);
    hasSwitched = true;
}

AsOrdinaryUser::~AsOrdinaryUser() {
    if (hasSwitched) {
        EXPECT_EQ(::seteuid(0), 0);
    }
}

} // namespace orvel::testing
