// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"

#include "cli/Output.h"
#include "cli/RecordJson.h"
#include "core/RecordLayout.h"
#include "core/Records.h"

#include <algorithm>
#include <stdexcept>
#include <string>

// What orvel-cli build reads. An input is the text of its file.
namespace orvel::fuzz {

namespace {

// A complaint becomes one line of UTF-8 that is not endless.
void RequireOneLine(const std::string& complaint) {
    constexpr std::size_t kLongest = 1000;
    const std::string line = cli::OnOneLine(complaint);
    Require(!line.empty() && line.size() <= kLongest, "a complaint says something, but no novel");
    Require(std::ranges::none_of(line, [](char each) { return each >= 0 && each < ' '; }),
            "a complaint is one line");
}

template <class Test>
void TryToBuild(const cli::Json& json) {
    Test test;
    try {
        cli::BuildTest(json, test);
    } catch (const std::runtime_error& error) {
        RequireOneLine(error.what());
        return;
    }
    Test again;
    cli::BuildTest(cli::ParseJson(cli::JsonDocument(cli::DumpTest(test))), again);
    Require(std::ranges::equal(AsBytes(again), AsBytes(test)), "a built dump has every byte of the record");
}

} // namespace

bool Try(std::string_view input) {
    cli::Json json;
    try {
        json = cli::ParseJson(std::string{input});
    } catch (const std::runtime_error& error) {
        RequireOneLine(error.what());
        return true;
    }
    Require(cli::ParseJson(cli::JsonDocument(json)) == json, "an indented document reads back as the same");
    Require(cli::ParseJson(cli::JsonLine(json)) == json, "a line reads back as the same");
    TryToBuild<CenterPivotTest>(json);
    TryToBuild<SolidSetTest>(json);
    return true;
}

} // namespace orvel::fuzz
