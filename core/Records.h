// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FixedText.h"
#include "core/RunTimeError.h"
#include "core/Stored.h"

#include <array>
#include <cstddef>

// The records a program run works on. Each is in memory exactly what it is in its file, byte for byte, so a
// file is read by copying; core/RecordLayout.h holds the layouts as tables and proves them. A record made by
// its default constructor is blank: texts all blanks, numbers zero.
namespace orvel {

// The measurements of a test: entries 0 to 300, of which 1 to 300 are used. Any other index raises
// Subscript out of range.
template <class Gauge>
class MeasurementList {
public:
    static constexpr int kLast = 300;

    Gauge& operator[](int index) { return entries[Checked(index)]; }

    const Gauge& operator[](int index) const { return entries[Checked(index)]; }

private:
    static std::size_t Checked(int index) {
        if (index < 0 || index > kLast) {
            Raise(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(index);
    }

    std::array<Gauge, kLast + 1> entries;
};

// One cup of a center-pivot test.
struct PivotGauge {
    Single Sequence;
    Single Footage; // distance from the pivot, feet
    Single Volume;  // catch, cc; exactly 0 is no reading
    Single Spare;   // carried, never interpreted
};

// One cup of a solid-set test.
struct SolidSetGauge {
    Single Sequence;
    Single XAxis;
    Single YAxis;
    Single Volume; // catch, cc; exactly 0 is no reading
    Single Spare;  // carried, never interpreted
};

// A test file "*.cpd". Numbers are kept as the text the user typed, in the units of the data window.
struct CenterPivotTest {
    FixedText<35> ClientName;
    FixedText<15> DateofTest;
    FixedText<35> FarmName;
    FixedText<35> OperatorName;
    FixedText<35> ClientAddress;
    FixedText<35> ClientCity;
    FixedText<35> ClientCounty;
    FixedText<30> ClientZip;
    FixedText<30> ClientState;
    FixedText<30> ClientPhone;
    FixedText<35> EMail;
    FixedText<35> FarmNameCopy;
    FixedText<35> FieldName;
    FixedText<35> SoilType;
    FixedText<35> SoilSlope;
    FixedText<75> Crops;
    FixedText<50> CommonTillage;
    FixedText<500> FieldComments;
    FixedText<500> SystemComments;
    FixedText<50> SystemManufacturer;
    FixedText<35> TypeSprinkler;
    FixedText<25> SystemAge;
    FixedText<25> SprinklerAge;
    FixedText<20> DistanceToTower; // to the last tower, feet
    FixedText<20> EstFlowRate;     // GPM
    FixedText<20> MeasuredFlowRate;
    FixedText<20> EstimatedPressure;
    FixedText<20> MeasuredPressure;
    Flag HasEndGun;
    Flag EndGunShutoff;
    FixedText<10> EndGunArc;
    Flag ObservedLeaks;
    FixedText<50> OperatingTimes;
    FixedText<20> PercentTimer;
    FixedText<20> GuageDiameter; // cm
    FixedText<20> DistanceToFirstGuage;
    FixedText<20> TravelSpeedFeet; // of the last tower, in the minutes and seconds that follow
    FixedText<20> TravelSpeedMinutes;
    FixedText<20> TravelSpeedSeconds;
    FixedText<20> GuageSpacing; // feet
    FixedText<20> TotalAcres;
    FixedText<20> EndGunAcres;
    FixedText<2000> OtherComments;
    MeasurementList<PivotGauge> Gauges;
    Word Reserved;
    FixedText<20> LengthOverhang;   // feet
    FixedText<20> EndGunRadius;     // feet
    FixedText<20> RadLastSprinkler; // feet
    // The 28-byte tail: the intake rates of the soil chosen at the last save, and what no one interprets.
    Single MinIntake;
    Single MaxIntake;
    std::array<std::byte, 20> Tail{};
};

// A test file "*.ssd".
struct SolidSetTest {
    FixedText<35> ClientName;
    FixedText<15> DateofTest;
    FixedText<35> OperatorName;
    FixedText<35> ClientAddress;
    FixedText<35> ClientCity;
    FixedText<35> ClientCounty;
    FixedText<30> ClientZip;
    FixedText<30> ClientState;
    FixedText<30> ClientPhone;
    FixedText<35> EMail;
    FixedText<35> FarmName;
    FixedText<35> FieldName;
    FixedText<35> SoilType;
    FixedText<35> SoilSlope;
    FixedText<75> Crops;
    FixedText<50> CommonTillage;
    FixedText<500> FieldComments;
    FixedText<50> SystemManufacturer;
    FixedText<25> SprinklerAge;
    FixedText<500> SystemComments;
    FixedText<20> EstFlowRate;
    FixedText<20> MeasuredFlowRate;
    FixedText<20> EstimatedPressure;
    FixedText<20> MeasuredPressure;
    FixedText<20> NumberX; // cups along the X axis
    FixedText<20> NumberY;
    Flag ObservedLeaks;
    FixedText<50> OperatingTimes;
    FixedText<20> GuageDiameter; // cm
    FixedText<20> TotalAcres;
    FixedText<3000> OtherComments;
    MeasurementList<SolidSetGauge> Gauges;
    Word Reserved;
    FixedText<1> Layout; // "S" square, "T" triangle
    FixedText<20> SprinklerSpacing;
    FixedText<20> Duration; // minutes
};

// The file user.usr: who runs the tests, and the folder offered first by the test-file dialogs.
struct UserSettings {
    FixedText<50> Name;
    FixedText<50> Company;
    FixedText<50> Address;
    FixedText<50> CityStateZip;
    FixedText<50> Phone;
    FixedText<50> EMail;
    FixedText<50> DefaultDirectory; // kept: a longer path is cut
    Flag SettingsComplete;          // whether the six personal fields were filled at the last save
};

// One row of the file soil.dat.
struct SoilIntakeRow {
    FixedText<20> SoilName;
    Single MinIntake; // inches per hour
    Single MaxIntake;
};

// Row 0 is never used; rows 1 to 7 are records 1 to 7 of soil.dat.
inline constexpr std::size_t kSoilRows = 7;
using SoilIntakeTable = std::array<SoilIntakeRow, kSoilRows + 1>;

// The empty record that New writes: blank but for the prompts of its combo boxes.
[[nodiscard]] CenterPivotTest NewCenterPivotTest();
[[nodiscard]] SolidSetTest NewSolidSetTest();

// The texts that stand in a combo box until the user chooses.
inline constexpr const char* kPromptSoilType = "Choose Soil Type";
inline constexpr const char* kPromptSoilSlope = "Soil Slope";
inline constexpr const char* kPromptCommonTillage = "Choose Common Tillage";
inline constexpr const char* kPromptOperatingTimes = "Choose Operating Time";
inline constexpr const char* kPromptSystemManufacturer = "Select Manufacturer";
inline constexpr const char* kPromptTypeSprinkler = "Select Type Sprinkler";
// The solid-set test's own: another prompt for the manufacturer, and a tillage that is a choice already.
inline constexpr const char* kPromptSprinklerManufacturer = "Sprinkler Manufacturer";
inline constexpr const char* kDefaultSolidSetTillage = "Conventional";

} // namespace orvel
