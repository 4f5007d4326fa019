// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordLayout.h"
#include "tests/support/LogicTest.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <span>
#include <string>

// What the data listings of both kinds of test must have.
namespace orvel::testing {

// The part of a listing that lists the cups under their head, without its rules.
inline std::string CupsOfListing(const std::string& listing, const std::string& head) {
    const std::size_t begin = listing.find(kRuleLine + head);
    EXPECT_NE(begin, std::string::npos);
    EXPECT_TRUE(listing.ends_with(kRuleLine));
    const std::size_t skipped = begin + kRuleLine.size() + head.size();
    return listing.substr(skipped, listing.size() - kRuleLine.size() - skipped);
}

// Puts a mark of its own into each text of the record that has room for one, so that no two fields can be
// mixed up; the listing must show them in the record's order.
template <class Record, std::size_t N>
void ExpectEachFieldOnItsLine(Record& record, const std::array<Field, N>& fields, std::size_t marks,
                              std::string (*listing)()) {
    const auto markOf = [](std::size_t number) { return "<" + std::to_string(number) + ">"; };
    std::size_t marked = 0;
    for (const Field& field : fields) {
        if (field.kind == FieldKind::Text && field.width > 1) {
            std::ranges::transform(markOf(++marked), FieldBytes(record, field).begin(),
                                   [](char letter) { return std::byte(letter); });
        }
    }
    ASSERT_EQ(marked, marks);
    const std::string text = listing();
    std::size_t last = 0;
    for (std::size_t i = 1; i <= marks; ++i) {
        const std::size_t place = text.find(markOf(i));
        ASSERT_NE(place, std::string::npos) << i;
        EXPECT_GT(place, last) << "the record's order";
        last = place;
    }
}

template <class Record>
void ExpectListingLeavesRecord(const Record& record, std::string (*listing)()) {
    const Record before = record;
    EXPECT_NE(listing(), "");
    EXPECT_TRUE(std::ranges::equal(AsBytes(record), AsBytes(before)));
}

} // namespace orvel::testing
