// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FixedText.h"

#include <cstddef>
#include <string>
#include <string_view>

// Lines and paragraphs that the reports of both kinds of test share. Texts end their lines with CR LF.
namespace orvel {

// Label, value and what stands behind it, and a line end.
[[nodiscard]] std::string ReportLine(std::string_view label, std::string_view value = {},
                                     std::string_view behind = {});

// A line that stands only when its field, which is trimmed in the record, is filled in.
template <std::size_t N>
std::string FilledLine(std::string_view label, FixedText<N>& field) {
    const std::string_view value = field.TrimInPlace();
    return value.empty() ? std::string{} : ReportLine(label, value);
}

// A line that stands unless its field, which is trimmed in the record, still holds the prompt of its combo
// box; kept: a blank field prints the bare label.
template <std::size_t N>
std::string ChosenLine(std::string_view label, FixedText<N>& field, std::string_view prompt) {
    const std::string_view value = field.TrimInPlace();
    return value == prompt ? std::string{} : ReportLine(label, value);
}

// A label, and the value's digits and a "%" behind them: 7.4 is "07%".
[[nodiscard]] std::string PercentLine(std::string_view label, float percent);

// A paragraph on the cups that differ from the average, and one on the low quarter, `lowQuarter` in percent;
// an empty line behind each.
[[nodiscard]] std::string LowAndHighPointsParagraph();
[[nodiscard]] std::string LowQuarterParagraph(float lowQuarter);

// A result in percent of which a sentence speaks as a part of one, so that the mask multiplies it again: 79.6
// is "80%".
[[nodiscard]] std::string PercentText(float percent);

} // namespace orvel
