// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Decimal.h"

#include "core/RunTimeError.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace orvel {

namespace {

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

// Reads what to_chars wrote in scientific form: "-d.ddde-XX".
Decimal FromScientific(std::string_view text) {
    Decimal number;
    number.isNegative = text.starts_with('-');
    const std::size_t exponentMark = text.find('e');
    const std::string_view digits = text.substr(0, exponentMark).substr(number.isNegative ? 1 : 0);
    number.digits = digits.front();
    if (digits.size() > 1) {
        number.digits += digits.substr(2); // behind the point
    }
    std::string_view exponent = text.substr(exponentMark + 1);
    if (exponent.starts_with('+')) {
        exponent.remove_prefix(1);
    }
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), number.point);
    number.point += 1;
    number.Normalise();
    return number;
}

template <class Float, class... Precision>
Decimal Written(Float value, Precision... precision) {
    if (!std::isfinite(value)) {
        Raise(ErrorNumber::Overflow);
    }
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::scientific, precision...);
    return FromScientific({buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())});
}

} // namespace

void Decimal::Normalise() {
    const std::size_t first = digits.find_first_not_of('0');
    if (first == std::string::npos) {
        *this = Decimal{isNegative, {}, 0};
        return;
    }
    if (first > 0) {
        digits.erase(0, first);
        point -= static_cast<long>(first);
    }
    digits.resize(digits.find_last_not_of('0') + 1);
}

Decimal ShortestDecimal(float value) {
    return Written(value);
}

Decimal SignificantDecimal(float value) {
    return Written(value, kSingleDigits - 1);
}

Decimal SignificantDecimal(double value) {
    return Written(value, kDoubleDigits - 1);
}

Decimal RoundedHalfAway(Decimal number, long decimals) {
    const long kept = number.point + decimals;
    if (kept < static_cast<long>(number.digits.size())) {
        const bool roundsUp = number.DigitAt(-decimals - 1) >= '5';
        number.digits.resize(kept > 0 ? static_cast<std::size_t>(kept) : 0);
        if (!roundsUp) {
            number.Normalise();
        } else if (const auto last = number.digits.find_last_not_of('9'); last != std::string::npos) {
            number.digits.resize(last + 1);
            ++number.digits[last];
        } else {
            // 9.99 carries into a new digit.
            number.digits = "1";
            number.point += 1;
        }
    }
    if (number.IsZero()) {
        number.isNegative = false;
    }
    return number;
}

} // namespace orvel
