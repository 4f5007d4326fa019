// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <memory>
#include <string>

namespace orvel::testing {

// A rational number of any size; nothing is ever rounded.
class Rational {
public:
    Rational() : Rational(0) {}
    Rational(int number);
    // Exactly what the binary number is; it must be finite.
    Rational(float number) : Rational(static_cast<double>(number)) {}
    Rational(double number);
    // The denominator is not 0.
    Rational(long long numerator, long long denominator);

    // A whole number in decimal digits, of which there is at least one.
    [[nodiscard]] static Rational OfDigits(const std::string& digits);
    [[nodiscard]] static Rational PowerOfTwo(long exponent);
    [[nodiscard]] static Rational PowerOfTen(long exponent);

    // The exponent of the power of two at or below the magnitude. Not of 0.
    [[nodiscard]] long BinaryExponent() const;
    // The nearest whole number, ties to even.
    [[nodiscard]] Rational Rounded() const;
    // Of a number that a double holds.
    [[nodiscard]] double ToDouble() const;

    [[nodiscard]] Rational operator-() const;
    Rational& operator+=(const Rational& other) { return *this = *this + other; }

    friend Rational operator+(const Rational& left, const Rational& right);
    friend Rational operator-(const Rational& left, const Rational& right);
    friend Rational operator*(const Rational& left, const Rational& right);
    // Not by 0.
    friend Rational operator/(const Rational& left, const Rational& right);
    friend std::strong_ordering operator<=>(const Rational& left, const Rational& right);

    friend bool operator==(const Rational& left, const Rational& right) { return (left <=> right) == 0; }

private:
    struct Fraction;
    explicit Rational(Fraction fraction);

    std::shared_ptr<const Fraction> value;
};

[[nodiscard]] Rational abs(const Rational& number);

} // namespace orvel::testing
