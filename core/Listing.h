// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordLayout.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

// What the data listings of both kinds of test share.
namespace orvel {

struct ListingLabel {
    std::string_view field;
    std::string_view label;
};

// The centred title and a rule.
[[nodiscard]] std::string ListingTitle(std::string_view title);

// One line for each label, in their order: the label, padded, and the value of its field in the record, a
// text trimmed, a flag as True or False. A comment (500 characters or wider) stands on the line below its
// label. Raises Invalid procedure call for a label whose field is not a text or flag of the record.
[[nodiscard]] std::string ListingFields(std::span<const std::byte> record, std::span<const Field> fields,
                                        std::span<const ListingLabel> labels);

// One line of the measurements: the cup's number, then its columns, each text on the right of its own. What
// is wider than its column widens the line, a blank before it.
[[nodiscard]] std::string ListingRow(std::initializer_list<std::string_view> columns);

} // namespace orvel
