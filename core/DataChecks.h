// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Arithmetic.h"
#include "core/FixedText.h"
#include "core/Records.h"
#include "core/Text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// What the data checks of both kinds of test share: gathering lines, the remarks on single catches, and the
// two message boxes.
namespace orvel {

// The average catch in cc, 0 when there is no cup. The checks keep their sum and average in Singles, each
// addition rounded. Raises Overflow for a volume that is not a finite number.
template <class Gauge>
float AverageVolume(const MeasurementList<Gauge>& gauges, std::int16_t cupCount) {
    float sum = 0;
    for (int i = 1; i <= cupCount; ++i) {
        sum = AddSingles(sum, gauges[i].Volume);
    }
    return cupCount > 0 ? StoreSingle(Divide(sum, cupCount)) : 0.0F;
}

class DataChecks {
public:
    // Appends one error, which stops the report, as a line.
    void AddError(std::string_view line) { errors.append(line).append(kCrLf); }

    // Appends one warning, which only informs, as a line.
    void AddWarning(std::string_view line) { warnings.append(line).append(kCrLf); }

    // Adds an error when the field is blank; it is trimmed in the record.
    template <std::size_t N>
    void RequireEntry(FixedText<N>& field, std::string_view error) {
        if (field.TrimInPlace().empty()) {
            AddError(error);
        }
    }

    // The two errors about too few measurements; no cup at all draws both.
    void CheckCupCount(std::int16_t cupCount);

    // At most one warning for each counted cup: no value, more than twice or less than half of the average
    // volume (both bounds rounded to single precision; a volume equal to one draws nothing).
    template <class Gauge>
    void CheckCatches(const MeasurementList<Gauge>& gauges, std::int16_t cupCount, float average) {
        const CatchBounds bounds = BoundsAround(average);
        for (int i = 1; i <= cupCount; ++i) {
            CheckCatch(i, gauges[i].Volume, bounds);
        }
    }

    // Shows the errors, then the warnings, each list in a box of its own when it is not empty. True when
    // there is no error and the report may be built.
    [[nodiscard]] bool Report() const;

private:
    struct CatchBounds {
        float high = 0;
        float low = 0;
    };

    static CatchBounds BoundsAround(float average);
    void CheckCatch(int cup, float volume, const CatchBounds& bounds);

    std::string errors;
    std::string warnings;
};

} // namespace orvel
