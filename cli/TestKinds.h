// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Json.h"
#include "report/ReportBuilder.h"

#include <filesystem>
#include <string>

namespace orvel::cli {

// What the commands do with one kind of test. All of it works on the program's state, which Load fills.
struct TestKind {
    const char* name;      // as the program spells it
    const char* extension; // of its files

    // Makes a test file the program's open test. Raises FileError.
    void (*load)(const std::filesystem::path& file);
    bool (*check)();
    // Both run the calculation first.
    Json (*resultsJson)();
    std::string (*resultsListing)();
    void (ReportBuilder::*buildReport)();
    std::string (*buildSummary)();
    std::string (*listingText)();

    // The record of a file as JSON; raises FileError.
    Json (*dump)(const std::filesystem::path& file);
    // The bytes of a record made of JSON; raises std::runtime_error that names what is wrong.
    std::string (*build)(const Json& json);
};

// The kind of a test file: the one that the call names, else by the extension. Raises CommandError when
// neither says it.
[[nodiscard]] const TestKind& KindOf(const std::filesystem::path& file, const std::string& namedKind);

// Whether an extension says the kind of the file.
[[nodiscard]] bool HasKnownExtension(const std::filesystem::path& file);

} // namespace orvel::cli
