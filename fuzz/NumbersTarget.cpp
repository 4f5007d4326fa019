// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"

#include "core/Masks.h"
#include "core/NumberText.h"
#include "core/Text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

// Numbers and texts. An input is a byte that chooses the locale, the 8 bytes of a double whose first 4 are a
// Single as well, and two lines: what somebody typed for a number, and a mask.
namespace orvel::fuzz {

namespace {

constexpr std::size_t kMostBytes = 300;

const NumberLocale& LocaleOf(char choice) {
    static const std::array<NumberLocale, 5> kLocales = {{
        {},
        {',', '.', "\3"},
        {',', '\xA0', "\3"},
        {'.', ',', "\3\2"},
        {',', '\0', ""},
    }};
    return kLocales.at(static_cast<unsigned char>(choice) % kLocales.size());
}

// A conversion's value, or its run-time error.
template <class Number>
struct Outcome {
    Number value = 0;
    std::optional<ErrorNumber> error;
};

template <class Number>
Outcome<Number> Converted(Number (*convert)(std::string_view), std::string_view text) {
    Outcome<Number> outcome;
    outcome.error = ErrorOf([&] { outcome.value = convert(text); });
    RequireOnly(outcome.error, {ErrorNumber::TypeMismatch, ErrorNumber::Overflow}, "a conversion");
    return outcome;
}

bool IsMismatch(std::optional<ErrorNumber> error) {
    return error == ErrorNumber::TypeMismatch;
}

// Whether a trimmed text is a number in the form that means the same everywhere.
bool IsPlain(std::string_view text) {
    const auto take = [&text](std::string_view characters, std::size_t most) {
        const std::size_t length = std::min(text.find_first_not_of(characters), text.size());
        text.remove_prefix(std::min(length, most));
        return std::min(length, most);
    };
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::size_t kAny = std::string_view::npos;
    take("+-", 1);
    const std::size_t whole = take(kDigits, kAny);
    const std::size_t decimals = take(".", 1) == 1 ? take(kDigits, kAny) : 0;
    if (whole + decimals == 0) {
        return false;
    }
    return text.empty() || (take("eE", 1) == 1 && (take("+-", 1), take(kDigits, kAny)) > 0 && text.empty());
}

// The C library reads the same form, rounding once as well.
template <class Float>
void RequireAsRead(const Outcome<Float>& outcome, Float expected) {
    Require(std::isfinite(expected)
                ? !outcome.error && std::bit_cast<std::array<char, sizeof(Float)>>(outcome.value) ==
                                        std::bit_cast<std::array<char, sizeof(Float)>>(expected)
                : outcome.error == ErrorNumber::Overflow,
            "a plain number has the value that the C library reads");
}

template <class Integer>
void RequireNearest(const Outcome<Integer>& outcome, double value) {
    if (outcome.error) {
        Require(value >= double{std::numeric_limits<Integer>::max()} ||
                    value <= double{std::numeric_limits<Integer>::min()},
                "only what is outside of the type overflows");
    } else {
        Require(std::fabs(static_cast<double>(outcome.value) - value) <= 0.5,
                "an integer is the nearest one");
    }
}

void TryText(std::string_view text) {
    const auto single = Converted(ToSingle, text);
    const auto number = Converted(ToDouble, text);
    const auto integer = Converted(ToInteger, text);
    const auto whole = Converted(ToLong, text);
    const bool isMismatch = IsMismatch(number.error);
    Require(IsMismatch(single.error) == isMismatch && IsMismatch(integer.error) == isMismatch &&
                IsMismatch(whole.error) == isMismatch,
            "all types agree on what is a number");
    if (!integer.error) {
        Require(!whole.error && whole.value == integer.value, "both integer types agree");
    }
    if (!number.error) {
        RequireNearest(integer, number.value);
        RequireNearest(whole, number.value);
    }
    if (!number.error && !single.error) {
        const auto rounded = static_cast<float>(number.value);
        Require(rounded == single.value || std::nextafter(rounded, single.value) == single.value,
                "a Single is the double or its neighbour");
    }
    const std::string trimmed{Trim(text)};
    if (IsPlain(trimmed)) {
        Require(!isMismatch, "a plain number is one in every locale");
        RequireAsRead(single, std::strtof(trimmed.c_str(), nullptr));
        RequireAsRead(number, std::strtod(trimmed.c_str(), nullptr));
    }
}

void TryPlainText(float value) {
    std::string text;
    const auto error = ErrorOf([&] { text = PlainText(value); });
    Require(error.has_value() == !std::isfinite(value) && (!error || error == ErrorNumber::Overflow),
            "what is not finite has no text, everything else has");
    if (!error) {
        Require(text.find_first_of("eE") == std::string::npos, "a plain text has no exponent");
        Require(ToSingle(text) == value, "what is written reads back as the same Single");
        Require(ToSingle(PlainText(value, InvariantNumberLocale())) == value, "also what files have");
    }
}

// The number that a masked text stands for, read without the locale's help.
long double ValueOf(std::string text, const NumberLocale& locale) {
    std::erase(text, locale.groupSeparator);
    std::ranges::replace(text, locale.decimalSeparator, '.');
    const bool isPercent = text.find('%') != std::string::npos;
    return std::strtold(text.c_str(), nullptr) / (isPercent ? 100 : 1);
}

template <class Float>
void TryMask(Float value, std::string_view mask, double precision) {
    std::string text;
    const auto error = ErrorOf([&] { text = FormatMask(value, mask); });
    const bool isMask = mask.find_first_not_of("0#,.%") == std::string_view::npos;
    Require(error.has_value() == !(isMask && std::isfinite(value)), "a mask and a finite value give a text");
    RequireOnly(error, {ErrorNumber::Overflow, ErrorNumber::InvalidProcedureCall}, "a mask");
    if (error) {
        return;
    }
    const std::size_t point = mask.find('.');
    const bool isPercent = mask.find('%') != std::string_view::npos;
    const std::string_view decimals = point == std::string_view::npos ? "" : mask.substr(point);
    const auto places = static_cast<double>(
        std::ranges::count_if(decimals, [](char each) { return each == '0' || each == '#'; }));
    const double step = std::pow(10.0, -places) / (isPercent ? 100 : 1);
    const long double written = ValueOf(text, CurrentNumberLocale());
    Require(std::fabs(written - value) <= step * 0.5000001 + std::fabs(double{value}) * precision,
            "a masked text stands for the value, rounded at the last decimal");
    Require(written != 0 || !text.starts_with('-'), "zero has no sign");
    Require(text.ends_with('%') == isPercent, "percent is shown");
    const bool isPointShown = text.find(CurrentNumberLocale().decimalSeparator) != std::string::npos;
    Require(isPointShown == (point != std::string_view::npos), "the point is shown if the mask has one");
}

} // namespace

bool Try(std::string_view input) {
    constexpr std::size_t kFixedBytes = 1 + sizeof(double);
    if (input.size() < kFixedBytes || input.size() > kMostBytes) {
        return false;
    }
    UseNumberLocale(LocaleOf(input.front()));
    double number = 0;
    float single = 0;
    std::memcpy(&number, input.data() + 1, sizeof number);
    std::memcpy(&single, input.data() + 1, sizeof single);
    const std::string_view lines = input.substr(kFixedBytes);
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    const std::string_view text = lines.substr(0, end);
    const std::string_view mask = lines.substr(std::min(end + 1, lines.size()));

    TryText(text);
    TryPlainText(single);
    TryMask(single, mask, 1e-6);
    TryMask(number, mask, 1e-14);
    return true;
}

} // namespace orvel::fuzz
