// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// What every kind of save must do, whatever goes wrong on its way.
namespace orvel::testing {

// A file that a save writes.
struct SavedFile {
    std::string name;
    std::string old; // what it holds before
    // What lies behind so many bytes stays; 0 where the file is new as a whole.
    std::size_t record = 0;
    // The save finds nothing to change where it holds something already.
    bool isUnchanged = false;
};

// The file of a record, longer than that.
[[nodiscard]] SavedFile OldRecord(const std::string& name, std::size_t record);
// A file that is written as a whole.
[[nodiscard]] SavedFile OldOutput(const std::string& name);

// One kind of save, up to the event that begins it.
struct Saving {
    // Nothing but the files and what belongs to them is in it.
    std::filesystem::path folder;
    std::vector<SavedFile> files;
    std::function<void()> save;
    // What the user was told and what else was done meanwhile.
    std::function<Lines()> said;
    // How the lines begin that a failed save ends with, one way or another. "%" stands for the number of the
    // run-time error, "&" for anything and the system's words for its error. An error that `save` lets go is
    // the line "run-time error %".
    std::vector<Lines> failures;
    // Comes before `save`, untraced.
    std::function<void()> prepare = [] {};
    // Whether a save waits until its files are on the disk.
    bool isFlushed = true;
};

// Expects that the user loses nothing: over an existing file (behind a symbolic link, with permissions of its
// own, longer than what is written where that stays), where no file is yet, and in place in a folder that
// takes no new file, the save is repeated with each of its system calls failing or falling short, with the
// process killed before and after each, and on a disk with ever less space. In place, a kill is exempt.
// Afterwards each file is the old one or the new one, as a whole; the user was told of what failed, and only
// of that; nothing else lies about but, behind a kill, at most one temporary file, which the next save
// removes.
void ExpectSafe(const Saving& saving);

} // namespace orvel::testing
