// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ReportText.h"

#include "core/Arithmetic.h"
#include "core/Masks.h"
#include "core/Text.h"

namespace orvel {

std::string ReportLine(std::string_view label, std::string_view value, std::string_view behind) {
    return std::string{label}.append(value).append(behind).append(kCrLf);
}

std::string PercentLine(std::string_view label, float percent) {
    return ReportLine(label, FormatMask(percent, "00"), "%");
}

std::string LowAndHighPointsParagraph() {
    std::string text = "If there are specific points in the fields where improvements "
                       "may be needed they will be indicated on the report by either "
                       "red (for low) or blue (for high). These points recorded a "
                       "variation greater than 20% from the average. Check sprinklers "
                       "at or near these points for proper operation. Items to look "
                       "for include proper rotation (if the sprinkler rotates), worn "
                       "nozzles, clogged nozzles and leaks that may have been collected "
                       "by the data collection cups. ";
    return text.append(kCrLf).append(kCrLf);
}

std::string LowQuarterParagraph(float lowQuarter) {
    std::string text = "The low quarter DU is an indication of the percentage of water that the "
                       "lowest 25% of the data gets compared to the average amount of "
                       "water collected (all the data). In your particular situation it means "
                       "that the amount of water collected by the lowest 25% of the data was ";
    text += PercentText(lowQuarter);
    text += " of the average amount of all the data collected. A low quarter uniformity"
            " close to 100% means the system has less variability in its output or uniformity.";
    return text.append(kCrLf).append(kCrLf);
}

std::string PercentText(float percent) {
    return FormatMask(StoreSingle(percent / 100.0L), "00%");
}

} // namespace orvel
