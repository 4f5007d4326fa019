// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orvel::testing {

// What a finished run of the command line left.
struct RunResult {
    int status = -1; // the exit status, or -1 when the program was killed
    std::string out;
    std::string err;
};

// A call of the built program, in an environment that holds nothing but what is set here.
struct Call {
    std::vector<std::string> arguments;
    std::map<std::string, std::string> environment = {{"LC_ALL", "C.UTF-8"}, {"TZ", "UTC"}};
    std::string input = {};
    // Where standard output goes instead of into the result ("/dev/full").
    std::filesystem::path outputFile = {};
    // The most bytes that a file may grow to; 0 for no limit.
    unsigned long fileSizeLimit = 0;
};

[[nodiscard]] RunResult RunProgram(const Call& call);
[[nodiscard]] RunResult RunProgram(const std::vector<std::string>& arguments);

// Changes bytes all over the record of a test file; what is built of the dump must have the same ones.
void ExpectBuildOfDumpGivesTheSameBytes(const std::filesystem::path& testFile);

} // namespace orvel::testing
