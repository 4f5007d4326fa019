// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramStart.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace orvel {

void SurviveFileSizeLimit() {
    (void)std::signal(SIGXFSZ, SIG_IGN);
}

std::vector<std::string> CallArguments(int argc, const char* const* argv) {
    return {argv + std::min(argc, 1), argv + argc};
}

std::filesystem::path PathInEnvironment(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): one thread
    return value == nullptr ? "" : value;
}

} // namespace orvel
