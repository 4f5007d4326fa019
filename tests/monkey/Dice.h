// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace orvel::monkey {

// Chances that are the same for the same seed, on every machine.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine(seed) {}

    // From 0 to `count` - 1; `count` must not be 0.
    template <std::integral Count>
    int Below(Count count) {
        return static_cast<int>(engine() % static_cast<std::uint64_t>(count));
    }

    // From `first` to `last`.
    int Between(int first, int last) { return first + Below(last - first + 1); }

    bool IsIn100(int chances) { return Below(100) < chances; }

    // One of the range's items, of which there must be some.
    template <class Range>
    decltype(auto) OneOf(const Range& range) {
        return *std::next(std::begin(range), Below(std::size(range)));
    }

    // One of the items that have a `weight`: in proportion to it.
    template <class Range>
    const auto& OneByWeight(const Range& range) {
        std::size_t sum = 0;
        for (const auto& item : range) {
            sum += item.weight;
        }
        auto left = static_cast<std::size_t>(Below(sum));
        auto item = std::begin(range);
        for (; left >= item->weight; ++item) {
            left -= item->weight;
        }
        return *item;
    }

private:
    std::mt19937_64 engine;
};

} // namespace orvel::monkey
