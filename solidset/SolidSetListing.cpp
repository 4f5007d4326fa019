// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "solidset/SolidSetListing.h"

#include "core/Listing.h"
#include "core/Masks.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "core/Text.h"

#include <array>

namespace orvel {

namespace {

// In the record's order.
constexpr std::array<ListingLabel, 34> kLabels = {{
    {"ClientName", "Client Name:"},
    {"DateofTest", "Date of Test:"},
    {"OperatorName", "Farm Operator:"},
    {"ClientAddress", "Address:"},
    {"ClientCity", "City:"},
    {"ClientCounty", "County:"},
    {"ClientZip", "Zip Code:"},
    {"ClientState", "State:"},
    {"ClientPhone", "Phone:"},
    {"EMail", "E-Mail:"},
    {"FarmName", "Farm Name:"},
    {"FieldName", "Field Name or Identifier:"},
    {"SoilType", "Soil Type:"},
    {"SoilSlope", "Soil Slope:"},
    {"Crops", "Predominate Crops:"},
    {"CommonTillage", "Common Tillage:"},
    {"FieldComments", "Comments:"},
    {"SystemManufacturer", "Sprinkler Manufacturer:"},
    {"SprinklerAge", "Sprinker Age:"}, // kept: "Sprinker"
    {"SystemComments", "Sprinkler Comments:"},
    {"EstFlowRate", "Estimated Flow Rate:"},
    {"MeasuredFlowRate", "Measured Flow Rate:"},
    {"EstimatedPressure", "Estimated Pressure:"},
    {"MeasuredPressure", "Measured Pressure:"},
    {"NumberX", "Number Gauges (X Axis):"},
    {"NumberY", "Number Gauges (Y Axis):"},
    {"ObservedLeaks", "Leaks Observed"},
    {"OperatingTimes", "Operation Times:"},
    {"GuageDiameter", "Rain Gauge Diameter (cm):"},
    {"TotalAcres", "Estimated Area:"},
    {"OtherComments", "Comments Recomendations"}, // kept: "Recomendations"
    {"Layout", "Sprinkler Head Configuration:"},
    {"SprinklerSpacing", "Sprinkler Spacing:"},
    {"Duration", "Duration of Test (minutes):"},
}};

} // namespace

std::string SolidSetListingText() {
    const SolidSetTest& test = Program().solidSetTest;
    std::string text = ListingTitle("Solid Set Data");
    text += ListingFields(AsBytes(test), kSolidSetFields, kLabels);
    text += RuleLine();
    text += ListingRow({"Cup", "X Axis", "Y Axis", "Volume"});
    const int last = LastFilledEntry(test.Gauges);
    for (int i = 1; i <= last; ++i) {
        const SolidSetGauge& gauge = test.Gauges[i];
        text += ListingRow({FormatMask(static_cast<double>(i), "#00"), FormatMask(gauge.XAxis, "##"),
                            FormatMask(gauge.YAxis, "##"), FormatMask(gauge.Volume, "####")});
    }
    return text + RuleLine();
}

} // namespace orvel
