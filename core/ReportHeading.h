// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvel {

// What the heading of a report takes from a test. Texts are trimmed.
struct HeadingFields {
    std::string_view title;
    std::string_view dateOfTest;
    std::filesystem::path file;
    std::string_view clientName;
    std::string_view farmName;
    std::string_view operatorName;
    std::string_view address;
    std::string_view city;
    std::string_view state;
    std::string_view zip;
    std::string_view county;
    std::string_view phone;
    std::string_view eMail;
};

// Trims the test's fields in the record and takes them; the heading is good as long as they stay.
template <class Test>
HeadingFields HeadingFieldsOf(Test& test, std::string_view title, const std::filesystem::path& file) {
    return {
        .title = title,
        .dateOfTest = test.DateofTest.TrimInPlace(),
        .file = file,
        .clientName = test.ClientName.TrimInPlace(),
        .farmName = test.FarmName.TrimInPlace(),
        .operatorName = test.OperatorName.TrimInPlace(),
        .address = test.ClientAddress.TrimInPlace(),
        .city = test.ClientCity.TrimInPlace(),
        .state = test.ClientState.TrimInPlace(),
        .zip = test.ClientZip.TrimInPlace(),
        .county = test.ClientCounty.TrimInPlace(),
        .phone = test.ClientPhone.TrimInPlace(),
        .eMail = test.EMail.TrimInPlace(),
    };
}

// The first section of both kinds of report: the centred title; the dates and the file; the client on the
// left beside the tester of the user settings on the right. Each column lists what is filled in, from the
// top down; the client's lines are cut to their 35 columns.
[[nodiscard]] std::string ReportHeadingText(const HeadingFields& fields);

} // namespace orvel
