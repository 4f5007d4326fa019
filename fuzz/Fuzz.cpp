// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <utility>

// The fuzzer looks for a function of this name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return orvel::fuzz::Try({reinterpret_cast<const char*>(data), size}) ? 0 : -1;
}

namespace orvel::fuzz {

void Require(bool holds, std::string_view what) {
    if (!holds) {
        (void)std::fprintf(stderr, "does not hold: %s\n", std::string{what}.c_str());
        std::abort();
    }
}

void RequireOnly(std::optional<ErrorNumber> error, const std::vector<ErrorNumber>& possible,
                 std::string_view what) {
    Require(!error || std::ranges::find(possible, *error) != possible.end(),
            std::string{what} + " raises no error " +
                std::to_string(static_cast<int>(error.value_or(ErrorNumber{}))));
}

std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        Require(end != std::string_view::npos, "a text of lines ends in a line end");
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 2);
    }
    return lines;
}

bool IsWrittenWithTwoDecimals(const std::string& text, float value) {
    char* end = nullptr;
    const double written = std::strtod(text.c_str(), &end);
    const std::size_t point = text.find('.');
    constexpr double kHalf = 0.005;
    constexpr double kSevenDigits = 1e-6;
    return end == text.c_str() + text.size() && point != std::string::npos && text.size() == point + 3 &&
           std::fabs(written - double{value}) <= kHalf + kSevenDigits * std::fabs(double{value});
}

} // namespace orvel::fuzz
