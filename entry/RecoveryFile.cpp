// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/RecoveryFile.h"

#include "core/FileNames.h"
#include "core/FilePermissions.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "core/SafeFile.h"
#include "core/TestFile.h"

#include <cerrno>
#include <cstdint>
#include <iomanip>
#include <sstream>
#include <system_error>
#include <type_traits>

namespace orvel {

namespace {

namespace fs = std::filesystem;

constexpr const char* kExtension = ".recovery";
// More than any window can hold; what is larger is not ours.
constexpr std::size_t kMostBytes = std::size_t{64} << 20;
constexpr std::size_t kMostOfName = 255;

// FNV-1a, 64 bits (Fowler, Noll and Vo, 1991): the same in every build.
std::string NumberOf(const fs::path& path) {
    using Unit = std::make_unsigned_t<fs::path::value_type>;
    std::uint64_t number = 0xCBF29CE484222325;
    for (const auto each : path.native()) {
        number = (number ^ static_cast<Unit>(each)) * 0x100000001B3;
    }
    std::ostringstream text;
    text << std::hex << std::setw(16) << std::setfill('0') << number;
    return text.str();
}

// Nothing where the name would leave no room for the number of a kept one.
fs::path Beside(fs::path testFile) {
    constexpr std::size_t kMostOfNumber = 5; // "-9999"
    testFile += kExtension;
    const bool hasRoom = testFile.filename().native().size() + kMostOfNumber <= kMostOfName;
    return hasRoom ? testFile : fs::path();
}

fs::path InUserFolder(const fs::path& testFile) {
    constexpr std::size_t kMostOfTestName = 100;
    const fs::path& folder = Program().userDataFolder;
    if (folder.empty()) {
        return {};
    }
    fs::path name = testFile.filename().native().substr(0, kMostOfTestName);
    return folder / "recovery" / (name += "-" + NumberOf(testFile) + kExtension);
}

fs::path Kept(const fs::path& place, int number) {
    fs::path path = place;
    return path += "-" + std::to_string(number);
}

bool IsTaken(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

// Of an empty path, too. A link, a pipe or a folder of that name is none of ours, and neither is a test that
// was saved under it, nor what somebody else types into the same test, in a folder that they share.
bool IsOurs(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(fs::symlink_status(path, error)) && !IsClosedToUser(path) &&
           path != FullPath(CurrentFile());
}

void RemoveFile(const fs::path& path) {
    if (IsOurs(path)) {
        std::error_code ignored;
        fs::remove(path, ignored);
    }
}

} // namespace

RecoveryFile::RecoveryFile(const fs::path& testFile) {
    if (!testFile.empty()) {
        const fs::path full = FullPath(testFile);
        places = {Beside(full), InUserFolder(full)};
    }
}

std::vector<std::string> RecoveryFile::Read() const {
    std::vector<std::string> contents;
    for (const fs::path& place : places) {
        if (!IsOurs(place)) {
            continue;
        }
        std::string& content = contents.emplace_back();
        try {
            content = ReadFile(place, kMostBytes);
        } catch (const FileError&) { // NOLINT(bugprone-empty-catch): it counts as damaged
        }
    }
    return contents;
}

void RecoveryFile::Write(std::string_view content) const {
    const auto& [beside, usersOwn] = places;
    try {
        if (IsClosedToUser(beside)) {
            throw FileError("cannot replace another user's file", EACCES);
        }
        ReplacePrivately(beside, content);
        RemoveFile(usersOwn);
    } catch (const FileError&) {
        if (usersOwn.empty()) {
            throw;
        }
        std::error_code error;
        fs::create_directories(usersOwn.parent_path(), error);
        ReplacePrivately(usersOwn, content);
        // The older one, which a disk may have taken that is full now.
        RemoveFile(beside);
    }
}

void RecoveryFile::Remove() const {
    for (const fs::path& place : places) {
        RemoveFile(place);
    }
}

void RecoveryFile::SetAside() const {
    for (const fs::path& place : places) {
        if (!IsOurs(place)) {
            continue;
        }
        int number = 1;
        while (IsTaken(Kept(place, number))) {
            ++number;
        }
        std::error_code error;
        fs::rename(place, Kept(place, number), error);
    }
}

void RecoveryFile::RemoveKept() const {
    for (const fs::path& place : places) {
        for (int number = 1; IsTaken(Kept(place, number)); ++number) {
            RemoveFile(Kept(place, number));
        }
    }
}

} // namespace orvel
