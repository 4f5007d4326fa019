// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/NumberText.h"

#include "core/Decimal.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <ranges>
#include <system_error>

namespace orvel {

namespace {

// Beyond this every type has overflowed or is zero; it keeps sums of exponents far from a long's bounds.
constexpr std::int64_t kExponentLimit = 1'000'000'000;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// Splits off the longest beginning whose characters all satisfy `belongs`.
template <class Predicate>
std::string_view TakeWhile(std::string_view& text, Predicate belongs) {
    const auto end = std::ranges::find_if_not(text, belongs);
    const std::string_view taken = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(taken.size());
    return taken;
}

bool Take(std::string_view& text, char character) {
    if (!text.starts_with(character)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

bool TakeSign(std::string_view& text) {
    const bool isNegative = Take(text, '-');
    if (!isNegative) {
        Take(text, '+');
    }
    return isNegative;
}

// Reads an exponent if one stands there; an "e" without digits stays unread, so that the caller sees a rest.
long TakeExponent(std::string_view& text) {
    std::string_view rest = text;
    if (!Take(rest, 'e') && !Take(rest, 'E')) {
        return 0;
    }
    const bool isNegative = TakeSign(rest);
    const std::string_view digits = TakeWhile(rest, IsDigit);
    if (digits.empty()) {
        return 0;
    }
    text = rest;
    std::int64_t exponent = 0;
    for (const char digit : digits) {
        exponent = std::min(exponent * 10 + (digit - '0'), kExponentLimit);
    }
    return static_cast<long>(isNegative ? -exponent : exponent);
}

// The size of the group that stands `index` groups left of the decimal separator; none when no separator may
// follow further left.
std::optional<std::size_t> GroupSize(const std::string& grouping, std::size_t index) {
    const char size = grouping[std::min(index, grouping.size() - 1)];
    if (size <= 0 || size == CHAR_MAX) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(size);
}

// Whether the separators of a run of digits and separators all stand where the grouping wants them.
bool GroupsStandRight(std::string_view run, const std::string& grouping) {
    std::size_t group = 0;
    std::size_t length = 0;
    for (const char character : std::views::reverse(run)) {
        if (IsDigit(character)) {
            ++length;
            continue;
        }
        if (GroupSize(grouping, group) != length) {
            return false;
        }
        ++group;
        length = 0;
    }
    return length > 0 && length <= GroupSize(grouping, group).value_or(length);
}

// The digits of an integer with or without group separators; nothing when the separators stand wrong.
std::optional<std::string> TakeGroupedDigits(std::string_view& text, const NumberLocale& locale) {
    const auto isSeparator = [&locale](char character) {
        return locale.groupSeparator != '\0' && character == locale.groupSeparator;
    };
    const std::string_view run = TakeWhile(
        text, [&isSeparator](char character) { return IsDigit(character) || isSeparator(character); });
    std::string digits{run};
    if (std::erase_if(digits, isSeparator) > 0 && !GroupsStandRight(run, locale.grouping)) {
        return std::nullopt;
    }
    return digits;
}

// Everything behind the integer digits; nothing when the text is no number.
std::optional<Decimal> ReadRest(bool isNegative, std::string digits, std::string_view text,
                                char decimalSeparator) {
    const auto integerDigits = static_cast<long>(digits.size());
    if (Take(text, decimalSeparator)) {
        digits += TakeWhile(text, IsDigit);
    }
    if (digits.empty()) {
        return std::nullopt;
    }
    const long exponent = TakeExponent(text);
    if (!text.empty()) {
        return std::nullopt;
    }
    Decimal number{isNegative, std::move(digits), integerDigits + exponent};
    number.Normalise();
    return number;
}

std::optional<Decimal> ReadPlain(std::string_view text) {
    const bool isNegative = TakeSign(text);
    const std::string_view digits = TakeWhile(text, IsDigit);
    return ReadRest(isNegative, std::string{digits}, text, '.');
}

std::optional<Decimal> ReadLocal(std::string_view text, const NumberLocale& locale) {
    const bool isNegative = TakeSign(text);
    std::optional<std::string> digits = TakeGroupedDigits(text, locale);
    if (!digits) {
        return std::nullopt;
    }
    return ReadRest(isNegative, *std::move(digits), text, locale.decimalSeparator);
}

Decimal ReadNumber(std::string_view text) {
    const std::string_view trimmed = Trim(text);
    std::optional<Decimal> number = ReadPlain(trimmed);
    if (!number) {
        number = ReadLocal(trimmed, CurrentNumberLocale());
    }
    if (!number) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return *std::move(number);
}

template <class Float>
Float ToFloat(std::string_view text) {
    const Decimal number = ReadNumber(text);
    if (number.IsZero() || number.point < std::numeric_limits<Float>::min_exponent10 * 2) {
        return number.isNegative ? -Float{0} : Float{0};
    }
    if (number.point > std::numeric_limits<Float>::max_exponent10 + 1) {
        Raise(ErrorNumber::Overflow);
    }
    std::string written = number.isNegative ? "-0." : "0.";
    written.append(number.digits).append("e").append(std::to_string(number.point));
    Float value = 0;
    const auto result = std::from_chars(written.data(), written.data() + written.size(), value);
    if (result.ec == std::errc::result_out_of_range && number.point < 0) {
        return number.isNegative ? -Float{0} : Float{0};
    }
    if (result.ec != std::errc{} || !std::isfinite(value)) {
        Raise(ErrorNumber::Overflow);
    }
    return value;
}

template <class Integer>
Integer ToWhole(std::string_view text) {
    constexpr long kMostDigits = std::numeric_limits<Integer>::digits10 + 1;
    const Decimal number = ReadNumber(text);
    if (number.point > kMostDigits) {
        Raise(ErrorNumber::Overflow);
    }
    std::int64_t whole = 0;
    for (long power = number.point - 1; power >= 0; --power) {
        whole = whole * 10 + (number.DigitAt(power) - '0');
    }
    // digits has no trailing zeros, so anything behind a 5 in the first decimal place makes it more than
    // half.
    const char firstDecimal = number.DigitAt(-1);
    const bool isMoreThanHalf =
        firstDecimal > '5' ||
        (firstDecimal == '5' && static_cast<long>(number.digits.size()) > number.point + 1);
    if (isMoreThanHalf || (firstDecimal == '5' && whole % 2 == 1)) {
        ++whole;
    }
    whole = number.isNegative ? -whole : whole;
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max()) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(whole);
}

} // namespace

float ToSingle(std::string_view text) {
    return ToFloat<float>(text);
}

double ToDouble(std::string_view text) {
    return ToFloat<double>(text);
}

std::int16_t ToInteger(std::string_view text) {
    return ToWhole<std::int16_t>(text);
}

std::int32_t ToLong(std::string_view text) {
    return ToWhole<std::int32_t>(text);
}

std::string PlainText(float value, const NumberLocale& locale) {
    const Decimal number = ShortestDecimal(value);
    if (number.IsZero()) {
        return "0";
    }
    std::string text = number.isNegative ? "-" : "";
    if (number.point <= 0) {
        text += '0';
    }
    for (long power = number.point - 1; power >= 0; --power) {
        text += number.DigitAt(power);
    }
    const long decimals = static_cast<long>(number.digits.size()) - number.point;
    if (decimals > 0) {
        text += locale.decimalSeparator;
        for (long power = -1; power >= -decimals; --power) {
            text += number.DigitAt(power);
        }
    }
    return text;
}

} // namespace orvel
