// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include "core/Arithmetic.h"

#include <algorithm>

namespace orvel {

namespace {

constexpr char kBlank = ' ';

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
    const std::string_view kept = Trim(text).substr(0, width);
    const std::size_t missing = width - kept.size();
    std::string padded;
    switch (alignment) {
    case 'R':
    case 'r':
        padded.append(kept).append(missing, fill);
        break;
    case 'L':
    case 'l':
        padded.append(missing, fill).append(kept);
        break;
    case 'C':
    case 'c':
        padded.append(HalfRoundedToEven(missing), fill).append(kept);
        padded.resize(width, fill);
        break;
    default:
        padded = kept;
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
