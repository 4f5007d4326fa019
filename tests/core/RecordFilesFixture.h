// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>

namespace orvel {

// A program directory, in which there are no settings yet.
class RecordFiles : public testing::LogicTest {
protected:
    RecordFiles() { Program().programDirectory = folder.Path(); }

    testing::TemporaryFolder folder;
    std::filesystem::path settingsFile = folder / "user.usr";
    std::filesystem::path soilFile = folder / "soil.dat";
};

} // namespace orvel
