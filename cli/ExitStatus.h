// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace orvel::cli {

// What a command ends with. With several files the highest of theirs counts.
enum ExitStatus : int {
    kDone = 0,
    kChecksFoundErrors = 1,
    kWrongUsage = 2,
    kFileFailed = 3,
    kRunTimeError = 4,
};

// A wrong call, or a file that can't be used: ends the work on `subject` (a file or an option, in UTF-8;
// empty for the call as a whole) with one line on standard error.
class CommandError : public std::runtime_error {
public:
    CommandError(ExitStatus exitStatus, std::string what, const std::string& reason)
        : std::runtime_error(reason), status(exitStatus), subject(std::move(what)) {}

    [[nodiscard]] ExitStatus Status() const { return status; }
    [[nodiscard]] const std::string& Subject() const { return subject; }

private:
    ExitStatus status;
    std::string subject;
};

} // namespace orvel::cli
