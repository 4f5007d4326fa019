// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetChecks.h"

#include "core/CatchCan.h"
#include "core/DataChecks.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"

#include <string_view>

namespace orvel {

namespace {

void RequireCupsAlongAxis(DataChecks& checks, FixedText<20>& number, std::string_view error) {
    const std::string_view text = number.TrimInPlace();
    const bool isBlank = text.empty();
    // kept: the number is read even where the field is blank, which ends the check with a run-time error.
    const bool isPositive = ToInteger(text) > 0;
    if (isBlank || !isPositive) {
        checks.AddError(error);
    }
}

} // namespace

bool SolidSetDataCheck() {
    SolidSetTest& test = Program().solidSetTest;
    const std::int16_t cupCount = CountCups(test.Gauges);
    const float average = AverageVolume(test.Gauges, cupCount);

    DataChecks checks;
    checks.CheckCupCount(cupCount);
    checks.RequireEntry(test.ClientName, "You Should Enter the Client Name.");
    checks.RequireEntry(test.GuageDiameter, "Rain Gauge (Collection Cup) Diameter Must be Entered.");
    RequireCupsAlongAxis(checks, test.NumberX, "The X Axis Must be Entered.");
    RequireCupsAlongAxis(checks, test.NumberY, "The Y Axis Must be Entered.");
    checks.CheckCatches(test.Gauges, cupCount, average);
    return checks.Report();
}

} // namespace orvel
