// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/SafeFile.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel {

// A folder in which files are being written, or were.
class TemporaryFiles : public ::testing::Test {
protected:
    using Names = std::vector<std::string>;

    // Saves, which must leave just these files.
    void ExpectLeftBySave(Names names) {
        ReplaceFile(folder / "file", "new", Flush::Lazy);
        names.emplace_back("file");
        std::ranges::sort(names);
        EXPECT_EQ(folder.Names(), names);
    }

    testing::TemporaryFolder folder;
};

} // namespace orvel
