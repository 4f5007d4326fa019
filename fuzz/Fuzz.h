// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/NumberLocale.h"
#include "core/RunTimeError.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What all fuzz targets share. A target is a program that defines Try and is linked with libFuzzer, which
// calls it with ever new inputs, or with ReplayMain.cpp, which calls it with those of the corpus.
namespace orvel::fuzz {

// Tries one input, any bytes at all. Ends the program where something does not hold that always must. False
// for an input that is not worth keeping.
[[nodiscard]] bool Try(std::string_view input);

// Ends the program, telling what should have been, unless it holds.
void Require(bool holds, std::string_view what);

// The number of the run-time error that the work ends in. Any other exception ends the program.
template <class Work>
std::optional<ErrorNumber> ErrorOf(Work work) {
    try {
        work();
        return std::nullopt;
    } catch (const RunTimeError& error) {
        return static_cast<ErrorNumber>(error.Number());
    }
}

// Requires one of these errors, or none.
void RequireOnly(std::optional<ErrorNumber> error, const std::vector<ErrorNumber>& possible,
                 std::string_view what);

// The lines of a text, each of which must end in CR LF, without their ends.
[[nodiscard]] std::vector<std::string> Lines(std::string_view text);

// Whether a text written with two decimals and "." stands for that value, as exactly as 7 digits can.
[[nodiscard]] bool IsWrittenWithTwoDecimals(const std::string& text, float value);

} // namespace orvel::fuzz
