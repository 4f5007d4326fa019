// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace orvel::cli {

// JSON whose members keep their order and whose numbers are Singles, read with one rounding.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

// A number, or for one that is not finite a text of its bits, "0x7fc00000".
[[nodiscard]] Json JsonSingle(float value);

// One document, indented for reading, or one line of several. A Single is written in the shortest form that
// reads back as the same.
[[nodiscard]] std::string JsonDocument(const Json& json);
[[nodiscard]] std::string JsonLine(const Json& json);

// A name or value as a complaint shows it: as JSON writes it, in quotes, a long one shortened.
[[nodiscard]] std::string Quoted(std::string_view utf8);

// Reads one document, in time and memory that grow with its length alone. Numbers that a Single can't tell
// from 0 are 0, with their sign. Raises std::runtime_error, saying what is wrong and at which line and column
// (in bytes, from 1) reading stopped, for text that is no JSON, an object that names a member twice, a number
// that no Single holds, or more than 64 objects and arrays in one another.
[[nodiscard]] Json ParseJson(const std::string& text);

} // namespace orvel::cli
