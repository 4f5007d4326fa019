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
    EXPECT_TRUE(std::signbit(ParseJson("-0.0").get<float>()));
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

TEST(Json, RefusesAMemberThatIsNamedTwiceInOneObject) {
    EXPECT_EQ(Complaint(R"({"a": {"b": 1}, "c": {"b": 2}})"), "none");
    EXPECT_EQ(Complaint(R"({"a": 1, "b": 2, "a": 3})"), "\"a\" is named twice");
    EXPECT_EQ(Complaint(R"([{"b": {"x": 1, "x": 1}}])"), "\"x\" is named twice");
}

TEST(Json, RefusesWhatIsNoJson) {
    for (const char* text : {"", "{", "{]", "nonsense", "{} {}", "{\"a\": 01}", "\"\xFF\""}) {
        EXPECT_NE(Complaint(text).find("error"), std::string::npos) << text;
    }
}

TEST(Json, RefusesANumberThatNoSingleHolds) {
    EXPECT_NE(Complaint("[3.5e38]").find("number overflow"), std::string::npos);
    EXPECT_EQ(Complaint("[3.4e38, 1e-60]"), "none");
}

} // namespace

} // namespace orvel::cli
