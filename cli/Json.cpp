// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Json.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <set>
#include <stdexcept>

namespace orvel::cli {

namespace {

constexpr float kExactIntegers = 16777216.0F;
// A file's name may hold bytes that are no UTF-8; they are replaced.
constexpr auto kUnreadable = Json::error_handler_t::replace;

// The library's messages begin with an identifier in brackets, which helps nobody here.
std::string WithoutIdentifier(const std::string& what) {
    const std::size_t end = what.find("] ");
    return end == std::string::npos ? what : what.substr(end + 2);
}

} // namespace

Json JsonSingle(float value) {
    if (!std::isfinite(value)) {
        std::array<char, 11> bits{};
        (void)std::snprintf(bits.data(), bits.size(), "0x%08x", std::bit_cast<std::uint32_t>(value));
        return bits.data();
    }
    const bool isMinusZero = value == 0 && std::signbit(value);
    if (std::fabs(value) < kExactIntegers && std::trunc(value) == value && !isMinusZero) {
        return static_cast<std::int64_t>(value);
    }
    return value;
}

std::string JsonDocument(const Json& json) {
    return json.dump(2, ' ', false, kUnreadable) + "\n";
}

std::string JsonLine(const Json& json) {
    return json.dump(-1, ' ', false, kUnreadable) + "\n";
}

Json ParseJson(const std::string& text) {
    std::vector<std::set<std::string>> openObjects;
    const auto refuseTwins = [&openObjects](int, Json::parse_event_t event, const Json& parsed) {
        if (event == Json::parse_event_t::object_start) {
            openObjects.emplace_back();
        } else if (event == Json::parse_event_t::object_end) {
            openObjects.pop_back();
        } else if (event == Json::parse_event_t::key) {
            const auto& name = parsed.get_ref<const std::string&>();
            if (!openObjects.back().insert(name).second) {
                throw std::runtime_error("\"" + name + "\" is named twice");
            }
        }
        return true;
    };
    try {
        return Json::parse(text, refuseTwins);
    } catch (const Json::exception& error) {
        throw std::runtime_error(WithoutIdentifier(error.what()));
    }
}

} // namespace orvel::cli
