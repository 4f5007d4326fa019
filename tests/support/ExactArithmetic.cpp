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

constexpr long kLargestExponent = 5000;

// 2 to the power of a whole number of either sign.
mpq_class PowerOfTwo(long exponent) {
    mpz_class power(1);
    power <<= static_cast<mp_bitcnt_t>(std::abs(exponent));
    return exponent < 0 ? mpq_class(mpz_class(1), power) : mpq_class(power);
}

// The nearest number of `digits` binary digits whose last place weighs no less than 2 to the power of
// `leastPlace`, ties to even.
mpq_class Rounded(const mpq_class& value, long digits, long leastPlace) {
    const mpq_class magnitude = abs(value);
    if (magnitude == 0) {
        return magnitude;
    }
    // The power of two at or below the magnitude decides the weight of the last place.
    long exponent = static_cast<long>(mpz_sizeinbase(magnitude.get_num_mpz_t(), 2)) -
                    static_cast<long>(mpz_sizeinbase(magnitude.get_den_mpz_t(), 2));
    if (magnitude < PowerOfTwo(exponent)) {
        --exponent;
    }
    const mpq_class lastPlace = PowerOfTwo(std::max(exponent - digits + 1, leastPlace));
    const mpq_class scaled = magnitude / lastPlace;
    mpz_class whole = scaled.get_num() / scaled.get_den();
    const int side = cmp(mpq_class(scaled - whole), mpq_class(1, 2));
    if (side > 0 || (side == 0 && mpz_odd_p(whole.get_mpz_t()) != 0)) {
        ++whole;
    }
    return (value < 0 ? mpq_class(-whole) : mpq_class(whole)) * lastPlace;
}

template <class Float>
Float RoundTo(const mpq_class& value) {
    using Limits = std::numeric_limits<Float>;
    const mpq_class rounded = Rounded(value, Limits::digits, Limits::min_exponent - Limits::digits);
    if (abs(rounded) > mpq_class(Limits::max())) {
        throw ExactError{kOverflow};
    }
    // Exact: the value fits.
    return static_cast<Float>(rounded.get_d());
}

long ReadExponent(std::string digits) {
    if (digits.empty()) {
        return 0;
    }
    digits.erase(0, digits.starts_with('+') ? 1 : 0);
    const mpz_class exponent(digits, 10);
    if (abs(exponent) > kLargestExponent) {
        return exponent < 0 ? -kLargestExponent : kLargestExponent;
    }
    return exponent.get_si();
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

float RoundToSingle(const mpq_class& value) {
    return RoundTo<float>(value);
}

double RoundToDouble(const mpq_class& value) {
    return RoundTo<double>(value);
}

mpq_class RoundToExtended(const mpq_class& value) {
    constexpr long kDigits = 64;
    constexpr long kLeastPlace = -16445;
    return Rounded(value, kDigits, kLeastPlace);
}

mpq_class Quotient(const mpq_class& dividend, const mpq_class& divisor) {
    if (divisor == 0) {
        throw ExactError{dividend == 0 ? kOverflow : kDivisionByZero};
    }
    return dividend / divisor;
}

mpq_class ReadDecimal(std::string_view text) {
    static const std::regex kNumber(R"(([+-]?)([0-9]*)\.?([0-9]*)(?:[eE]([+-]?[0-9]+))?)");
    text = WithoutBlanks(text);
    std::cmatch parts;
    if (!std::regex_match(text.data(), text.data() + text.size(), parts, kNumber) ||
        parts.length(2) + parts.length(3) == 0) {
        throw ExactError{kTypeMismatch};
    }
    const long exponent = ReadExponent(parts.str(4)) - static_cast<long>(parts.length(3));
    mpz_class power;
    mpz_ui_pow_ui(power.get_mpz_t(), 10, static_cast<unsigned long>(std::abs(exponent)));
    const mpq_class number{mpz_class(parts.str(2) + parts.str(3), 10)};
    const mpq_class magnitude = exponent < 0 ? mpq_class(number / power) : mpq_class(number * power);
    return parts.str(1) == "-" ? mpq_class(-magnitude) : magnitude;
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

const mpq_class& ExactPi() {
    static const mpq_class pi(3.14159265358979);
    return pi;
}

float ExactDepth(float volume, const mpq_class& diameter) {
    // A double too, as the digits mean it.
    static const mpq_class inchesPerCentimetre(0.393700787);
    const mpq_class depth = Quotient(mpq_class(volume) * 4, diameter * diameter * ExactPi());
    return RoundToSingle(depth * inchesPerCentimetre);
}

mpq_class ExactChristiansen(const std::vector<mpq_class>& depths, const mpq_class& average) {
    mpq_class sum;
    mpq_class deviations;
    for (const mpq_class& depth : depths) {
        sum += depth;
        deviations += abs(depth - average);
    }
    return (1 - Quotient(deviations, sum)) * 100;
}

mpq_class ExactLowQuarter(std::vector<mpq_class> depths, const mpq_class& average) {
    std::ranges::sort(depths, [](const mpq_class& left, const mpq_class& right) { return left < right; });
    // A quarter of the count, to the nearest even number at a tie.
    std::size_t lowest = depths.size() / 4;
    const std::size_t rest = depths.size() % 4;
    if (rest == 3 || (rest == 2 && lowest % 2 == 1)) {
        ++lowest;
    }
    mpq_class sum;
    for (std::size_t i = 0; i < lowest; ++i) {
        sum += depths[i];
    }
    const mpq_class quarter(static_cast<unsigned long>(depths.size()), 4UL);
    return Quotient(sum / quarter, average) * 100;
}

} // namespace orvel::testing
