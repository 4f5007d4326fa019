// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include <algorithm>

namespace orvel {

namespace {

constexpr char kBlank = ' ';

std::size_t HalfRoundedToEven(std::size_t number) {
    const std::size_t half = number / 2;
    const bool isTie = number % 2 == 1;
    return isTie && half % 2 == 1 ? half + 1 : half;
}

} // namespace

std::string_view TrimRight(std::string_view text) {
    const std::size_t last = text.find_last_not_of(kBlank);
    return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
    const std::string_view trimmed = TrimRight(text);
    const std::size_t first = trimmed.find_first_not_of(kBlank);
    return first == std::string_view::npos ? std::string_view{} : trimmed.substr(first);
}

std::string PadText(std::string_view text, std::size_t width, char alignment, char fill) {
    std::string padded{Trim(text).substr(0, width)};
    const std::size_t missing = width - padded.size();
    switch (alignment) {
    case 'R':
    case 'r':
        padded.append(missing, fill);
        break;
    case 'L':
    case 'l':
        padded.insert(0, missing, fill);
        break;
    case 'C':
    case 'c': {
        const std::size_t side = HalfRoundedToEven(missing);
        padded.insert(0, side, fill);
        padded.append(side, fill);
        padded.resize(width, fill);
        break;
    }
    default:
        break;
    }
    return padded;
}

std::string RightColumn(std::string_view text, std::size_t width) {
    return PadText(text, std::max(width, Trim(text).size() + 1), 'L', kBlank);
}

std::string_view BooleanWord(bool value) {
    return value ? "True" : "False";
}

std::string Rule() {
    std::string rule(kReportColumns, '=');
    return rule;
}

std::string RuleLine() {
    return Rule().append(kCrLf);
}

} // namespace orvel
