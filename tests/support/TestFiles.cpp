// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/TestFiles.h"

#include "core/FileNames.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <sstream>
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

TemporaryFolder::TemporaryFolder() : path(fs::path()) {
    std::random_device random;
    do {
        std::ostringstream name;
        name << "orvel-test-" << std::hex << random();
        path = TextPath(fs::temp_directory_path() / name.str());
    } while (!fs::create_directory(path));
    fs::permissions(path, fs::perms::owner_all);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::permissions(path, fs::perms::owner_all, error);
    fs::remove_all(path, error);
}

TextPath TemporaryFolder::operator/(const std::string& name) const {
    return TextPath(path / PathOfSystemText(name));
}

std::vector<std::string> TemporaryFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path)) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

TextPath TestData(const std::string& name) {
    return TextPath(fs::path(ORVEL_TEST_DATA) / name);
}

TextPath Example(const std::string& name) {
    return TextPath(fs::path(ORVEL_EXAMPLES) / name);
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
