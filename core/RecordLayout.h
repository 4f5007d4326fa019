// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Records.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

// The layouts of the four record types and their elements, as tables: name, byte offset, bytes, kind. All
// fields stand back to back; numbers are little-endian; a text of N characters is N bytes of the code page,
// left-aligned, padded with blanks.
namespace orvel {

enum class FieldKind {
    Text,
    Flag,   // 16-bit, -1 or 0
    Word,   // 16-bit, carried as it stands
    Single, // 32-bit IEEE-754
    Gauges, // 301 elements
    Bytes,  // carried as they stand
};

struct Field {
    std::string_view name;
    std::size_t offset;
    std::size_t width;
    FieldKind kind;
};

// A center-pivot test file "*.cpd", 9002 bytes.
inline constexpr std::array<Field, 51> kCenterPivotFields = {{
    {"ClientName", 0, 35, FieldKind::Text},
    {"DateofTest", 35, 15, FieldKind::Text},
    {"FarmName", 50, 35, FieldKind::Text},
    {"OperatorName", 85, 35, FieldKind::Text},
    {"ClientAddress", 120, 35, FieldKind::Text},
    {"ClientCity", 155, 35, FieldKind::Text},
    {"ClientCounty", 190, 35, FieldKind::Text},
    {"ClientZip", 225, 30, FieldKind::Text},
    {"ClientState", 255, 30, FieldKind::Text},
    {"ClientPhone", 285, 30, FieldKind::Text},
    {"EMail", 315, 35, FieldKind::Text},
    {"FarmNameCopy", 350, 35, FieldKind::Text},
    {"FieldName", 385, 35, FieldKind::Text},
    {"SoilType", 420, 35, FieldKind::Text},
    {"SoilSlope", 455, 35, FieldKind::Text},
    {"Crops", 490, 75, FieldKind::Text},
    {"CommonTillage", 565, 50, FieldKind::Text},
    {"FieldComments", 615, 500, FieldKind::Text},
    {"SystemComments", 1115, 500, FieldKind::Text},
    {"SystemManufacturer", 1615, 50, FieldKind::Text},
    {"TypeSprinkler", 1665, 35, FieldKind::Text},
    {"SystemAge", 1700, 25, FieldKind::Text},
    {"SprinklerAge", 1725, 25, FieldKind::Text},
    {"DistanceToTower", 1750, 20, FieldKind::Text},
    {"EstFlowRate", 1770, 20, FieldKind::Text},
    {"MeasuredFlowRate", 1790, 20, FieldKind::Text},
    {"EstimatedPressure", 1810, 20, FieldKind::Text},
    {"MeasuredPressure", 1830, 20, FieldKind::Text},
    {"HasEndGun", 1850, 2, FieldKind::Flag},
    {"EndGunShutoff", 1852, 2, FieldKind::Flag},
    {"EndGunArc", 1854, 10, FieldKind::Text},
    {"ObservedLeaks", 1864, 2, FieldKind::Flag},
    {"OperatingTimes", 1866, 50, FieldKind::Text},
    {"PercentTimer", 1916, 20, FieldKind::Text},
    {"GuageDiameter", 1936, 20, FieldKind::Text},
    {"DistanceToFirstGuage", 1956, 20, FieldKind::Text},
    {"TravelSpeedFeet", 1976, 20, FieldKind::Text},
    {"TravelSpeedMinutes", 1996, 20, FieldKind::Text},
    {"TravelSpeedSeconds", 2016, 20, FieldKind::Text},
    {"GuageSpacing", 2036, 20, FieldKind::Text},
    {"TotalAcres", 2056, 20, FieldKind::Text},
    {"EndGunAcres", 2076, 20, FieldKind::Text},
    {"OtherComments", 2096, 2000, FieldKind::Text},
    {"Gauges", 4096, 4816, FieldKind::Gauges},
    {"Reserved", 8912, 2, FieldKind::Word},
    {"LengthOverhang", 8914, 20, FieldKind::Text},
    {"EndGunRadius", 8934, 20, FieldKind::Text},
    {"RadLastSprinkler", 8954, 20, FieldKind::Text},
    {"MinIntake", 8974, 4, FieldKind::Single},
    {"MaxIntake", 8978, 4, FieldKind::Single},
    {"Tail", 8982, 20, FieldKind::Bytes},
}};

// A solid-set test file "*.ssd", 10930 bytes.
inline constexpr std::array<Field, 36> kSolidSetFields = {{
    {"ClientName", 0, 35, FieldKind::Text},
    {"DateofTest", 35, 15, FieldKind::Text},
    {"OperatorName", 50, 35, FieldKind::Text},
    {"ClientAddress", 85, 35, FieldKind::Text},
    {"ClientCity", 120, 35, FieldKind::Text},
    {"ClientCounty", 155, 35, FieldKind::Text},
    {"ClientZip", 190, 30, FieldKind::Text},
    {"ClientState", 220, 30, FieldKind::Text},
    {"ClientPhone", 250, 30, FieldKind::Text},
    {"EMail", 280, 35, FieldKind::Text},
    {"FarmName", 315, 35, FieldKind::Text},
    {"FieldName", 350, 35, FieldKind::Text},
    {"SoilType", 385, 35, FieldKind::Text},
    {"SoilSlope", 420, 35, FieldKind::Text},
    {"Crops", 455, 75, FieldKind::Text},
    {"CommonTillage", 530, 50, FieldKind::Text},
    {"FieldComments", 580, 500, FieldKind::Text},
    {"SystemManufacturer", 1080, 50, FieldKind::Text},
    {"SprinklerAge", 1130, 25, FieldKind::Text},
    {"SystemComments", 1155, 500, FieldKind::Text},
    {"EstFlowRate", 1655, 20, FieldKind::Text},
    {"MeasuredFlowRate", 1675, 20, FieldKind::Text},
    {"EstimatedPressure", 1695, 20, FieldKind::Text},
    {"MeasuredPressure", 1715, 20, FieldKind::Text},
    {"NumberX", 1735, 20, FieldKind::Text},
    {"NumberY", 1755, 20, FieldKind::Text},
    {"ObservedLeaks", 1775, 2, FieldKind::Flag},
    {"OperatingTimes", 1777, 50, FieldKind::Text},
    {"GuageDiameter", 1827, 20, FieldKind::Text},
    {"TotalAcres", 1847, 20, FieldKind::Text},
    {"OtherComments", 1867, 3000, FieldKind::Text},
    {"Gauges", 4867, 6020, FieldKind::Gauges},
    {"Reserved", 10887, 2, FieldKind::Word},
    {"Layout", 10889, 1, FieldKind::Text},
    {"SprinklerSpacing", 10890, 20, FieldKind::Text},
    {"Duration", 10910, 20, FieldKind::Text},
}};

// The file user.usr, 352 bytes.
inline constexpr std::array<Field, 8> kUserSettingsFields = {{
    {"Name", 0, 50, FieldKind::Text},
    {"Company", 50, 50, FieldKind::Text},
    {"Address", 100, 50, FieldKind::Text},
    {"CityStateZip", 150, 50, FieldKind::Text},
    {"Phone", 200, 50, FieldKind::Text},
    {"EMail", 250, 50, FieldKind::Text},
    {"DefaultDirectory", 300, 50, FieldKind::Text},
    {"SettingsComplete", 350, 2, FieldKind::Flag},
}};

// A row of soil.dat, 28 bytes.
inline constexpr std::array<Field, 3> kSoilIntakeFields = {{
    {"SoilName", 0, 20, FieldKind::Text},
    {"MinIntake", 20, 4, FieldKind::Single},
    {"MaxIntake", 24, 4, FieldKind::Single},
}};

// An entry of a center-pivot test's Gauges, 16 bytes.
inline constexpr std::array<Field, 4> kPivotGaugeFields = {{
    {"Sequence", 0, 4, FieldKind::Single},
    {"Footage", 4, 4, FieldKind::Single},
    {"Volume", 8, 4, FieldKind::Single},
    {"Spare", 12, 4, FieldKind::Single},
}};

// An entry of a solid-set test's Gauges, 20 bytes.
inline constexpr std::array<Field, 5> kSolidSetGaugeFields = {{
    {"Sequence", 0, 4, FieldKind::Single},
    {"XAxis", 4, 4, FieldKind::Single},
    {"YAxis", 8, 4, FieldKind::Single},
    {"Volume", 12, 4, FieldKind::Single},
    {"Spare", 16, 4, FieldKind::Single},
}};

// The bytes of a record or an element.
template <class Record>
auto AsBytes(Record& record) {
    if constexpr (std::is_const_v<Record>) {
        return std::span<const std::byte>(std::as_bytes(std::span(&record, 1)));
    } else {
        return std::span<std::byte>(std::as_writable_bytes(std::span(&record, 1)));
    }
}

// The bytes of one of its fields.
template <class Record>
auto FieldBytes(Record& record, const Field& field) {
    return AsBytes(record).subspan(field.offset, field.width);
}

// The bytes of a text field: all its characters; storing cuts or pads with blanks.
[[nodiscard]] std::string TextOf(std::span<const std::byte> bytes);
void PutText(std::span<std::byte> bytes, std::string_view text);

// The bytes of a flag.
[[nodiscard]] Flag FlagOf(std::span<const std::byte> bytes);
void PutFlag(std::span<std::byte> bytes, bool isSet);

[[nodiscard]] bool AreAllZero(std::span<const std::byte> bytes);

// The last entry from 1 on whose bytes are not all zero; 0 when there is none.
template <class Gauge>
int LastFilledEntry(const MeasurementList<Gauge>& gauges) {
    int last = MeasurementList<Gauge>::kLast;
    while (last > 0 && AreAllZero(AsBytes(gauges[last]))) {
        --last;
    }
    return last;
}

} // namespace orvel
