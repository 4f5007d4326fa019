// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordFiles.h"

#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "core/SafeFile.h"

#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace orvel {

namespace {

namespace fs = std::filesystem;

struct DefaultSoil {
    const char* name;
    float minIntake;
    float maxIntake;
};

// kept: the equal bounds of "Sand" and "Clay", and "Clay" taking more than "Loamy Clay".
constexpr std::array<DefaultSoil, kSoilRows> kDefaultSoils = {{
    {"Sand", 5.0F, 5.0F},
    {"Loamy Sand", 3.0F, 5.0F},
    {"Sandy Loam", 2.0F, 4.0F},
    {"Loam", 1.5F, 2.25F},
    {"Clay Loam", 1.0F, 1.75F},
    {"Loamy Clay", 0.75F, 1.25F},
    {"Clay", 1.0F, 1.0F},
}};

// kept: always a forward slash, whatever separator the platform prefers.
fs::path SettingsFile(fs::path programDirectory) {
    return programDirectory += "/user.usr";
}

fs::path SoilFile(fs::path programDirectory) {
    return programDirectory += "/soil.dat";
}

bool IsThere(const fs::path& path) {
    return KindOfFile(path) != FileKind::None;
}

// Fills blank records with the bytes that the file has for them.
template <class Record>
void ReadRecords(const fs::path& path, std::span<Record> records) {
    const std::string content = ReadFile(path, records.size_bytes());
    std::memcpy(records.data(), content.data(), content.size());
}

template <class Record>
void WriteRecords(const fs::path& path, std::span<const Record> records) {
    const auto bytes = std::as_bytes(records);
    std::string content(bytes.size(), '\0');
    std::memcpy(content.data(), bytes.data(), bytes.size());
    if (KindOfFile(path) == FileKind::Regular) {
        const std::string old = ReadFile(path);
        if (old.size() > content.size()) {
            content.append(old, content.size());
        }
    }
    ReplaceFile(path, content, Flush::ToDisk);
}

std::span<SoilIntakeRow> UsedRows(SoilIntakeTable& table) {
    return std::span(table).subspan<1>();
}

SoilIntakeTable DefaultSoilTable() {
    SoilIntakeTable table;
    for (std::size_t i = 0; i < kSoilRows; ++i) {
        SoilIntakeRow& row = table[i + 1];
        row.SoilName = kDefaultSoils[i].name;
        row.MinIntake = kDefaultSoils[i].minIntake;
        row.MaxIntake = kDefaultSoils[i].maxIntake;
    }
    return table;
}

} // namespace

template <class Test>
Test ReadTest(const fs::path& path) {
    Test test;
    ReadRecords(path, std::span(&test, 1));
    return test;
}

template <class Test>
void WriteTest(const fs::path& path, const Test& test) {
    WriteRecords(path, std::span(&test, 1));
}

template CenterPivotTest ReadTest<CenterPivotTest>(const fs::path& path);
template SolidSetTest ReadTest<SolidSetTest>(const fs::path& path);
template void WriteTest<CenterPivotTest>(const fs::path& path, const CenterPivotTest& test);
template void WriteTest<SolidSetTest>(const fs::path& path, const SolidSetTest& test);

UserSettings ReadUserSettings(const fs::path& programDirectory) {
    const fs::path path = SettingsFile(programDirectory);
    UserSettings settings;
    if (IsThere(path)) {
        ReadRecords(path, std::span(&settings, 1));
    }
    return settings;
}

SoilIntakeTable ReadSoilTable(const fs::path& programDirectory) {
    const fs::path path = SoilFile(programDirectory);
    if (!IsThere(path)) {
        return DefaultSoilTable();
    }
    SoilIntakeTable table;
    ReadRecords(path, UsedRows(table));
    return table;
}

void LoadUserSettings() {
    ProgramState& program = Program();
    if (!IsThere(SettingsFile(program.programDirectory))) {
        UserSettings fresh;
        fresh.DefaultDirectory = PathText(program.programDirectory);
        SaveUserSettings(fresh);
    }
    program.userSettings = ReadUserSettings(program.programDirectory);
    SaveUserSettings(program.userSettings);
}

void LoadSoilTable() {
    ProgramState& program = Program();
    if (IsThere(SoilFile(program.programDirectory))) {
        program.soilIntakeTable = ReadSoilTable(program.programDirectory);
    } else {
        FillDefaultSoilTable();
        SaveSoilTable();
    }
}

void SaveUserSettings(const UserSettings& settings) {
    WriteRecords(SettingsFile(Program().programDirectory), std::span(&settings, 1));
}

void SaveSoilTable() {
    ProgramState& program = Program();
    WriteRecords<SoilIntakeRow>(SoilFile(program.programDirectory), UsedRows(program.soilIntakeTable));
}

void FillDefaultSoilTable() {
    Program().soilIntakeTable = DefaultSoilTable();
}

} // namespace orvel
