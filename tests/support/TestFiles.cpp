// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <vector>

namespace orvel::testing {

namespace fs = std::filesystem;

namespace {

// Line ends made visible, so that a difference in them can be seen.
std::string Visible(std::string_view line) {
    std::string text;
    for (const char character : line) {
        if (character == '\r') {
            text += "<CR>";
        } else if (character == '\n') {
            text += "<LF>";
        } else {
            text += character;
        }
    }
    return text;
}

// The line of the text that the position lies in, its line end included.
std::string_view LineAround(std::string_view text, std::size_t position) {
    const std::size_t before = position == 0 ? std::string_view::npos : text.rfind('\n', position - 1);
    const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
    const std::size_t end = text.find('\n', position);
    return text.substr(begin, end == std::string_view::npos ? end : end + 1 - begin);
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "orvel-test-XXXXXX").native();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("cannot make a temporary folder");
    }
    path = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::permissions(path, fs::perms::owner_all, error);
    fs::remove_all(path, error);
}

std::vector<std::string> TemporaryFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path)) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
}

void GiveToOrdinaryUser(const fs::path& folder) {
    if (::geteuid() != 0) {
        return;
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        EXPECT_EQ(::lchown(entry.path().c_str(), kOrdinaryUser, kOrdinaryUser), 0);
    }
    EXPECT_EQ(::lchown(folder.c_str(), kOrdinaryUser, kOrdinaryUser), 0);
}

AsOrdinaryUser::AsOrdinaryUser(const fs::path& folder) {
    if (::geteuid() != 0) {
        return;
    }
    GiveToOrdinaryUser(folder);
    EXPECT_EQ(::seteuid(kOrdinaryUser), 0);
    hasSwitched = true;
}

AsOrdinaryUser::~AsOrdinaryUser() {
    if (hasSwitched) {
        EXPECT_EQ(::seteuid(0), 0);
    }
}

fs::path TestData(const std::string& name) {
    return fs::path(ORVEL_TEST_DATA) / name;
}

fs::path Example(const std::string& name) {
    return fs::path(ORVEL_EXAMPLES) / name;
}

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        ADD_FAILURE() << "cannot open " << path;
    }
    std::ostringstream contents;
    contents << file.rdbuf();
    return contents.str();
}

void PutContents(const fs::path& path, std::string_view contents) {
    std::ofstream file(path, std::ios::binary);
    file.write(contents.data(), static_cast<std::streamsize>(contents.size()));
    if (!file.flush()) {
        ADD_FAILURE() << "cannot write " << path;
    }
}

::testing::AssertionResult SameText(std::string_view actual, std::string_view expected) {
    if (actual == expected) {
        return ::testing::AssertionSuccess();
    }
    const auto [left, right] = std::ranges::mismatch(actual, expected);
    const auto position = static_cast<std::size_t>(left - actual.begin());
    const std::string_view before = actual.substr(0, position);
    const std::size_t lineBreak = before.rfind('\n');
    const std::size_t column = position - (lineBreak == std::string_view::npos ? 0 : lineBreak + 1) + 1;
    return ::testing::AssertionFailure()
           << "line " << std::ranges::count(before, '\n') + 1 << ", column " << column
           << " differs\n  actual: " << Visible(LineAround(actual, position))
           << "\nexpected: " << Visible(LineAround(expected, position));
}

::testing::AssertionResult MatchesGolden(std::string_view actual, const std::string& goldenName) {
    return SameText(actual, Contents(TestData(goldenName))) << " in " << goldenName;
}

} // namespace orvel::testing
