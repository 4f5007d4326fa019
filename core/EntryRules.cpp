// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/EntryRules.h"

#include "core/Masks.h"
#include "core/Messages.h"
#include "core/Platform.h"

#include <cmath>

namespace orvel {

namespace {

constexpr int kBackspace = 8;
constexpr int kDropped = 0;

} // namespace

std::string LimitLength(std::string_view text, std::size_t maximum) {
    if (text.size() > maximum) {
        // kept: "Maximim".
        Tell("Maximim Characters in this field is " + std::to_string(maximum), "Input Error");
    }
    return std::string{text.substr(0, maximum)};
}

int FilterNumericKey(int key) {
    if (key == kBackspace || key == '.' || (key >= '0' && key <= '9')) {
        return key;
    }
    CurrentPlatform().beeper->Beep();
    return kDropped;
}

std::string RateText(float rate) {
    return std::isfinite(rate) ? FormatMask(rate, "0.00") : std::string{};
}

} // namespace orvel
