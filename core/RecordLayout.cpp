// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordLayout.h"

#include <algorithm>
#include <cstring>

namespace orvel {

// The proof that the records of core/Records.h lie as the tables say.
namespace {

// The fields follow each other without a gap and fill the record.
template <class Record, std::size_t N>
constexpr bool FillsRecord(const std::array<Field, N>& fields) {
    std::size_t end = 0;
    for (const Field& field : fields) {
        if (field.offset != end) {
            return false;
        }
        end += field.width;
    }
    return end == sizeof(Record) && alignof(Record) == 1 && std::is_trivially_copyable_v<Record> &&
           std::is_standard_layout_v<Record>;
}

static_assert(FillsRecord<CenterPivotTest>(kCenterPivotFields) && sizeof(CenterPivotTest) == 9002);
static_assert(FillsRecord<SolidSetTest>(kSolidSetFields) && sizeof(SolidSetTest) == 10930);
static_assert(FillsRecord<UserSettings>(kUserSettingsFields) && sizeof(UserSettings) == 352);
static_assert(FillsRecord<SoilIntakeRow>(kSoilIntakeFields) && sizeof(SoilIntakeRow) == 28);
static_assert(FillsRecord<PivotGauge>(kPivotGaugeFields) && sizeof(PivotGauge) == 16);
static_assert(FillsRecord<SolidSetGauge>(kSolidSetGaugeFields) && sizeof(SolidSetGauge) == 20);

static_assert(offsetof(CenterPivotTest, ClientName) == 0);
static_assert(offsetof(CenterPivotTest, DateofTest) == 35);
static_assert(offsetof(CenterPivotTest, FarmName) == 50);
static_assert(offsetof(CenterPivotTest, OperatorName) == 85);
static_assert(offsetof(CenterPivotTest, ClientAddress) == 120);
static_assert(offsetof(CenterPivotTest, ClientCity) == 155);
static_assert(offsetof(CenterPivotTest, ClientCounty) == 190);
static_assert(offsetof(CenterPivotTest, ClientZip) == 225);
static_assert(offsetof(CenterPivotTest, ClientState) == 255);
static_assert(offsetof(CenterPivotTest, ClientPhone) == 285);
static_assert(offsetof(CenterPivotTest, EMail) == 315);
static_assert(offsetof(CenterPivotTest, FarmNameCopy) == 350);
static_assert(offsetof(CenterPivotTest, FieldName) == 385);
static_assert(offsetof(CenterPivotTest, SoilType) == 420);
static_assert(offsetof(CenterPivotTest, SoilSlope) == 455);
static_assert(offsetof(CenterPivotTest, Crops) == 490);
static_assert(offsetof(CenterPivotTest, CommonTillage) == 565);
static_assert(offsetof(CenterPivotTest, FieldComments) == 615);
static_assert(offsetof(CenterPivotTest, SystemComments) == 1115);
static_assert(offsetof(CenterPivotTest, SystemManufacturer) == 1615);
static_assert(offsetof(CenterPivotTest, TypeSprinkler) == 1665);
static_assert(offsetof(CenterPivotTest, SystemAge) == 1700);
static_assert(offsetof(CenterPivotTest, SprinklerAge) == 1725);
static_assert(offsetof(CenterPivotTest, DistanceToTower) == 1750);
static_assert(offsetof(CenterPivotTest, EstFlowRate) == 1770);
static_assert(offsetof(CenterPivotTest, MeasuredFlowRate) == 1790);
static_assert(offsetof(CenterPivotTest, EstimatedPressure) == 1810);
static_assert(offsetof(CenterPivotTest, MeasuredPressure) == 1830);
static_assert(offsetof(CenterPivotTest, HasEndGun) == 1850);
static_assert(offsetof(CenterPivotTest, EndGunShutoff) == 1852);
static_assert(offsetof(CenterPivotTest, EndGunArc) == 1854);
static_assert(offsetof(CenterPivotTest, ObservedLeaks) == 1864);
static_assert(offsetof(CenterPivotTest, OperatingTimes) == 1866);
static_assert(offsetof(CenterPivotTest, PercentTimer) == 1916);
static_assert(offsetof(CenterPivotTest, GuageDiameter) == 1936);
static_assert(offsetof(CenterPivotTest, DistanceToFirstGuage) == 1956);
static_assert(offsetof(CenterPivotTest, TravelSpeedFeet) == 1976);
static_assert(offsetof(CenterPivotTest, TravelSpeedMinutes) == 1996);
static_assert(offsetof(CenterPivotTest, TravelSpeedSeconds) == 2016);
static_assert(offsetof(CenterPivotTest, GuageSpacing) == 2036);
static_assert(offsetof(CenterPivotTest, TotalAcres) == 2056);
static_assert(offsetof(CenterPivotTest, EndGunAcres) == 2076);
static_assert(offsetof(CenterPivotTest, OtherComments) == 2096);
static_assert(offsetof(CenterPivotTest, Gauges) == 4096);
static_assert(offsetof(CenterPivotTest, Reserved) == 8912);
static_assert(offsetof(CenterPivotTest, LengthOverhang) == 8914);
static_assert(offsetof(CenterPivotTest, EndGunRadius) == 8934);
static_assert(offsetof(CenterPivotTest, RadLastSprinkler) == 8954);
static_assert(offsetof(CenterPivotTest, MinIntake) == 8974);
static_assert(offsetof(CenterPivotTest, MaxIntake) == 8978);
static_assert(offsetof(CenterPivotTest, Tail) == 8982);

static_assert(offsetof(SolidSetTest, ClientName) == 0);
static_assert(offsetof(SolidSetTest, DateofTest) == 35);
static_assert(offsetof(SolidSetTest, OperatorName) == 50);
static_assert(offsetof(SolidSetTest, ClientAddress) == 85);
static_assert(offsetof(SolidSetTest, ClientCity) == 120);
static_assert(offsetof(SolidSetTest, ClientCounty) == 155);
static_assert(offsetof(SolidSetTest, ClientZip) == 190);
static_assert(offsetof(SolidSetTest, ClientState) == 220);
static_assert(offsetof(SolidSetTest, ClientPhone) == 250);
static_assert(offsetof(SolidSetTest, EMail) == 280);
static_assert(offsetof(SolidSetTest, FarmName) == 315);
static_assert(offsetof(SolidSetTest, FieldName) == 350);
static_assert(offsetof(SolidSetTest, SoilType) == 385);
static_assert(offsetof(SolidSetTest, SoilSlope) == 420);
static_assert(offsetof(SolidSetTest, Crops) == 455);
static_assert(offsetof(SolidSetTest, CommonTillage) == 530);
static_assert(offsetof(SolidSetTest, FieldComments) == 580);
static_assert(offsetof(SolidSetTest, SystemManufacturer) == 1080);
static_assert(offsetof(SolidSetTest, SprinklerAge) == 1130);
static_assert(offsetof(SolidSetTest, SystemComments) == 1155);
static_assert(offsetof(SolidSetTest, EstFlowRate) == 1655);
static_assert(offsetof(SolidSetTest, MeasuredFlowRate) == 1675);
static_assert(offsetof(SolidSetTest, EstimatedPressure) == 1695);
static_assert(offsetof(SolidSetTest, MeasuredPressure) == 1715);
static_assert(offsetof(SolidSetTest, NumberX) == 1735);
static_assert(offsetof(SolidSetTest, NumberY) == 1755);
static_assert(offsetof(SolidSetTest, ObservedLeaks) == 1775);
static_assert(offsetof(SolidSetTest, OperatingTimes) == 1777);
static_assert(offsetof(SolidSetTest, GuageDiameter) == 1827);
static_assert(offsetof(SolidSetTest, TotalAcres) == 1847);
static_assert(offsetof(SolidSetTest, OtherComments) == 1867);
static_assert(offsetof(SolidSetTest, Gauges) == 4867);
static_assert(offsetof(SolidSetTest, Reserved) == 10887);
static_assert(offsetof(SolidSetTest, Layout) == 10889);
static_assert(offsetof(SolidSetTest, SprinklerSpacing) == 10890);
static_assert(offsetof(SolidSetTest, Duration) == 10910);

static_assert(offsetof(UserSettings, Name) == 0);
static_assert(offsetof(UserSettings, Company) == 50);
static_assert(offsetof(UserSettings, Address) == 100);
static_assert(offsetof(UserSettings, CityStateZip) == 150);
static_assert(offsetof(UserSettings, Phone) == 200);
static_assert(offsetof(UserSettings, EMail) == 250);
static_assert(offsetof(UserSettings, DefaultDirectory) == 300);
static_assert(offsetof(UserSettings, SettingsComplete) == 350);

static_assert(offsetof(SoilIntakeRow, SoilName) == 0);
static_assert(offsetof(SoilIntakeRow, MinIntake) == 20);
static_assert(offsetof(SoilIntakeRow, MaxIntake) == 24);

static_assert(offsetof(PivotGauge, Sequence) == 0);
static_assert(offsetof(PivotGauge, Footage) == 4);
static_assert(offsetof(PivotGauge, Volume) == 8);
static_assert(offsetof(PivotGauge, Spare) == 12);

static_assert(offsetof(SolidSetGauge, Sequence) == 0);
static_assert(offsetof(SolidSetGauge, XAxis) == 4);
static_assert(offsetof(SolidSetGauge, YAxis) == 8);
static_assert(offsetof(SolidSetGauge, Volume) == 12);
static_assert(offsetof(SolidSetGauge, Spare) == 16);

} // namespace

std::string TextOf(std::span<const std::byte> bytes) {
    std::string text(bytes.size(), ' ');
    std::memcpy(text.data(), bytes.data(), bytes.size());
    return text;
}

void PutText(std::span<std::byte> bytes, std::string_view text) {
    std::ranges::fill(bytes, std::byte{' '});
    const auto kept = std::as_bytes(std::span(text.substr(0, bytes.size())));
    std::ranges::copy(kept, bytes.begin());
}

Flag FlagOf(std::span<const std::byte> bytes) {
    Flag flag;
    std::memcpy(&flag, bytes.data(), sizeof flag);
    return flag;
}

void PutFlag(std::span<std::byte> bytes, bool isSet) {
    Flag flag;
    flag = isSet;
    std::memcpy(bytes.data(), &flag, sizeof flag);
}

bool AreAllZero(std::span<const std::byte> bytes) {
    return std::ranges::all_of(bytes, [](std::byte byte) { return byte == std::byte{0}; });
}

} // namespace orvel
