// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RunTimeError.h"

#include "tests/support/LogicTest.h"

#include <array>
#include <cerrno>
#include <cstring>

namespace orvel {
namespace {

TEST(RunTimeError, CarriesNumberDescriptionAndSource) {
    struct Row {
        ErrorNumber error;
        int number;
        const char* description;
    };
    static constexpr std::array kRows = {
        Row{ErrorNumber::InvalidProcedureCall, 5, "Invalid procedure call or argument"},
        Row{ErrorNumber::Overflow, 6, "Overflow"},
        Row{ErrorNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
        Row{ErrorNumber::DivisionByZero, 11, "Division by zero"},
        Row{ErrorNumber::TypeMismatch, 13, "Type mismatch"},
        Row{ErrorNumber::FileNotFound, 53, "File not found"},
        Row{ErrorNumber::DeviceIoError, 57, "Device I/O error"},
        Row{ErrorNumber::DiskFull, 61, "Disk full"},
        Row{ErrorNumber::PermissionDenied, 70, "Permission denied"},
        Row{ErrorNumber::PathFileAccessError, 75, "Path/File access error"},
        Row{ErrorNumber::PathNotFound, 76, "Path not found"},
        Row{ErrorNumber::CancelWasSelected, 32755, "Cancel was selected"},
    };
    for (const Row& row : kRows) {
        const RunTimeError error(row.error);
        EXPECT_EQ(error.Number(), row.number);
        EXPECT_STREQ(error.Description(), row.description);
        EXPECT_STREQ(error.Source(), "ORVEL");
        EXPECT_STREQ(error.what(), row.description);
    }
}

TEST(RunTimeError, IsRaisedWithItsNumber) {
    testing::ExpectRunTimeError(ErrorNumber::PathNotFound, [] { Raise(ErrorNumber::PathNotFound); });
    EXPECT_THROW(Raise(ErrorNumber::Overflow), std::exception);
}

TEST(RunTimeError, TellsWhyAFileFailedByTheSystemsReason) {
    struct Row {
        int systemError;
        int number;
        const char* description;
    };
    static constexpr std::array kRows = {
        Row{ENOENT, 53, "File not found"},
        Row{ENOTDIR, 76, "Path not found"},
        Row{EACCES, 70, "Permission denied"},
        Row{EPERM, 70, "Permission denied"},
        Row{ENOSPC, 61, "Disk full"},
        Row{EFBIG, 61, "Disk full"},
        Row{EIO, 57, "Device I/O error"},
        Row{EROFS, 75, "Path/File access error"},
        Row{EISDIR, 75, "Path/File access error"},
        Row{EBUSY, 75, "Path/File access error"},
        Row{ELOOP, 75, "Path/File access error"},
    };
    for (const Row& row : kRows) {
        const FileError error("cannot open", row.systemError);
        EXPECT_EQ(error.Number(), row.number) << row.systemError;
        EXPECT_STREQ(error.Description(), row.description);
        EXPECT_STREQ(error.Source(), "ORVEL");
        EXPECT_EQ(error.what(), std::string("cannot open: ") + std::strerror(row.systemError));
    }
}

TEST(RunTimeError, LetsTheRaiserOfAFileErrorKnowTheNumberBetter) {
    const FileError error("cannot write", ENOENT, ErrorNumber::PathNotFound);
    EXPECT_EQ(error.Number(), 76);
    EXPECT_STREQ(error.Description(), "Path not found");
    EXPECT_STREQ(error.what(), "cannot write: No such file or directory");
}

TEST(RunTimeError, OfAFileIsCaughtAsAnyOther) {
    testing::ExpectRunTimeError(ErrorNumber::DiskFull, [] { throw FileError("cannot write", ENOSPC); });
}

} // namespace
} // namespace orvel
