// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/FilePromises.h"

#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/SafeFile.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace orvel::monkey {

namespace {

namespace fs = std::filesystem;

template <class Record>
std::string_view BytesOf(const Record& record, std::size_t skipped = 0) {
    return {reinterpret_cast<const char*>(&record) + skipped, sizeof(record) - skipped};
}

// What the program may have written into a file of that name; nothing for files that are no records.
std::vector<std::string_view> RecordsFor(const fs::path& file) {
    const ProgramState& state = Program();
    const std::string name = file.filename();
    if (name == "user.usr") {
        return {BytesOf(state.userSettings)};
    }
    if (name == "soil.dat") {
        // Its row 0 is not used.
        return {BytesOf(state.soilIntakeTable, sizeof(SoilIntakeRow))};
    }
    if (file.extension() == ".cpd" || file.extension() == ".ssd") {
        // The user may give a test any name.
        return {BytesOf(state.centerPivotTest), BytesOf(state.solidSetTest)};
    }
    return {};
}

std::array<std::int64_t, 4> VersionOf(const fs::path& file) {
    struct stat status {};

    (void)::stat(file.c_str(), &status);
    return {static_cast<std::int64_t>(status.st_ino), status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

// Those come and go.
bool IsRecovery(const fs::path& file) {
    return file.extension().native().starts_with(".recovery");
}

// Whether `now` is the record with what `before` has behind it.
bool IsSaved(std::string_view now, std::string_view before, std::string_view record) {
    const std::string_view tail = before.size() > record.size() ? before.substr(record.size()) : "";
    return now.size() == record.size() + tail.size() && now.starts_with(record) && now.ends_with(tail);
}

} // namespace

FilePromises::FilePromises(fs::path ofTests, fs::path ofProgram)
    : tests(std::move(ofTests)), program(std::move(ofProgram)) {
    for (const fs::path& folder : {tests, program}) {
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                known[entry.path()] = {VersionOf(entry.path()), ReadFile(entry.path())};
            }
        }
    }
}

std::string FilePromises::Broken() {
    for (const auto& [file, content] : known) {
        if (!fs::exists(file) && !IsRecovery(file)) {
            return "the file " + file.filename().native() + " is missing";
        }
    }
    std::string broken = BrokenIn(tests);
    return broken.empty() ? BrokenIn(program) : broken;
}

std::string FilePromises::BrokenIn(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().native().starts_with(".")) {
            return "the temporary file " + entry.path().filename().native() + " was left";
        }
        if (entry.is_regular_file()) {
            if (std::string broken = BrokenBy(entry.path()); !broken.empty()) {
                return broken;
            }
        }
    }
    return {};
}

std::string FilePromises::BrokenBy(const fs::path& file) {
    Known& old = known[file];
    const auto version = VersionOf(file);
    if (version == old.version) {
        return {};
    }
    std::string now = ReadFile(file);
    const std::vector<std::string_view> records = RecordsFor(file);
    const bool isWhole = records.empty() || std::ranges::any_of(records, [&](std::string_view record) {
                             return IsSaved(now, old.content, record);
                         });
    old = {version, std::move(now)};
    return isWhole ? "" : "the file " + file.filename().native() + " is not what the program has in memory";
}

} // namespace orvel::monkey
