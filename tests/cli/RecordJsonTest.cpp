// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/RecordJson.h"

#include "core/CodePage.h"
#include "core/RecordLayout.h"
#include "tests/support/LogicTest.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

namespace orvel::cli {

namespace {

class RecordJson : public orvel::testing::LogicTest {};

template <class Test>
bool AreSame(const Test& left, const Test& right) {
    return std::ranges::equal(AsBytes(left), AsBytes(right));
}

// A record whose every byte is random.
template <class Test>
Test RandomTest(std::mt19937& random) {
    Test test;
    for (std::byte& byte : AsBytes(test)) {
        byte = static_cast<std::byte>(random());
    }
    return test;
}

template <class Test>
Test BuiltFrom(const std::string& text, Test test = {}) {
    BuildTest(ParseJson(text), test);
    return test;
}

// What BuildTest says of a JSON that is wrong.
std::string Complaint(const std::string& text) {
    try {
        (void)BuiltFrom<CenterPivotTest>(text);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

TEST_F(RecordJson, ABuiltDumpHasEveryByteOfTheRecord) {
    std::mt19937 random(2);
    for (int i = 0; i < 25; ++i) {
        const auto pivot = RandomTest<CenterPivotTest>(random);
        ASSERT_TRUE(AreSame(BuiltFrom<CenterPivotTest>(JsonDocument(DumpTest(pivot))), pivot)) << i;
        const auto solidSet = RandomTest<SolidSetTest>(random);
        ASSERT_TRUE(AreSame(BuiltFrom<SolidSetTest>(JsonDocument(DumpTest(solidSet))), solidSet)) << i;
    }
}

TEST_F(RecordJson, ABuiltDumpHasEveryByteInAnotherCodePageToo) {
    UseCodePage(CodePage::Named("ISO-8859-7").value());
    std::mt19937 random(3);
    const auto pivot = RandomTest<CenterPivotTest>(random);
    EXPECT_TRUE(AreSame(BuiltFrom<CenterPivotTest>(JsonDocument(DumpTest(pivot))), pivot));
}

TEST_F(RecordJson, DumpNamesEveryFieldInTheRecordsOrder) {
    const Json json = DumpTest(CenterPivotTest{});
    std::string names;
    for (const auto& [name, value] : json.items()) {
        names += name + " ";
    }
    EXPECT_EQ(names,
              "kind ClientName DateofTest FarmName OperatorName ClientAddress ClientCity ClientCounty "
              "ClientZip ClientState ClientPhone EMail FarmNameCopy FieldName SoilType SoilSlope Crops "
              "CommonTillage FieldComments SystemComments SystemManufacturer TypeSprinkler SystemAge "
              "SprinklerAge DistanceToTower EstFlowRate MeasuredFlowRate EstimatedPressure "
              "MeasuredPressure HasEndGun EndGunShutoff EndGunArc ObservedLeaks OperatingTimes "
              "PercentTimer GuageDiameter DistanceToFirstGuage TravelSpeedFeet TravelSpeedMinutes "
              "TravelSpeedSeconds GuageSpacing TotalAcres EndGunAcres OtherComments LengthOverhang "
              "EndGunRadius RadLastSprinkler MinIntake MaxIntake Gauges ");
    EXPECT_EQ(json["kind"], "centerPivot");
    EXPECT_EQ(DumpTest(SolidSetTest{})["kind"], "solidSet");
}

TEST_F(RecordJson, DumpDropsTrailingBlanksOnly) {
    CenterPivotTest test;
    test.ClientName = "  two before  ";
    EXPECT_EQ(DumpTest(test)["ClientName"], "  two before");
    EXPECT_EQ(DumpTest(test)["FarmName"], "");
}

TEST_F(RecordJson, DumpLeavesOutTrailingGaugesOfZeroBytesAndKeepsGaps) {
    CenterPivotTest test;
    EXPECT_EQ(DumpTest(test)["Gauges"].size(), 0U);
    test.Gauges[2].Volume = 112.5F;
    EXPECT_EQ(JsonLine(DumpTest(test)["Gauges"]), R"([{"Sequence":0,"Footage":0,"Volume":0,"Spare":0},)"
                                                  R"({"Sequence":0,"Footage":0,"Volume":112.5,"Spare":0}])"
                                                  "\n");
    test.Gauges[300].Spare = -0.0F;
    EXPECT_EQ(DumpTest(test)["Gauges"].size(), 300U);
}

TEST_F(RecordJson, FlagsAreTrueFalseOrTheirNumber) {
    CenterPivotTest test =
        BuiltFrom<CenterPivotTest>(R"({"HasEndGun": true, "EndGunShutoff": false, "ObservedLeaks": 7})");
    EXPECT_EQ(test.HasEndGun.Number(), -1);
    EXPECT_EQ(test.EndGunShutoff.Number(), 0);
    EXPECT_EQ(test.ObservedLeaks.Number(), 7);
    const Json json = DumpTest(test);
    EXPECT_EQ(json["HasEndGun"].dump() + json["EndGunShutoff"].dump() + json["ObservedLeaks"].dump(),
              "truefalse7");
}

TEST_F(RecordJson, SinglesThatAreNotFiniteAreTheirBits) {
    CenterPivotTest test;
    test.MinIntake = std::numeric_limits<float>::infinity();
    EXPECT_EQ(DumpTest(test)["MinIntake"], "0x7f800000");
    const auto built = BuiltFrom<CenterPivotTest>(R"({"MinIntake": "0x7fa00001"})");
    EXPECT_EQ(DumpTest(built)["MinIntake"], "0x7fa00001");
}

TEST_F(RecordJson, SinglesTooSmallToHoldAreZeroAndKeepTheirSign) {
    const auto test = BuiltFrom<CenterPivotTest>(R"({"MinIntake": 1e-60, "MaxIntake": -0})");
    EXPECT_EQ(JsonLine(DumpTest(test)["MinIntake"]), "0\n");
    EXPECT_EQ(JsonLine(DumpTest(test)["MaxIntake"]), "-0.0\n");
}

TEST_F(RecordJson, RawHoldsOnlyWhatIsNotAllZero) {
    CenterPivotTest test;
    EXPECT_FALSE(DumpTest(test).contains("Raw"));
    test.Reserved = 0x1234;
    EXPECT_EQ(DumpTest(test)["Raw"].dump(), R"({"Reserved":"3412"})");
    test.Gauges[0].Sequence = 5.0F;
    test.Tail[19] = std::byte{0xAB};
    EXPECT_EQ(DumpTest(test)["Raw"].dump(),
              R"({"Gauge0":"0000a040000000000000000000000000","Reserved":"3412",)"
              R"("Tail":"00000000000000000000000000000000000000ab"})");
    SolidSetTest solidSet;
    solidSet.Gauges[0].Spare = 5.0F;
    EXPECT_EQ(DumpTest(solidSet)["Raw"].dump(), R"({"Gauge0":"000000000000000000000000000000000000a040"})");
}

TEST_F(RecordJson, BuildLeavesWhatIsNotNamedAsItIs) {
    CenterPivotTest before = NewCenterPivotTest();
    const auto after = BuiltFrom(R"({"ClientName": "Ann"})", before);
    EXPECT_EQ(after.ClientName.Trimmed(), "Ann");
    EXPECT_EQ(after.SoilType.Trimmed(), "Choose Soil Type");
    before.ClientName = "Ann";
    EXPECT_TRUE(AreSame(after, before));
}

TEST_F(RecordJson, TextsMayFillTheirFieldAndUseTheCodePage) {
    const std::string full(15, 'x');
    EXPECT_EQ(BuiltFrom<CenterPivotTest>(R"({"DateofTest": ")" + full + "\"}").DateofTest.Whole(), full);
    EXPECT_EQ(BuiltFrom<CenterPivotTest>(R"({"DateofTest": "<23° €"})").DateofTest.Trimmed(), "<23\xB0 \x80");
}

TEST_F(RecordJson, AWrongMemberIsNamed) {
    struct Case {
        const char* json;
        const char* complaint;
    };
    const std::array cases = {
        Case{R"([1])", "a test must be an object"},
        Case{R"({"Client": "x"})", R"("Client" is no field of the record)"},
        Case{R"({"Reserved": 1})", R"("Reserved" is no field of the record)"},
        Case{R"({"ClientName": 5})", R"("ClientName" must be a text)"},
        Case{R"({"ClientName": null})", R"("ClientName" must be a text)"},
        Case{R"({"DateofTest": "1234567890123456"})",
             R"("DateofTest" has 16 characters, but its field holds 15)"},
        Case{R"({"DateofTest": "ααααααααααααααα€"})",
             R"("DateofTest" has 16 characters, but its field holds 15)"},
        Case{R"({"a\u0000\n": "x"})", R"("a\u0000\n" is no field of the record)"},
        Case{R"({"ClientName": "a𝄞"})", R"("ClientName" has a character that the code page lacks: 𝄞)"},
        Case{R"({"HasEndGun": "yes"})", R"("HasEndGun" must be true, false or a 16-bit number)"},
        Case{R"({"HasEndGun": 32768})", R"("HasEndGun" must be true, false or a 16-bit number)"},
        Case{R"({"HasEndGun": -32769})", R"("HasEndGun" must be true, false or a 16-bit number)"},
        Case{R"({"HasEndGun": 1.5})", R"("HasEndGun" must be true, false or a 16-bit number)"},
        Case{R"({"MinIntake": "5"})",
             R"("MinIntake" must be a number, or "0x" and the 8 hexadecimal digits of its bits)"},
        Case{R"({"MinIntake": "0x7fc0000g"})",
             R"("MinIntake" must be a number, or "0x" and the 8 hexadecimal digits of its bits)"},
        Case{R"({"MinIntake": true})",
             R"("MinIntake" must be a number, or "0x" and the 8 hexadecimal digits of its bits)"},
        Case{R"({"kind": "solidSet"})", R"("kind" must be "centerPivot" here)"},
        Case{R"({"kind": 3})", R"("kind" must be "centerPivot" here)"},
        Case{R"({"Gauges": {}})", R"("Gauges" must be an array)"},
        Case{R"({"Gauges": [{}, 5]})", R"("Gauges[2]" must be an object)"},
        Case{R"({"Gauges": [{"XAxis": 5}]})", R"("Gauges[1].XAxis" is no field of a measurement)"},
        Case{R"({"Gauges": [{"Volume": "much"}]})",
             R"("Gauges[1].Volume" must be a number, or "0x" and the 8 hexadecimal digits of its bits)"},
        Case{R"({"Raw": []})", R"("Raw" must be an object)"},
        Case{R"({"Raw": {"Head": ""}})", R"("Raw.Head" is no part of the record)"},
        Case{R"({"Raw": {"Reserved": "123"}})", R"("Raw.Reserved" must be a text of 4 hexadecimal digits)"},
        Case{R"({"Raw": {"Reserved": "12-4"}})", R"("Raw.Reserved" must be a text of 4 hexadecimal digits)"},
        Case{R"({"Raw": {"Reserved": 1234}})", R"("Raw.Reserved" must be a text of 4 hexadecimal digits)"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(Complaint(each.json), each.complaint) << each.json;
    }
}

TEST_F(RecordJson, ATestHoldsThreeHundredGauges) {
    std::string gauges = "{}";
    for (int i = 1; i < 300; ++i) {
        gauges += ",{}";
    }
    EXPECT_EQ(Complaint("{\"Gauges\": [" + gauges + "]}"), "none");
    EXPECT_EQ(Complaint("{\"Gauges\": [" + gauges + ",{}]}"),
              "\"Gauges\" has 301 entries, but a test holds 300");
}

} // namespace

} // namespace orvel::cli
