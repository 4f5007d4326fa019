// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Platform.h"

namespace orvel {

namespace {

Platform& Current() {
    static Platform platform;
    return platform;
}

} // namespace

const Platform& CurrentPlatform() {
    return Current();
}

void UsePlatform(const Platform& platform) {
    Current() = platform;
}

} // namespace orvel
