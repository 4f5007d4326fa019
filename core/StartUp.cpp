// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/StartUp.h"

#include <array>
#include <cstdio>

namespace orvel {

namespace {

// The first two of the clock text's last five characters: the seconds.
int ClockSeconds() {
    const std::string text = ClockText(CurrentPlatform().clock->Now());
    return std::stoi(text.substr(text.size() - 5, 2));
}

} // namespace

std::string ClockText(const DateTime& time) {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    std::array<char, 16> text{};
    (void)std::snprintf(text.data(), text.size(), "%d:%02d:%02d %s", hour, time.minute, time.second,
                        time.hour < 12 ? "AM" : "PM");
    return text.data();
}

bool Pause(int n) {
    const int start = ClockSeconds();
    const int base = start + n > 60 ? start + n - 60 : start;
    do {
        if (!CurrentPlatform().eventPump->ProcessEvents()) {
            return false;
        }
    } while (ClockSeconds() < n + base);
    return true;
}

bool StartUp(ProgramWindows& windows) {
    windows.ShowSplash();
    if (!Pause(2)) {
        return false;
    }
    windows.ShowMain();
    windows.UnloadSplash();
    return true;
}

} // namespace orvel
