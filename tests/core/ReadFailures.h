// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunTimeError.h"
#include "core/SafeFile.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>

namespace orvel::testing {

// A file that can't be read, and what is said of it.
struct ReadFailure {
    std::filesystem::path path;
    int number;
    const char* what;
};

inline void ExpectReadFailures(std::initializer_list<ReadFailure> failures) {
    for (const ReadFailure& failure : failures) {
        try {
            (void)ReadFile(failure.path);
            ADD_FAILURE() << failure.path;
        } catch (const FileError& error) {
            EXPECT_EQ(error.Number(), failure.number) << failure.path;
            EXPECT_STREQ(error.what(), failure.what) << failure.path;
        }
    }
}

} // namespace orvel::testing
