// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RunTimeError.h"

#include <cerrno>
#include <system_error>

namespace orvel {

namespace {

ErrorNumber NumberOfSystemError(int systemError) {
    switch (systemError) {
    case ENOENT:
        return ErrorNumber::FileNotFound;
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
        return ErrorNumber::PermissionDenied;
    case ENOSPC:
#ifdef EDQUOT // Windows counts a full quota as a full disk
    case EDQUOT:
#endif
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EIO:
        return ErrorNumber::DeviceIoError;
    default:
        return ErrorNumber::PathFileAccessError;
    }
}

} // namespace

const char* RunTimeError::Description() const {
    switch (errorNumber) {
    case ErrorNumber::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DeviceIoError:
        return "Device I/O error";
    case ErrorNumber::DiskFull:
        return "Disk full";
    case ErrorNumber::PermissionDenied:
        return "Permission denied";
    case ErrorNumber::PathFileAccessError:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    case ErrorNumber::CancelWasSelected:
        return "Cancel was selected";
    }
    return "";
}

FileError::FileError(const std::string& step, int systemError)
    : FileError(step, systemError, NumberOfSystemError(systemError)) {}

FileError::FileError(const std::string& step, int systemError, ErrorNumber number)
    : RunTimeError(number), detail(step + ": " + std::generic_category().message(systemError)) {}

void Raise(ErrorNumber number) {
    throw RunTimeError(number);
}

} // namespace orvel
