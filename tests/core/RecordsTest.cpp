// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Records.h"

#include "core/RecordLayout.h"
#include "tests/support/LogicTest.h"

#include <bit>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

namespace orvel {
namespace {

using testing::ExpectRunTimeError;

using Texts = std::map<std::string_view, std::string>;

// Expects a record to hold these texts, blanks in its other texts and zero bytes in its numbers.
template <class Record, std::size_t N>
void ExpectOnly(const Record& record, const std::array<Field, N>& fields, Texts texts) {
    for (const Field& field : fields) {
        const auto bytes = FieldBytes(record, field);
        std::string actual(bytes.size(), '\0');
        std::memcpy(actual.data(), bytes.data(), bytes.size());
        std::string expected = texts[field.name];
        texts.erase(field.name);
        expected.resize(field.width, field.kind == FieldKind::Text ? ' ' : '\0');
        EXPECT_EQ(actual, expected) << field.name;
    }
    EXPECT_TRUE(texts.empty());
}

TEST(Records, ANewCenterPivotTestHoldsItsPromptsAndNothingElse) {
    ExpectOnly(NewCenterPivotTest(), kCenterPivotFields,
               {{"SoilType", "Choose Soil Type"},
                {"SoilSlope", "Soil Slope"},
                {"CommonTillage", "Choose Common Tillage"},
                {"SystemManufacturer", "Select Manufacturer"},
                {"TypeSprinkler", "Select Type Sprinkler"},
                {"OperatingTimes", "Choose Operating Time"}});
}

TEST(Records, ANewSolidSetTestHoldsItsOwnPromptsAndNothingElse) {
    ExpectOnly(NewSolidSetTest(), kSolidSetFields,
               {{"SoilType", "Choose Soil Type"},
                {"SoilSlope", "Soil Slope"},
                {"CommonTillage", "Conventional"},
                {"SystemManufacturer", "Sprinkler Manufacturer"},
                {"OperatingTimes", "Choose Operating Time"}});
}

TEST(Records, ABlankRecordHoldsBlanksAndZeros) {
    ExpectOnly(CenterPivotTest{}, kCenterPivotFields, {});
    ExpectOnly(SolidSetTest{}, kSolidSetFields, {});
    ExpectOnly(UserSettings{}, kUserSettingsFields, {});
    ExpectOnly(SoilIntakeRow{}, kSoilIntakeFields, {});
    ExpectOnly(PivotGauge{}, kPivotGaugeFields, {});
    ExpectOnly(SolidSetGauge{}, kSolidSetGaugeFields, {});
}

TEST(Records, MeasurementsAreEntries0To300) {
    CenterPivotTest pivot;
    SolidSetTest solid;
    const auto& constPivot = pivot.Gauges;
    for (const int index : {0, 1, 299, 300}) {
        pivot.Gauges[index].Volume = static_cast<float>(index);
        solid.Gauges[index].Volume = static_cast<float>(index);
        EXPECT_EQ(constPivot[index].Volume, static_cast<float>(index));
    }
    for (const int index : {-1, 301, 302, 32767, -32768}) {
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { pivot.Gauges[index].Volume = 1.0F; });
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { (void)constPivot[index]; });
        ExpectRunTimeError(ErrorNumber::SubscriptOutOfRange, [&] { solid.Gauges[index].Spare = 1.0F; });
    }
}

TEST(Records, TheSoilTableHasSevenRowsBehindAnUnusedOne) {
    EXPECT_EQ(std::tuple_size_v<SoilIntakeTable>, 8U);
}

TEST(Records, AFlagIsMinusOneOrZero) {
    Flag flag;
    EXPECT_FALSE(flag.IsSet());
    flag = true;
    EXPECT_TRUE(flag.IsSet());
    EXPECT_EQ(flag.Number(), -1);
    const auto bytes = AsBytes(flag);
    EXPECT_EQ(bytes[0], std::byte{0xFF});
    EXPECT_EQ(bytes[1], std::byte{0xFF});
    flag = false;
    EXPECT_FALSE(flag.IsSet());
    EXPECT_TRUE(AreAllZero(AsBytes(flag)));
}

TEST(Records, AForeignFlagCountsAsSetAndStays) {
    Flag flag;
    AsBytes(flag)[1] = std::byte{1};
    EXPECT_TRUE(flag.IsSet());
    const Flag copy = flag;
    EXPECT_EQ(copy.Number(), 256);
}

TEST(Records, NumbersAreLittleEndianBytes) {
    const Single single = 5.0F;
    EXPECT_EQ((std::bit_cast<std::array<unsigned char, 4>>(single)),
              (std::array<unsigned char, 4>{0x00, 0x00, 0xA0, 0x40}));
    const Word word = std::int16_t{0x1234};
    EXPECT_EQ((std::bit_cast<std::array<unsigned char, 2>>(word)),
              (std::array<unsigned char, 2>{0x34, 0x12}));
    EXPECT_EQ(single, 5.0F);
    EXPECT_EQ(word, 0x1234);
}

} // namespace
} // namespace orvel
