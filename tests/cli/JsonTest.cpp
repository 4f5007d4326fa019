// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace orvel::cli {

namespace {

TEST(Json, WritesWholeNumbersWithoutAPoint) {
    EXPECT_EQ(JsonLine(30.0F), "30\n");
    EXPECT_EQ(JsonLine(-7.0F), "-7\n");
    EXPECT_EQ(JsonLine(0.0F), "0\n");
}

TEST(Json, WritesFractionsInTheirShortestForm) {
    EXPECT_EQ(JsonLine(0.1F), "0.1\n");
    EXPECT_EQ(JsonLine(112.5F), "112.5\n");
    EXPECT_EQ(JsonLine(87.49942F), "87.49942\n");
}

TEST(Json, KeepsTheSignOfMinusZero) {
    EXPECT_EQ(JsonLine(-0.0F), "-0.0\n");
    for (const char* text : {"-0.0", "-0", "-0e5", "-1e-60"}) {
        const auto zero = ParseJson(text).get<float>();
        EXPECT_EQ(zero, 0) << text;
        EXPECT_TRUE(std::signbit(zero)) << text;
    }
    EXPECT_FALSE(std::signbit(ParseJson("0").get<float>()));
}

TEST(Json, WritesTheBitsOfWhatIsNotFinite) {
    EXPECT_EQ(JsonSingle(std::numeric_limits<float>::quiet_NaN()), "0x7fc00000");
    EXPECT_EQ(JsonSingle(-std::numeric_limits<float>::infinity()), "0xff800000");
}

TEST(Json, EveryFiniteSingleReadsBackAndNoShorterTextDoes) {
    std::mt19937 random(20261121);
    for (int i = 0; i < 100000; ++i) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) {
            continue;
        }
        const std::string text = JsonLine(value);
        ASSERT_EQ(std::bit_cast<std::uint32_t>(ParseJson(text).get<float>()),
                  std::bit_cast<std::uint32_t>(value))
            << text;
        // One digit fewer in scientific form either is another number or no shorter.
        for (int digits = 1; digits <= 8; ++digits) {
            std::array<char, 32> shorter{};
            const int length =
                std::snprintf(shorter.data(), shorter.size(), "%.*e", digits - 1, static_cast<double>(value));
            if (std::strtof(shorter.data(), nullptr) == value) {
                ASSERT_LE(text.size(), static_cast<std::size_t>(length) + 1) << text << shorter.data();
                break;
            }
        }
    }
}

TEST(Json, ADocumentIsIndentedAndALineIsNot) {
    const Json json = {{"a", {1.0F, "x\"y"}}, {"b", Json::object()}, {"c", Json::array()}, {"d", nullptr}};
    EXPECT_EQ(JsonDocument(json), "{\n  \"a\": [\n    1,\n    \"x\\\"y\"\n  ],\n  \"b\": {},\n  \"c\": [],\n"
                                  "  \"d\": null\n}\n");
    EXPECT_EQ(JsonLine(json), "{\"a\":[1,\"x\\\"y\"],\"b\":{},\"c\":[],\"d\":null}\n");
}

std::string Complaint(const std::string& text) {
    try {
        (void)ParseJson(text);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

TEST(Json, ReadsEveryTypeOfValueInOrder) {
    const char* text =
        R"({"z":null,"a":[true,false,{}],"m":{"x":"é\u0000","b":[]},"n":-7,"u":65536,"f":0.5})";
    const Json json = ParseJson(text);
    EXPECT_EQ(json.dump(), text);
    EXPECT_TRUE(json["n"].is_number_integer());
    EXPECT_TRUE(json["u"].is_number_unsigned());
    EXPECT_TRUE(json["f"].is_number_float());
    EXPECT_EQ(ParseJson("5"), 5);
    EXPECT_EQ(ParseJson("\xEF\xBB\xBF{}"), Json::object()) << "a byte order mark is no part of the document";
}

TEST(Json, RefusesAMemberThatIsNamedTwiceInOneObjectAndSaysWhere) {
    EXPECT_EQ(Complaint(R"({"a": {"b": 1}, "c": {"b": 2}, "b": [{"b": 3}, {"b": 4}]})"), "none");
    EXPECT_EQ(Complaint(R"({"a": 1, "b": 2, "a": 3})"), "error at line 1, column 20: \"a\" is named twice");
    EXPECT_EQ(Complaint("[{\"b\":\n\n {\"x\": 1,\n  \"x\": 1}}]"),
              "error at line 4, column 5: \"x\" is named twice");
    EXPECT_EQ(Complaint(R"({"a\u0000\n": 1, "a\u0000\n": 1})"),
              R"(error at line 1, column 28: "a\u0000\n" is named twice)");
}

TEST(Json, RefusesWhatIsNoJson) {
    for (const char* text : {"", "{", "{]", "nonsense", "{} {}", "{\"a\": 01}", "\"\xFF\""}) {
        EXPECT_NE(Complaint(text).find("error"), std::string::npos) << text;
    }
}

TEST(Json, RefusesANumberThatNoSingleHoldsAndNamesItsMember) {
    EXPECT_EQ(Complaint("1e39"), "error at line 1, column 4: a number that no Single holds: 1e39");
    EXPECT_EQ(Complaint("[1,\n 3.5e38]"),
              "error at line 2, column 7: \"[2]\" is a number that no Single holds: 3.5e38");
    EXPECT_EQ(Complaint(R"({"G": [{"V": 1}, {"V": 2, "W": -1e39}]})"),
              R"(error at line 1, column 36: "G[2].W" is a number that no Single holds: -1e39)");
}

TEST(Json, TakesANumberThatIsTooSmallForASingleForZero) {
    EXPECT_EQ(ParseJson("[3.4e38, 1e-60, 1e-45]"), (Json{3.4e38F, 0.0F, 1e-45F}));
}

TEST(Json, ShowsTheBeginningOfWhatIsLong) {
    const std::string sixty = "€" + std::string(59, 'x');
    const std::string quoted = "\"" + sixty + "\"";
    EXPECT_EQ(Quoted(sixty), quoted);
    EXPECT_EQ(Quoted(sixty + "é"), "\"" + sixty + "...\"");
    const std::string digits(60, '9');
    EXPECT_EQ(Complaint("{\"" + sixty + "yz\": 1" + digits + "}"),
              "error at line 1, column 130: \"" + sixty + "...\" is a number that no Single holds: 1" +
                  digits.substr(1) + "...");
    EXPECT_EQ(Complaint("{\"" + sixty + "y\": 1, \"" + sixty + "y\": 2}"),
              "error at line 1, column 136: \"" + sixty + "...\" is named twice");
    const std::string unclosed = Complaint("[\"" + std::string(100000, 'x'));
    EXPECT_LT(unclosed.size(), 250U);
    EXPECT_TRUE(unclosed.ends_with("; last read: '\"" + std::string(59, 'x') + "...'")) << unclosed;
}

std::string Nested(std::size_t depth) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) {
        text.insert(0, i % 2 == 0 ? "[" : R"({"a":)").append(i % 2 == 0 ? "]" : "}");
    }
    return text;
}

TEST(Json, RefusesDeepNesting) {
    EXPECT_EQ(ParseJson(Nested(64)).dump(), Nested(64));
    EXPECT_TRUE(Complaint(Nested(65)).ends_with(": more than 64 objects and arrays in one another"));
    EXPECT_EQ(Complaint(std::string(1000000, '[')),
              "error at line 1, column 65: more than 64 objects and arrays in one another");
}

// Looking through all members for each new one would take minutes here.
TEST(Json, ReadsLongArraysAndObjects) {
    constexpr int kCount = 200000;
    std::string array = "[";
    std::string object = "{";
    for (int i = 0; i < kCount; ++i) {
        array += R"({"a":1},)";
        object += "\"" + std::to_string(i) + "\":1,";
    }
    EXPECT_EQ(ParseJson(array + "1]").size(), kCount + 1U);
    EXPECT_EQ(ParseJson(object + "\"a\":1}").size(), kCount + 1U);
}

} // namespace

} // namespace orvel::cli
