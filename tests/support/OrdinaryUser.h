// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace orvel::testing {

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

} // namespace orvel::testing
