// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

namespace orvel::testing {

// Lengths of measurement lists, and volumes of 0.1 to 5000 cc over them, in an order that no sort likes.
inline constexpr std::array kListLengths = {2, 3, 5, 6, 7, 13, 50, 99, 150, 297, 298};

inline float WidelySpreadVolume(int cup) {
    const int place = cup * 151 % 307;
    return 0.1F * std::pow(50000.0F, static_cast<float>(place) / 307.0F);
}

// Random entries as a user might type them, and a few as no user should. The engine's numbers are the same
// everywhere; what the library's distributions make of them is not, so there are none here.
class RandomEntries {
public:
    explicit RandomEntries(std::uint64_t seed) : engine(seed) {}

    bool Rarely(std::uint64_t oneIn) { return Below(oneIn) == 0; }

protected:
    std::uint64_t Below(std::uint64_t bound) { return engine() % bound; }

    std::uint64_t From(std::uint64_t first, std::uint64_t last) { return first + Below(last - first + 1); }

    // first / unit to last / unit, with as many decimals as the unit has zeros, or without any.
    std::string Decimal(std::uint64_t first, std::uint64_t last, std::uint64_t unit) {
        const std::uint64_t number = From(first, last);
        std::string text = std::to_string(number / unit);
        if (unit > 1 && !Rarely(3)) {
            text += "." + std::to_string(unit + number % unit).substr(1);
        }
        return Rarely(8) ? "  " + text + " " : text;
    }

    std::string Faulty() {
        constexpr std::array kFaulty = {"0", "0.0", "", "abc", "1.2.3", ".", "-12.5", "1e3", "12 3"};
        return kFaulty[Below(kFaulty.size())];
    }

    std::string Number(std::uint64_t first, std::uint64_t last, std::uint64_t unit) {
        return Rarely(40) ? Faulty() : Rarely(12) ? std::string{} : Decimal(first, last, unit);
    }

    // Mostly some tens, now and then as many as a list holds, or more than can be counted.
    int CupCount(std::uint64_t oneLongIn) {
        if (Rarely(200)) {
            return static_cast<int>(From(299, 300));
        }
        return static_cast<int>(Rarely(oneLongIn) ? From(0, 298) : From(0, 32));
    }

private:
    std::mt19937_64 engine;
};

} // namespace orvel::testing
