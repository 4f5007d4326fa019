// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <cstddef>
#include <filesystem>
#include <span>

// The files of the four record types. Each holds its records back to back from its first byte, laid out as
// core/RecordLayout.h says:
//
//     *.cpd    = CenterPivotTest (9002 bytes)        user.usr = UserSettings (352 bytes)
//     *.ssd    = SolidSetTest (10930 bytes)          soil.dat = 7 SoilIntakeRow (28 bytes each)
//
// No file is refused for its size or content: what a short file lacks reads as blanks in texts and zero in
// numbers, and what a longer file has behind its records stays when it is saved over. Failures raise
// RunTimeError and leave the old file as it was.
namespace orvel {

// The type of record says the kind of test; the caller decides it, not the file.
template <class Test>
[[nodiscard]] Test ReadTest(const std::filesystem::path& path);
template <class Test>
void WriteTest(const std::filesystem::path& path, const Test& test);

// Reads user.usr or soil.dat as it stands; a missing file gives empty settings or the default soils.
[[nodiscard]] UserSettings ReadUserSettings(const std::filesystem::path& programDirectory);
[[nodiscard]] SoilIntakeTable ReadSoilTable(const std::filesystem::path& programDirectory);

// At program start: reads user.usr of the program directory into the program's settings and writes back what
// was read (kept: at every start); creates it first when it is missing, with the program directory as default
// directory.
void LoadUserSettings();
// At program start: reads soil.dat into the program's table, or creates it with the default soils.
void LoadSoilTable();

void SaveUserSettings(const UserSettings& settings);
void SaveSoilTable();

// The seven soils of a new installation, into rows 1 to 7 of the program's table.
void FillDefaultSoilTable();

} // namespace orvel
