// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace orvel::testing {

// An empty folder of a test's own, removed with everything in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path; }

    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return path / name; }

    // The names in the folder, sorted; a test asks for them to see that no litter stayed.
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    std::filesystem::path path;
};

// Whom permissions stop, for tests that run as root.
inline constexpr unsigned kOrdinaryUser = 65534;

// Where the tests run as root: gives the folder and all that is in it to the ordinary user.
void GiveToOrdinaryUser(const std::filesystem::path& folder);

// Acts as an ordinary user for its lifetime when the tests run as root, whom no permission stops. The folder
// is handed over to that user first.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const std::filesystem::path& folder);
    ~AsOrdinaryUser();
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

private:
    bool hasSwitched = false;
};

// A file of tests/data.
[[nodiscard]] std::filesystem::path TestData(const std::string& name);
// A file of examples/.
[[nodiscard]] std::filesystem::path Example(const std::string& name);

[[nodiscard]] std::string Contents(const std::filesystem::path& path);
void PutContents(const std::filesystem::path& path, std::string_view contents);

// Equal byte for byte, or a failure that names the first differing line and column and shows both lines.
[[nodiscard]] ::testing::AssertionResult SameText(std::string_view actual, std::string_view expected);
// The same against a golden file of tests/data.
[[nodiscard]] ::testing::AssertionResult MatchesGolden(std::string_view actual,
                                                       const std::string& goldenName);

} // namespace orvel::testing
