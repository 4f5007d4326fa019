// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/ExactArithmetic.h"

#include "tests/support/LogicTest.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace orvel::testing {

namespace {

constexpr int kLargestExponent = 5000;

// The nearest number of `digits` binary digits whose last place weighs no less than 2 to the power of
// `leastPlace`, ties to even.
Rational Rounded(const Rational& value, long digits, long leastPlace) {
    if (value == 0) {
        return value;
    }
    const Rational lastPlace =
        Rational::PowerOfTwo(std::max(value.BinaryExponent() - digits + 1, leastPlace));
    return (value / lastPlace).Rounded() * lastPlace;
}

template <class Float>
Float RoundTo(const Rational& value) {
    using Limits = std::numeric_limits<Float>;
    const Rational rounded = Rounded(value, Limits::digits, Limits::min_exponent - Limits::digits);
    if (abs(rounded) > Rational(Limits::max())) {
        throw ExactError{kOverflow};
    }
    // Exact: the value fits.
    return static_cast<Float>(rounded.ToDouble());
}

long ReadExponent(std::string digits) {
    if (digits.empty()) {
        return 0;
    }
    const bool isNegative = digits.starts_with('-');
    digits.erase(0, digits.find_first_of("0123456789"));
    const Rational exponent = Rational::OfDigits(digits);
    const long magnitude =
        exponent > kLargestExponent ? kLargestExponent : static_cast<long>(exponent.ToDouble());
    return isNegative ? -magnitude : magnitude;
}

} // namespace

const char* DescriptionOf(int number) {
    static const std::map<int, const char*> kDescriptions = {{kOverflow, "Overflow"},
                                                             {kSubscriptOutOfRange, "Subscript out of range"},
                                                             {kDivisionByZero, "Division by zero"},
                                                             {kTypeMismatch, "Type mismatch"}};
    return kDescriptions.at(number);
}

std::optional<Message> BoxOf(const std::optional<int>& error) {
    return error ? std::optional(GenerationErrorMessage(*error, DescriptionOf(*error))) : std::nullopt;
}

std::uint32_t Bits(float value) {
    return value == 0 ? 0 : std::bit_cast<std::uint32_t>(value);
}

void Differences::Compare(const std::string& name, float actual, float exact) {
    if (Bits(actual) != Bits(exact)) {
        std::ostringstream line;
        line.precision(std::numeric_limits<float>::max_digits10);
        line << name << ": " << actual << " instead of " << exact << "\n";
        text += line.str();
    }
}

float RoundToSingle(const Rational& value) {
    return RoundTo<float>(value);
}

double RoundToDouble(const Rational& value) {
    return RoundTo<double>(value);
}

Rational RoundToExtended(const Rational& value) {
    constexpr long kDigits = 64;
    constexpr long kLeastPlace = -16445;
    return Rounded(value, kDigits, kLeastPlace);
}

Rational Quotient(const Rational& dividend, const Rational& divisor) {
    if (divisor == 0) {
        throw ExactError{dividend == 0 ? kOverflow : kDivisionByZero};
    }
    return dividend / divisor;
}

Rational ReadDecimal(std::string_view text) {
    static const std::regex kNumber(R"(([+-]?)([0-9]*)\.?([0-9]*)(?:[eE]([+-]?[0-9]+))?)");
    text = WithoutBlanks(text);
    std::cmatch parts;
    if (!std::regex_match(text.data(), text.data() + text.size(), parts, kNumber) ||
        parts.length(2) + parts.length(3) == 0) {
        throw ExactError{kTypeMismatch};
    }
    const long exponent = ReadExponent(parts.str(4)) - static_cast<long>(parts.length(3));
    const Rational magnitude =
        Rational::OfDigits(parts.str(2) + parts.str(3)) * Rational::PowerOfTen(exponent);
    return parts.str(1) == "-" ? -magnitude : magnitude;
}

std::string_view WithoutBlanks(std::string_view text) {
    while (text.starts_with(' ')) {
        text.remove_prefix(1);
    }
    while (text.ends_with(' ')) {
        text.remove_suffix(1);
    }
    return text;
}

const Rational& ExactPi() {
    static const Rational pi(3.14159265358979);
    return pi;
}

float ExactDepth(float volume, const Rational& diameter) {
    // A double too, as the digits mean it.
    static const Rational inchesPerCentimetre(0.393700787);
    const Rational depth = Quotient(Rational(volume) * 4, diameter * diameter * ExactPi());
    return RoundToSingle(depth * inchesPerCentimetre);
}

Rational ExactChristiansen(const std::vector<Rational>& depths, const Rational& average) {
    Rational sum;
    Rational deviations;
    for (const Rational& depth : depths) {
        sum += depth;
        deviations += abs(depth - average);
    }
    return (1 - Quotient(deviations, sum)) * 100;
}

Rational ExactLowQuarter(std::vector<Rational> depths, const Rational& average) {
    std::ranges::sort(depths, [](const Rational& left, const Rational& right) { return left < right; });
    // A quarter of the count, to the nearest even number at a tie.
    std::size_t lowest = depths.size() / 4;
    const std::size_t rest = depths.size() % 4;
    if (rest == 3 || (rest == 2 && lowest % 2 == 1)) {
        ++lowest;
    }
    Rational sum;
    for (std::size_t i = 0; i < lowest; ++i) {
        sum += depths[i];
    }
    const Rational quarter(std::ssize(depths), 4);
    return Quotient(sum / quarter, average) * 100;
}

} // namespace orvel::testing
