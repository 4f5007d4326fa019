// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace orvel {

// A number as it lies in a record: its little-endian bytes, without alignment. Copying one copies its bytes
// and computes nothing, so every bit pattern survives, that of a NaN too.
template <class Number>
class Stored {
public:
    Stored() = default;

    // Implicit both ways: a record's field reads and writes like the number it is.
    Stored(Number number) { *this = number; } // NOLINT(google-explicit-constructor)

    Stored& operator=(Number number) {
        bytes = std::bit_cast<Bytes>(number);
        return *this;
    }

    operator Number() const { return std::bit_cast<Number>(bytes); } // NOLINT(google-explicit-constructor)

private:
    static_assert(std::endian::native == std::endian::little, "records are little-endian");
    using Bytes = std::array<std::byte, sizeof(Number)>;
    Bytes bytes{};
};

// 32-bit IEEE-754.
using Single = Stored<float>;
// 16-bit, not interpreted.
using Word = Stored<std::int16_t>;

// A check box: -1 is true, 0 is false; any other number of a foreign file counts as true and is kept.
class Flag : public Stored<std::int16_t> {
public:
    static constexpr std::int16_t kTrue = -1;
    static constexpr std::int16_t kFalse = 0;

    Flag& operator=(bool isSet) {
        Stored::operator=(isSet ? kTrue : kFalse);
        return *this;
    }

    [[nodiscard]] bool IsSet() const { return Number() != kFalse; }

    [[nodiscard]] std::int16_t Number() const { return *this; }
};

} // namespace orvel
