// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/DataChecks.h"

#include "core/Messages.h"

namespace orvel {

namespace {

// A list with something in it is longer than this.
constexpr std::size_t kEmptyListLength = 2;

void ShowList(std::string_view heading, std::string_view list, std::string_view closing,
              std::string_view title) {
    std::string text{heading};
    text.append(kCrLf).append(kCrLf).append(list).append(kCrLf).append(kCrLf).append(closing);
    // kept: warnings show the same critical icon as errors.
    ShowKeptMessage({text, std::string{title}, Buttons::Ok, Icon::Critical});
}

} // namespace

void DataChecks::CheckCupCount(std::int16_t cupCount) {
    if (cupCount == 0) {
        AddError("You Have Not Entered Any Irrigation Measurements.");
    }
    if (cupCount < 3) {
        AddError("You Have Entered Less Than 3 Irrigation Measurements.");
    }
}

DataChecks::CatchBounds DataChecks::BoundsAround(float average) {
    return {StoreSingle(2.0L * average), StoreSingle(0.5L * average)};
}

void DataChecks::CheckCatch(int cup, float volume, const CatchBounds& bounds) {
    const std::string number = std::to_string(cup);
    if (volume == 0.0F) {
        AddWarning("No Value Was Entered For Gauge: " + number);
    } else if (volume > bounds.high) {
        AddWarning("The Value For Gauge " + number + " May be High (>200% of Average).");
    } else if (bounds.low > volume) {
        AddWarning("The Value For Gauge " + number + " May be Low (<50% of Average).");
    }
}

bool DataChecks::Report() const {
    const bool hasErrors = errors.size() > kEmptyListLength;
    if (hasErrors) {
        ShowList("You Have Errors That Will Prevent Report Creation.", errors, "Please Correct Entries.",
                 "Errors in Data");
    }
    if (warnings.size() > kEmptyListLength) {
        // kept: "Potention".
        ShowList("Potention Input Problems Were Found.", warnings,
                 "These May Not Be Errors, But Should Be Checked.", "Possible Errors in Data");
    }
    return !hasErrors;
}

} // namespace orvel
