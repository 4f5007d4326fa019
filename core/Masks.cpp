// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Masks.h"

#include "core/Decimal.h"
#include "core/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace orvel {

namespace {

struct Mask {
    long leastIntegerDigits = 0;
    long leastDecimals = 0;
    long mostDecimals = 0;
    bool isGrouped = false;
    bool hasPoint = false;
    bool isPercent = false;
};

Mask ReadMask(std::string_view text) {
    Mask mask;
    for (const char character : text) {
        switch (character) {
        case '0':
        case '#':
            if (mask.hasPoint) {
                ++mask.mostDecimals;
                mask.leastDecimals = character == '0' ? mask.mostDecimals : mask.leastDecimals;
            } else if (character == '0' || mask.leastIntegerDigits > 0) {
                ++mask.leastIntegerDigits;
            }
            break;
        case ',':
            mask.isGrouped = true;
            break;
        case '.':
            mask.hasPoint = true;
            break;
        case '%':
            mask.isPercent = true;
            break;
        default:
            Raise(ErrorNumber::InvalidProcedureCall);
        }
    }
    return mask;
}

std::string Write(Decimal number, std::string_view maskText, const NumberLocale& locale) {
    const Mask mask = ReadMask(maskText);
    if (mask.isPercent) {
        number.point += 2;
    }
    number = RoundedHalfAway(std::move(number), mask.mostDecimals);

    std::string text = number.isNegative ? "-" : "";
    const long integerDigits = std::max(number.IsZero() ? 0 : number.point, mask.leastIntegerDigits);
    for (long power = integerDigits - 1; power >= 0; --power) {
        text += number.DigitAt(power);
        if (mask.isGrouped && locale.groupSeparator != '\0' && power > 0 && power % 3 == 0) {
            text += locale.groupSeparator;
        }
    }
    if (mask.hasPoint) {
        text += locale.decimalSeparator;
    }
    const long significantDecimals = static_cast<long>(number.digits.size()) - number.point;
    const long decimals = std::max(number.IsZero() ? 0 : significantDecimals, mask.leastDecimals);
    for (long power = -1; power >= -decimals; --power) {
        text += number.DigitAt(power);
    }
    if (mask.isPercent) {
        text += '%';
    }
    return text;
}

} // namespace

std::string FormatMask(float value, std::string_view mask, const NumberLocale& locale) {
    return Write(SignificantDecimal(value), mask, locale);
}

std::string FormatMask(double value, std::string_view mask, const NumberLocale& locale) {
    return Write(SignificantDecimal(value), mask, locale);
}

} // namespace orvel
