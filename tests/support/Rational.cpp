// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/Rational.h"

#include <algorithm>
#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace orvel::testing {

namespace {

namespace mp = boost::multiprecision;

using Integer = mp::cpp_int;

Integer Power(unsigned base, long exponent) {
    return mp::pow(Integer(base), static_cast<unsigned>(exponent));
}

} // namespace

// The denominator is positive. Common factors of 2 are taken out at once: nearly all numbers here are binary
// ones. Others are looked for when the denominator has grown large.
struct Rational::Fraction {
    Integer numerator;
    Integer denominator;
};

Rational::Rational(Fraction fraction) {
    constexpr std::size_t kLargeBits = 4096;
    auto& [numerator, denominator] = fraction;
    if (numerator == 0) {
        denominator = 1;
    } else {
        const std::size_t twos = std::min(mp::lsb(mp::abs(numerator)), mp::lsb(denominator));
        numerator /= Integer(1) << twos;
        denominator >>= twos;
    }
    if (mp::msb(denominator) > kLargeBits) {
        const Integer common = mp::gcd(numerator, denominator);
        numerator /= common;
        denominator /= common;
    }
    value = std::make_shared<const Fraction>(std::move(fraction));
}

Rational::Rational(int number) : Rational(Fraction{number, 1}) {}

Rational::Rational(double number) {
    constexpr int kDigits = std::numeric_limits<double>::digits;
    int exponent = 0;
    const auto whole = static_cast<long long>(std::ldexp(std::frexp(number, &exponent), kDigits));
    *this = Rational(Fraction{whole, 1}) * PowerOfTwo(exponent - kDigits);
}

Rational::Rational(long long numerator, long long denominator)
    : Rational(Fraction{denominator < 0 ? -Integer(numerator) : Integer(numerator),
                        mp::abs(Integer(denominator))}) {}

Rational Rational::OfDigits(const std::string& digits) {
    // A leading 0 would make them octal.
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size() - 1);
    return Rational(Fraction{Integer(digits.substr(first)), 1});
}

Rational Rational::PowerOfTwo(long exponent) {
    const Integer power = Integer(1) << static_cast<unsigned>(std::abs(exponent));
    return exponent < 0 ? Rational(Fraction{1, power}) : Rational(Fraction{power, 1});
}

Rational Rational::PowerOfTen(long exponent) {
    const Integer power = Power(10, std::abs(exponent));
    return exponent < 0 ? Rational(Fraction{1, power}) : Rational(Fraction{power, 1});
}

long Rational::BinaryExponent() const {
    const Rational magnitude = abs(*this);
    const long exponent = static_cast<long>(mp::msb(magnitude.value->numerator)) -
                          static_cast<long>(mp::msb(magnitude.value->denominator));
    return magnitude < PowerOfTwo(exponent) ? exponent - 1 : exponent;
}

Rational Rational::Rounded() const {
    const Integer& denominator = value->denominator;
    Integer whole;
    Integer rest;
    mp::divide_qr(Integer(mp::abs(value->numerator)), denominator, whole, rest);
    const Integer twice = 2 * rest;
    if (twice > denominator || (twice == denominator && mp::bit_test(whole, 0))) {
        ++whole;
    }
    return Rational(Fraction{value->numerator < 0 ? Integer(-whole) : whole, 1});
}

double Rational::ToDouble() const {
    if (value->numerator == 0) {
        return 0;
    }
    // Both are powers of two but for the odd factor.
    const auto twos = static_cast<int>(mp::lsb(mp::abs(value->numerator)));
    const Integer odd = value->numerator / (Integer(1) << static_cast<unsigned>(twos));
    return std::ldexp(odd.convert_to<double>(), twos - static_cast<int>(mp::msb(value->denominator)));
}

Rational Rational::operator-() const {
    return Rational(Fraction{-value->numerator, value->denominator});
}

Rational operator+(const Rational& left, const Rational& right) {
    const auto& [one, part] = *left.value;
    const auto& [other, otherPart] = *right.value;
    if (part == otherPart) {
        return Rational(Rational::Fraction{one + other, part});
    }
    return Rational(Rational::Fraction{one * otherPart + other * part, part * otherPart});
}

Rational operator-(const Rational& left, const Rational& right) {
    return left + -right;
}

Rational operator*(const Rational& left, const Rational& right) {
    return Rational(Rational::Fraction{left.value->numerator * right.value->numerator,
                                       left.value->denominator * right.value->denominator});
}

Rational operator/(const Rational& left, const Rational& right) {
    Integer numerator = left.value->numerator * right.value->denominator;
    Integer denominator = left.value->denominator * right.value->numerator;
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    return Rational(Rational::Fraction{std::move(numerator), std::move(denominator)});
}

std::strong_ordering operator<=>(const Rational& left, const Rational& right) {
    const Integer one = left.value->numerator * right.value->denominator;
    const int order = one.compare(right.value->numerator * left.value->denominator);
    return order <=> 0;
}

Rational abs(const Rational& number) {
    return number < 0 ? -number : number;
}

} // namespace orvel::testing
