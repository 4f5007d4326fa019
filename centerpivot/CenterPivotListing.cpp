// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotListing.h"

#include "core/Listing.h"
#include "core/Masks.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "core/Text.h"

#include <array>

namespace orvel {

namespace {

// In the record's order.
constexpr std::array<ListingLabel, 46> kLabels = {{
    {"ClientName", "Client Name:"},
    {"DateofTest", "Date of Test:"},
    {"FarmName", "Farm Name:"},
    {"OperatorName", "Farm Operator:"},
    {"ClientAddress", "Address:"},
    {"ClientCity", "City:"},
    {"ClientCounty", "County:"},
    {"ClientZip", "Zip Code:"},
    {"ClientState", "State:"},
    {"ClientPhone", "Phone:"},
    {"EMail", "E-Mail:"},
    {"FarmNameCopy", "Client Farm Name:"},
    {"FieldName", "Field Name or Identifier:"},
    {"SoilType", "Soil Type:"},
    {"SoilSlope", "Soil Slope:"},
    {"Crops", "Predominate Crops:"},
    {"CommonTillage", "Common Tillage:"},
    {"FieldComments", "Comments:"},
    {"SystemComments", "Comments:"},
    {"SystemManufacturer", "System Manufacturer:"},
    {"TypeSprinkler", "Type Sprinkler:"},
    {"SystemAge", "System Age:"},
    {"SprinklerAge", "Sprinker Age:"}, // kept: "Sprinker"
    {"DistanceToTower", "Distance to Last Tower (feet):"},
    {"EstFlowRate", "Estimated Flow Rate (GPM):"},
    {"MeasuredFlowRate", "Measured Flow Rate (GPM):"},
    {"EstimatedPressure", "Estimated Pressure:"},
    {"MeasuredPressure", "Measured Pressure:"},
    {"HasEndGun", "Has End Gun"},
    {"EndGunShutoff", "Has End Gun Shutoff"},
    {"EndGunArc", "End Gun Arc:"},
    {"ObservedLeaks", "Leaks Observed"},
    {"OperatingTimes", "Operation Times:"},
    {"PercentTimer", "Percent Timer Setting:"},
    {"GuageDiameter", "Rain Gauge Diameter (cm):"},
    {"DistanceToFirstGuage", "Distance to First Gauge (feet):"},
    {"TravelSpeedFeet", "Distance in Feet:"},
    {"TravelSpeedMinutes", "In Minutes:"},
    {"TravelSpeedSeconds", "and Seconds:"},
    {"GuageSpacing", "Gauge Spacing (feet):"},
    {"TotalAcres", "Estimated Acres:"},
    {"EndGunAcres", "Estimated Acres - End Gun:"},
    {"OtherComments", "General Comments"},
    {"LengthOverhang", "End Gun Overhang (feet):"},
    {"EndGunRadius", "End Gun Radius (feet):"},
    {"RadLastSprinkler", "Radius of Last Sprinkler (feet):"},
}};

} // namespace

std::string CenterPivotListingText() {
    const CenterPivotTest& test = Program().centerPivotTest;
    std::string text = ListingTitle("Center Pivot Data");
    text += ListingFields(AsBytes(test), kCenterPivotFields, kLabels);
    text += RuleLine();
    text += ListingRow({"Cup", "Footage", "Volume"});
    const int last = LastFilledEntry(test.Gauges);
    for (int i = 1; i <= last; ++i) {
        const PivotGauge& gauge = test.Gauges[i];
        text += ListingRow({FormatMask(static_cast<double>(i), "#00"), FormatMask(gauge.Footage, "#####"),
                            FormatMask(gauge.Volume, "####")});
    }
    return text + RuleLine();
}

} // namespace orvel
