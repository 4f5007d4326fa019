// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/centerpivot/ExactPivot.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace orvel::testing {

namespace {

constexpr int kOverflow = 6;
constexpr int kSubscriptOutOfRange = 9;
constexpr int kDivisionByZero = 11;
constexpr int kTypeMismatch = 13;

// Doubles, so the digits mean the nearest double.
const mpq_class kPi(3.14159265358979);
const mpq_class kInchesPerCentimetre(0.393700787);

// 2 to the power of a whole number of either sign.
mpq_class PowerOfTwo(long exponent) {
    mpz_class power(1);
    power <<= static_cast<mp_bitcnt_t>(std::abs(exponent));
    return exponent < 0 ? mpq_class(mpz_class(1), power) : mpq_class(power);
}

template <class Float>
Float RoundTo(const mpq_class& value) {
    using Limits = std::numeric_limits<Float>;
    const mpq_class magnitude = abs(value);
    if (magnitude == 0) {
        return 0;
    }
    // The power of two at or below the magnitude decides the weight of the last place.
    long exponent = static_cast<long>(mpz_sizeinbase(magnitude.get_num_mpz_t(), 2)) -
                    static_cast<long>(mpz_sizeinbase(magnitude.get_den_mpz_t(), 2));
    if (magnitude < PowerOfTwo(exponent)) {
        --exponent;
    }
    const long lastPlace =
        std::max(exponent, static_cast<long>(Limits::min_exponent) - 1) - Limits::digits + 1;
    const mpq_class scaled = magnitude * PowerOfTwo(-lastPlace);
    mpz_class whole = scaled.get_num() / scaled.get_den();
    const int side = cmp(mpq_class(scaled - whole), mpq_class(1, 2));
    if (side > 0 || (side == 0 && mpz_odd_p(whole.get_mpz_t()) != 0)) {
        ++whole;
    }
    const double rounded = std::ldexp(whole.get_d(), static_cast<int>(lastPlace));
    if (rounded > static_cast<double>(Limits::max())) {
        throw ExactError{kOverflow};
    }
    return static_cast<Float>(value < 0 ? -rounded : rounded);
}

mpq_class Quotient(const mpq_class& dividend, const mpq_class& divisor) {
    if (divisor == 0) {
        throw ExactError{dividend == 0 ? kOverflow : kDivisionByZero};
    }
    return dividend / divisor;
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

template <std::size_t N>
std::string_view Entry(const FixedText<N>& field) {
    return WithoutBlanks(field.Whole());
}

template <std::size_t N>
mpq_class Single(const FixedText<N>& field) {
    return mpq_class(RoundToSingle(ReadDecimal(field.Whole())));
}

template <std::size_t N>
mpq_class Double(const FixedText<N>& field) {
    return mpq_class(RoundToDouble(ReadDecimal(field.Whole())));
}

std::int16_t Count(const CenterPivotTest& test) {
    for (int i = 1; i < 300; ++i) {
        if (test.Gauges[i].Volume == 0.0F && test.Gauges[i + 1].Volume == 0.0F) {
            return static_cast<std::int16_t>(i - 1);
        }
    }
    // The entry behind entry 300 is wanted whatever entry 300 holds.
    throw ExactError{kSubscriptOutOfRange};
}

void Depths(const CenterPivotTest& test, ExactResults& results) {
    mpq_class opening;
    for (int i = 1; i <= results.cupCount; ++i) {
        const PivotGauge& gauge = test.Gauges[i];
        ExactRow& row = results.rows.at(static_cast<std::size_t>(i));
        row.sequence = gauge.Sequence;
        row.footage = gauge.Footage;
        if (i == 1) {
            const mpq_class diameter = Single(test.GuageDiameter);
            opening = mpq_class(RoundToDouble(diameter * diameter)) * kPi;
        }
        const mpq_class volume(static_cast<float>(gauge.Volume));
        row.depth = RoundToSingle(Quotient(volume * 4, opening) * kInchesPerCentimetre);
    }
}

struct ExactCup {
    mpq_class depth;
    mpq_class distance;
};

mpq_class LowQuarter(const std::vector<ExactCup>& cups, const mpq_class& average) {
    std::vector<mpq_class> sorted;
    for (const ExactCup& cup : cups) {
        sorted.push_back(cup.depth);
    }
    std::ranges::sort(sorted, [](const mpq_class& left, const mpq_class& right) { return left < right; });
    // A quarter of the count, to the nearest even number at a tie.
    std::size_t lowest = cups.size() / 4;
    const std::size_t rest = cups.size() % 4;
    if (rest == 3 || (rest == 2 && lowest % 2 == 1)) {
        ++lowest;
    }
    mpq_class sum;
    for (std::size_t i = 0; i < lowest; ++i) {
        sum += sorted[i];
    }
    const mpq_class quarter(static_cast<unsigned long>(cups.size()), 4UL);
    return Quotient(sum / quarter, average) * 100;
}

mpq_class HeermannHein(const std::vector<ExactCup>& cups) {
    mpq_class weights;
    mpq_class products;
    for (const ExactCup& cup : cups) {
        weights += cup.distance;
        products += cup.depth * cup.distance;
    }
    const mpq_class mean = Quotient(products, weights);
    mpq_class deviations;
    for (const ExactCup& cup : cups) {
        deviations += abs(cup.depth - mean) * cup.distance;
    }
    return (1 - Quotient(deviations, products)) * 100;
}

void Uniformity(ExactResults& results) {
    std::vector<ExactCup> cups;
    results.maximumDepth = results.rows[1].depth;
    mpq_class sum;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(results.cupCount); ++i) {
        const ExactRow& row = results.rows.at(i);
        cups.push_back({mpq_class(row.depth), mpq_class(row.footage)});
        sum += cups.back().depth;
        results.maximumDepth = std::max(results.maximumDepth, row.depth);
    }
    results.averageDepth = RoundToSingle(Quotient(sum, results.cupCount));
    const mpq_class average(results.averageDepth);
    mpq_class deviations;
    for (const ExactCup& cup : cups) {
        deviations += abs(cup.depth - average);
    }
    results.christiansenCU = RoundToSingle((1 - Quotient(deviations, sum)) * 100);
    results.lowQuarterDU = RoundToSingle(LowQuarter(cups, average));
    results.heermannHeinCU = RoundToSingle(HeermannHein(cups));
}

void Acres(const CenterPivotTest& test, ExactResults& results) {
    if (Entry(test.DistanceToTower).empty() || Entry(test.LengthOverhang).empty() ||
        Entry(test.EndGunRadius).empty()) {
        return;
    }
    const mpq_class machine(RoundToSingle(Single(test.DistanceToTower) + Single(test.LengthOverhang)));
    const mpq_class radius(RoundToSingle(machine + Single(test.EndGunRadius)));
    const mpq_class square(RoundToDouble(radius * radius));
    results.irrigatedAcres = RoundToSingle(square * kPi / 43560);
}

float FlowRate(const CenterPivotTest& test, const ExactResults& results) {
    const mpq_class seconds(RoundToSingle(Single(test.TravelSpeedSeconds) / 3600));
    const mpq_class hours = Single(test.TravelSpeedMinutes) / 60 + seconds;
    const mpq_class speed(RoundToDouble(Quotient(Single(test.TravelSpeedFeet), hours)));
    const mpq_class timer = Double(test.PercentTimer);
    const mpq_class fullSpeed(RoundToSingle(Quotient(100, timer) * speed));
    const mpq_class tower = Double(test.DistanceToTower);
    const mpq_class circumference(RoundToSingle((tower + tower) * kPi));
    const mpq_class fullSpeedHours = Quotient(circumference, fullSpeed);
    const mpq_class revolution = Quotient(fullSpeedHours, mpq_class(RoundToSingle(timer / 100)));
    mpq_class acres;
    if (!Entry(test.TotalAcres).empty()) {
        acres = Single(test.TotalAcres);
    }
    if (results.irrigatedAcres > 0) {
        acres = results.irrigatedAcres;
    }
    const mpq_class depth(results.averageDepth);
    if (acres == 0 || depth == 0 || revolution == 0) {
        return 0;
    }
    return RoundToSingle(acres * 453 * depth / revolution);
}

mpq_class EnteredFlow(const CenterPivotTest& test) {
    mpq_class flow;
    if (!Entry(test.EstFlowRate).empty()) {
        flow = Single(test.EstFlowRate);
    }
    if (!Entry(test.MeasuredFlowRate).empty()) {
        flow = Single(test.MeasuredFlowRate);
    }
    return flow;
}

float Efficiency(const CenterPivotTest& test, const ExactResults& results) {
    const mpq_class flow = EnteredFlow(test);
    const mpq_class calculated(results.calculatedFlowRate);
    return calculated != 0 && flow != 0 ? RoundToSingle(calculated / flow) : 0.0F;
}

// A step that traps its own errors: its result is 0 then.
template <class Step>
float ZeroWhenItFails(Step step) {
    try {
        return step();
    } catch (const ExactError&) {
        return 0;
    }
}

} // namespace

float RoundToSingle(const mpq_class& value) {
    return RoundTo<float>(value);
}

double RoundToDouble(const mpq_class& value) {
    return RoundTo<double>(value);
}

mpq_class ReadDecimal(std::string_view text) {
    text = WithoutBlanks(text);
    const std::size_t exponentMark = std::min(text.find_first_of("eE"), text.size());
    std::string digits{text.substr(0, exponentMark)};
    long exponent = 0;
    if (exponentMark < text.size()) {
        exponent = std::stol(std::string{text.substr(exponentMark + 1)});
    }
    const bool isNegative = digits.starts_with('-');
    digits.erase(0, isNegative || digits.starts_with('+') ? 1 : 0);
    if (const std::size_t point = digits.find('.'); point != std::string::npos) {
        digits.erase(point, 1);
        exponent -= static_cast<long>(digits.size() - point);
    }
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) {
        throw ExactError{kTypeMismatch};
    }
    mpz_class power;
    mpz_ui_pow_ui(power.get_mpz_t(), 10, static_cast<unsigned long>(std::abs(exponent)));
    const mpq_class number{mpz_class(digits, 10)};
    const mpq_class magnitude = exponent < 0 ? mpq_class(number / power) : mpq_class(number * power);
    return isNegative ? mpq_class(-magnitude) : magnitude;
}

ExactResults EvaluateExactly(const CenterPivotTest& test, const ExactResults& before) {
    ExactResults results = before;
    results.error.reset();
    try {
        results.cupCount = Count(test);
        Depths(test, results);
        Uniformity(results);
        Acres(test, results);
        results.calculatedFlowRate = 0;
        results.calculatedFlowRate = ZeroWhenItFails([&] { return FlowRate(test, results); });
        results.applicationEfficiency = ZeroWhenItFails([&] { return Efficiency(test, results); });
    } catch (const ExactError& error) {
        results.error = error.number;
    }
    return results;
}

std::optional<float> ExactApplicationRate(const CenterPivotTest& test) {
    const mpq_class flow = EnteredFlow(test);
    if (flow == 0 || Entry(test.DistanceToTower).empty() || Entry(test.LengthOverhang).empty() ||
        Entry(test.RadLastSprinkler).empty()) {
        return std::nullopt;
    }
    const mpq_class length(RoundToSingle(Single(test.DistanceToTower) + Single(test.LengthOverhang)));
    return RoundToSingle(Quotient(flow * mpq_class(122.5), length * Single(test.RadLastSprinkler)));
}

} // namespace orvel::testing
