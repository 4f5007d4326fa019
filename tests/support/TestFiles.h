// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvel::testing {

// A path that is a text too, on every system.
class TextPath : public std::filesystem::path {
public:
    using path::path;
    explicit TextPath(std::filesystem::path other) : path(std::move(other)) {}

    operator std::string() const { return string(); }
};

// An empty folder of a test's own, removed with everything in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const TextPath& Path() const { return path; }

    // The name is a text of the system (core/FileNames).
    [[nodiscard]] TextPath operator/(const std::string& name) const;

    // The names in the folder, sorted; a test asks for them to see that no litter stayed.
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    TextPath path;
};

// A file of tests/data.
[[nodiscard]] TextPath TestData(const std::string& name);
// A file of examples/.
[[nodiscard]] TextPath Example(const std::string& name);

[[nodiscard]] std::string Contents(const std::filesystem::path& path);
void PutContents(const std::filesystem::path& path, std::string_view contents);

// Equal byte for byte, or a failure that names the first differing line and column and shows both lines.
[[nodiscard]] ::testing::AssertionResult SameText(std::string_view actual, std::string_view expected);
// The same against a golden file of tests/data.
[[nodiscard]] ::testing::AssertionResult MatchesGolden(std::string_view actual,
                                                       const std::string& goldenName);

} // namespace orvel::testing
