// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

namespace orvel {

// The numbers a run-time error can carry; the program shows them to its user.
enum class ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceIoError = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
    CancelWasSelected = 32755,
};

// The one way in which routines fail. A handler shows number, description and source; what() says the same
// as the description unless the raiser knew more (see FileError).
class RunTimeError : public std::exception {
public:
    explicit RunTimeError(ErrorNumber number) : errorNumber(number) {}

    [[nodiscard]] int Number() const { return static_cast<int>(errorNumber); }

    // The fixed English text that belongs to the number.
    [[nodiscard]] const char* Description() const;

    // The program's title.
    [[nodiscard]] const char* Source() const { return errorSource; }

    [[nodiscard]] const char* what() const noexcept override { return Description(); }

private:
    ErrorNumber errorNumber;
    const char* errorSource = "ORVEL";
};

// A file operation failed. what() names the step and the system's reason ("cannot open: Permission denied").
class FileError : public RunTimeError {
public:
    // `systemError` is an errno value; it decides the number.
    FileError(const std::string& step, int systemError);
    // The same with a number that the raiser knows better.
    FileError(const std::string& step, int systemError, ErrorNumber number);

    [[nodiscard]] const char* what() const noexcept override { return detail.c_str(); }

private:
    std::string detail;
};

[[noreturn]] void Raise(ErrorNumber number);

} // namespace orvel
