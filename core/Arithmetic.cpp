// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Arithmetic.h"

#include "core/RunTimeError.h"

#include <cmath>
#include <limits>

namespace orvel {

namespace {

static_assert(std::numeric_limits<long double>::digits >= 64,
              "temporaries and running sums need more digits than a double has");

template <class Float>
Float Store(long double value) {
    const auto stored = static_cast<Float>(value);
    if (!std::isfinite(stored)) {
        Raise(ErrorNumber::Overflow);
    }
    return stored;
}

template <class Integer>
Integer Round(long double value) {
    // nearbyint follows the rounding mode, which is "to nearest, ties to even" for the whole run.
    const long double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(rounded);
}

} // namespace

float StoreSingle(long double value) {
    return Store<float>(value);
}

double StoreDouble(long double value) {
    return Store<double>(value);
}

float AddSingles(float left, float right) {
    return StoreSingle(static_cast<long double>(left) + right);
}

long double Divide(long double dividend, long double divisor) {
    if (!std::isfinite(dividend) || !std::isfinite(divisor)) {
        Raise(ErrorNumber::Overflow);
    }
    if (divisor == 0) {
        Raise(dividend == 0 ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
    }
    return dividend / divisor;
}

std::int16_t RoundToInteger(long double value) {
    return Round<std::int16_t>(value);
}

std::int32_t RoundToLong(long double value) {
    return Round<std::int32_t>(value);
}

} // namespace orvel
