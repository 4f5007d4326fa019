// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordLayout.h"

#include <span>
#include <string>
#include <string_view>

// What holds for every file of a record.
namespace orvel::fuzz {

// The record in a file that may be shorter or longer: what is missing is blank in texts, else zero.
[[nodiscard]] std::string RecordOf(std::string_view file, std::span<const Field> fields);

// The file after that record was saved over it: what lay behind it has stayed.
[[nodiscard]] std::string SavedOver(std::string_view file, std::string_view record);

// Whether the records are alike but for blanks around texts, of which the second has none before them.
[[nodiscard]] bool IsOnlyTrimmed(std::string_view before, std::string_view after,
                                 std::span<const Field> fields);

template <class Record>
std::string BytesOf(const Record& record) {
    return TextOf(AsBytes(record));
}

} // namespace orvel::fuzz
