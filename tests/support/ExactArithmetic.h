// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/Records.h"
#include "tests/support/Rational.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Exact rational arithmetic for a second evaluation of a test, which shares nothing with the program's but
// the record. A number is rounded, exactly and once, where it becomes a Single or a double; running sums and
// temporaries are not rounded unless a formula says so. Everything must be finite.
namespace orvel::testing {

// A run-time error of an evaluation.
struct ExactError {
    int number;
};

inline constexpr int kOverflow = 6;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;

// The description that goes with the number of an error.
[[nodiscard]] const char* DescriptionOf(int number);

// The box that the program shows for the error of an evaluation; none without one.
[[nodiscard]] std::optional<Message> BoxOf(const std::optional<int>& error);

// The bits of a Single to compare; rational numbers know no minus zero.
[[nodiscard]] std::uint32_t Bits(float value);

// What differs between two evaluations, one line each; no text when all is equal to the last bit.
class Differences {
public:
    void Compare(const std::string& name, float actual, float exact);
    [[nodiscard]] const std::string& Text() const { return text; }

private:
    std::string text;
};

// To the nearest value of the type, ties to even; 0 below half of the smallest subnormal. Throws
// ExactError 6.
[[nodiscard]] float RoundToSingle(const Rational& value);
[[nodiscard]] double RoundToDouble(const Rational& value);

// The same to the 64 binary digits of the extended type, for the temporaries of a formula whose exact value
// can lie in the middle between two Singles: there a temporary's own rounding decides.
[[nodiscard]] Rational RoundToExtended(const Rational& value);

// Throws ExactError 11 for x / 0 and 6 for 0 / 0.
[[nodiscard]] Rational Quotient(const Rational& dividend, const Rational& divisor);

// A decimal number with an optional sign, "." and exponent, blanks around it; an exponent beyond 5000 counts
// as 5000, which is beyond every type all the same. Throws ExactError 13.
[[nodiscard]] Rational ReadDecimal(std::string_view text);

[[nodiscard]] std::string_view WithoutBlanks(std::string_view text);

// A field's text, and the number it holds in the precision that is asked for. The numbers throw ExactError 13
// or 6.
template <std::size_t N>
std::string_view Entry(const FixedText<N>& field) {
    return WithoutBlanks(field.Whole());
}

template <std::size_t N>
Rational Single(const FixedText<N>& field) {
    return Rational(RoundToSingle(ReadDecimal(field.Whole())));
}

template <std::size_t N>
Rational Double(const FixedText<N>& field) {
    return Rational(RoundToDouble(ReadDecimal(field.Whole())));
}

// 3.14159265358979, as the double that these digits mean.
[[nodiscard]] const Rational& ExactPi();

// The cups before the first two zeros in a row. Throws ExactError 9 when entry 301 would be looked at.
template <class Gauge>
std::int16_t ExactCupCount(const MeasurementList<Gauge>& gauges) {
    for (int i = 1; i < 300; ++i) {
        if (gauges[i].Volume == 0.0F && gauges[i + 1].Volume == 0.0F) {
            return static_cast<std::int16_t>(i - 1);
        }
    }
    // The entry behind entry 300 is wanted whatever entry 300 holds.
    throw ExactError{kSubscriptOutOfRange};
}

// The depth, in inches, of a volume (cc) in a cup of that diameter (cm).
[[nodiscard]] float ExactDepth(float volume, const Rational& diameter);

// Both in percent, and not rounded.
[[nodiscard]] Rational ExactChristiansen(const std::vector<Rational>& depths, const Rational& average);
[[nodiscard]] Rational ExactLowQuarter(std::vector<Rational> depths, const Rational& average);

} // namespace orvel::testing
