// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/SafeFile.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace orvel {

// A folder, and a name in it, for saves that reach the disk and for those that need not.
class Saves : public ::testing::TestWithParam<Flush> {
protected:
    using Names = std::vector<std::string>;

    static void Replace(const std::filesystem::path& path, std::string_view content) {
        ReplaceFile(path, content, GetParam());
    }

    static void ExpectNotReplaced(const std::filesystem::path& path, ErrorNumber number) {
        testing::ExpectRunTimeError(number, [&] { ReplaceFile(path, "new", GetParam()); });
    }

    testing::TemporaryFolder folder;
    std::filesystem::path file = folder / "file";
};

inline const auto kEachFlush = ::testing::Values(Flush::ToDisk, Flush::Lazy);

inline std::string NameOfFlush(const ::testing::TestParamInfo<Flush>& flush) {
    return flush.param == Flush::ToDisk ? "ToDisk" : "Lazy";
}

} // namespace orvel
