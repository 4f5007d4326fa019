// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "entry/RecoveryFile.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orvel {

// The recovery file of "test.cpd" in a folder, and a data folder of the user's.
class RecoveryFileTest : public testing::LogicTest {
protected:
    using Names = std::vector<std::string>;

    // The names in the folder for files that can't be beside their tests.
    [[nodiscard]] Names InUserFolder() const {
        Names names;
        if (std::filesystem::exists(user / "data")) {
            for (const auto& entry : std::filesystem::directory_iterator(user / "data" / "recovery")) {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }

    testing::TemporaryFolder folder;
    testing::TemporaryFolder user;
    RecoveryFile file = [this] {
        Program().userDataFolder = user / "data";
        return RecoveryFile(folder / "test.cpd");
    }();
};

} // namespace orvel
