// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordLayout.h"

#include "core/Records.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace orvel {
namespace {

// Where a field lies in a file.
struct Place {
    std::string_view name;
    std::size_t offset;
    std::size_t width;
    FieldKind kind = FieldKind::Text;
};

template <std::size_t N>
void ExpectPlaces(const std::array<Field, N>& fields, const std::vector<Place>& places, std::size_t size) {
    for (const Place& place : places) {
        const auto field = std::ranges::find(fields, place.name, &Field::name);
        ASSERT_NE(field, fields.end()) << place.name;
        EXPECT_EQ(field->offset, place.offset) << place.name;
        EXPECT_EQ(field->width, place.width) << place.name;
        EXPECT_EQ(field->kind, place.kind) << place.name;
    }
    std::size_t end = 0;
    for (const Field& field : fields) {
        EXPECT_EQ(field.offset, end) << field.name;
        end += field.width;
        EXPECT_EQ(std::ranges::count(fields, field.name, &Field::name), 1) << field.name;
    }
    EXPECT_EQ(end, size);
}

TEST(RecordLayout, PlacesTheFieldsOfACenterPivotTest) {
    ExpectPlaces(kCenterPivotFields,
                 {{"ClientName", 0, 35},
                  {"DateofTest", 35, 15},
                  {"FarmName", 50, 35},
                  {"ClientZip", 225, 30},
                  {"ClientState", 255, 30},
                  {"EMail", 315, 35},
                  {"FarmNameCopy", 350, 35},
                  {"SoilType", 420, 35},
                  {"Crops", 490, 75},
                  {"CommonTillage", 565, 50},
                  {"FieldComments", 615, 500},
                  {"SystemComments", 1115, 500},
                  {"SystemManufacturer", 1615, 50},
                  {"TypeSprinkler", 1665, 35},
                  {"SprinklerAge", 1725, 25},
                  {"DistanceToTower", 1750, 20},
                  {"EstFlowRate", 1770, 20},
                  {"MeasuredPressure", 1830, 20},
                  {"HasEndGun", 1850, 2, FieldKind::Flag},
                  {"EndGunShutoff", 1852, 2, FieldKind::Flag},
                  {"EndGunArc", 1854, 10},
                  {"ObservedLeaks", 1864, 2, FieldKind::Flag},
                  {"OperatingTimes", 1866, 50},
                  {"PercentTimer", 1916, 20},
                  {"GuageDiameter", 1936, 20},
                  {"DistanceToFirstGuage", 1956, 20},
                  {"TravelSpeedFeet", 1976, 20},
                  {"TravelSpeedSeconds", 2016, 20},
                  {"GuageSpacing", 2036, 20},
                  {"EndGunAcres", 2076, 20},
                  {"OtherComments", 2096, 2000},
                  {"Gauges", 4096, 4816, FieldKind::Gauges},
                  {"Reserved", 8912, 2, FieldKind::Word},
                  {"LengthOverhang", 8914, 20},
                  {"EndGunRadius", 8934, 20},
                  {"RadLastSprinkler", 8954, 20},
                  {"MinIntake", 8974, 4, FieldKind::Single},
                  {"MaxIntake", 8978, 4, FieldKind::Single},
                  {"Tail", 8982, 20, FieldKind::Bytes}},
                 9002);
}

TEST(RecordLayout, PlacesTheFieldsOfASolidSetTest) {
    ExpectPlaces(kSolidSetFields,
                 {{"ClientName", 0, 35},
                  {"DateofTest", 35, 15},
                  {"OperatorName", 50, 35},
                  {"ClientCounty", 155, 35},
                  {"ClientZip", 190, 30},
                  {"EMail", 280, 35},
                  {"FarmName", 315, 35},
                  {"SoilSlope", 420, 35},
                  {"Crops", 455, 75},
                  {"FieldComments", 580, 500},
                  {"SystemManufacturer", 1080, 50},
                  {"SprinklerAge", 1130, 25},
                  {"SystemComments", 1155, 500},
                  {"EstFlowRate", 1655, 20},
                  {"NumberX", 1735, 20},
                  {"NumberY", 1755, 20},
                  {"ObservedLeaks", 1775, 2, FieldKind::Flag},
                  {"OperatingTimes", 1777, 50},
                  {"GuageDiameter", 1827, 20},
                  {"TotalAcres", 1847, 20},
                  {"OtherComments", 1867, 3000},
                  {"Gauges", 4867, 6020, FieldKind::Gauges},
                  {"Reserved", 10887, 2, FieldKind::Word},
                  {"Layout", 10889, 1},
                  {"SprinklerSpacing", 10890, 20},
                  {"Duration", 10910, 20}},
                 10930);
}

TEST(RecordLayout, PlacesTheFieldsOfTheSettings) {
    ExpectPlaces(kUserSettingsFields,
                 {{"Name", 0, 50},
                  {"Company", 50, 50},
                  {"Address", 100, 50},
                  {"CityStateZip", 150, 50},
                  {"Phone", 200, 50},
                  {"EMail", 250, 50},
                  {"DefaultDirectory", 300, 50},
                  {"SettingsComplete", 350, 2, FieldKind::Flag}},
                 352);
    ExpectPlaces(kSoilIntakeFields,
                 {{"SoilName", 0, 20},
                  {"MinIntake", 20, 4, FieldKind::Single},
                  {"MaxIntake", 24, 4, FieldKind::Single}},
                 28);
}

TEST(RecordLayout, PlacesTheFieldsOfAMeasurement) {
    ExpectPlaces(kPivotGaugeFields,
                 {{"Sequence", 0, 4, FieldKind::Single},
                  {"Footage", 4, 4, FieldKind::Single},
                  {"Volume", 8, 4, FieldKind::Single},
                  {"Spare", 12, 4, FieldKind::Single}},
                 16);
    ExpectPlaces(kSolidSetGaugeFields,
                 {{"Sequence", 0, 4, FieldKind::Single},
                  {"XAxis", 4, 4, FieldKind::Single},
                  {"YAxis", 8, 4, FieldKind::Single},
                  {"Volume", 12, 4, FieldKind::Single},
                  {"Spare", 16, 4, FieldKind::Single}},
                 20);
}

// The record's bytes from an offset on begin with the text.
template <class Record>
bool HasAt(const Record& record, std::size_t offset, std::string_view text) {
    const auto bytes = AsBytes(record).subspan(offset, text.size());
    return std::ranges::equal(bytes, text, {}, {}, [](char one) { return static_cast<std::byte>(one); });
}

TEST(RecordLayout, PutsMembersWhereTheirFieldsAre) {
    CenterPivotTest pivot;
    pivot.FarmNameCopy = "farm";
    pivot.MaxIntake = 5.0F;
    pivot.Gauges[1].Footage = 5.0F;
    pivot.Gauges[300].Spare = 5.0F;
    pivot.RadLastSprinkler = "radius";
    EXPECT_TRUE(HasAt(pivot, 350, "farm "));
    EXPECT_TRUE(HasAt(pivot, 4096 + 16 + 4, {"\x00\x00\xA0\x40", 4}));
    EXPECT_TRUE(HasAt(pivot, 4096 + 4816 - 4, {"\x00\x00\xA0\x40", 4}));
    EXPECT_TRUE(HasAt(pivot, 8954, "radius "));
    EXPECT_TRUE(HasAt(pivot, 8978, {"\x00\x00\xA0\x40", 4}));
    SolidSetTest solid;
    solid.Gauges[2].YAxis = 5.0F;
    solid.Gauges[300].Spare = 5.0F;
    solid.Layout = "T";
    solid.Duration = "30";
    EXPECT_TRUE(HasAt(solid, 4867 + 40 + 8, {"\x00\x00\xA0\x40", 4}));
    EXPECT_TRUE(HasAt(solid, 4867 + 6020 - 4, {"\x00\x00\xA0\x40", 4}));
    EXPECT_TRUE(HasAt(solid, 10889, "T "));
    EXPECT_TRUE(HasAt(solid, 10910, "30 "));
}

TEST(RecordLayout, GivesTheBytesOfAFieldToReadAndToWrite) {
    UserSettings settings;
    const auto bytes = FieldBytes(settings, kUserSettingsFields[1]);
    ASSERT_EQ(bytes.size(), 50U);
    bytes[0] = std::byte{'C'};
    EXPECT_EQ(settings.Company.Trimmed(), "C");
    const UserSettings& same = settings;
    EXPECT_EQ(FieldBytes(same, kUserSettingsFields[1]).data(), bytes.data());
    EXPECT_EQ(AsBytes(same).size(), 352U);
}

TEST(RecordLayout, KnowsBytesThatAreAllZero) {
    std::array<std::byte, 5> bytes{};
    EXPECT_TRUE(AreAllZero(bytes));
    EXPECT_TRUE(AreAllZero({}));
    for (std::byte& byte : bytes) {
        byte = std::byte{1};
        EXPECT_FALSE(AreAllZero(bytes));
        byte = std::byte{0};
    }
}

TEST(RecordLayout, FindsTheLastFilledEntry) {
    MeasurementList<PivotGauge> gauges;
    EXPECT_EQ(LastFilledEntry(gauges), 0);
    gauges[0].Volume = 1.0F;
    EXPECT_EQ(LastFilledEntry(gauges), 0) << "entry 0 is not used";
    gauges[1].Sequence = 1.0F;
    EXPECT_EQ(LastFilledEntry(gauges), 1);
    gauges[7].Spare = std::numeric_limits<float>::denorm_min();
    EXPECT_EQ(LastFilledEntry(gauges), 7);
    gauges[9].Footage = -0.0F;
    EXPECT_EQ(LastFilledEntry(gauges), 9) << "minus zero has a bit that is set";
    gauges[300].Volume = 1.0F;
    EXPECT_EQ(LastFilledEntry(gauges), 300);
    MeasurementList<SolidSetGauge> solid;
    solid[299].XAxis = 1.0F;
    EXPECT_EQ(LastFilledEntry(solid), 299);
}

} // namespace
} // namespace orvel
