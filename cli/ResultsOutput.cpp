// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/ResultsOutput.h"

#include "centerpivot/CenterPivot.h"
#include "cli/Session.h"
#include "core/CodePage.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RunTimeError.h"
#include "core/Text.h"
#include "solidset/SolidSet.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>

namespace orvel::cli {

namespace {

// A result that is a Single, under its name.
template <class Owner>
struct NamedResult {
    const char* name;
    float Owner::*value;
};

constexpr std::array<NamedResult<CenterPivotResults>, 8> kPivotResults = {{
    {"MaximumDepth", &CenterPivotResults::MaximumDepth},
    {"AverageDepth", &CenterPivotResults::AverageDepth},
    {"ChristiansenCU", &CenterPivotResults::ChristiansenCU},
    {"HeermannHeinCU", &CenterPivotResults::HeermannHeinCU},
    {"LowQuarterDU", &CenterPivotResults::LowQuarterDU},
    {"IrrigatedAcres", &CenterPivotResults::IrrigatedAcres},
    {"CalculatedFlowRate", &CenterPivotResults::CalculatedFlowRate},
    {"ApplicationEfficiency", &CenterPivotResults::ApplicationEfficiency},
}};

constexpr std::array<NamedResult<SolidSetResults>, 5> kSolidResults = {{
    {"SolidSetMaximumDepth", &SolidSetResults::SolidSetMaximumDepth},
    {"SolidSetAverageDepth", &SolidSetResults::SolidSetAverageDepth},
    {"SolidSetCU", &SolidSetResults::SolidSetCU},
    {"SolidSetDU", &SolidSetResults::SolidSetDU},
    {"SolidSetApplicationRate", &SolidSetResults::SolidSetApplicationRate},
}};

constexpr const char* kLastTowerRateName = "ApplicationRateAtLastTower";

std::string NumberText(float value) {
    return std::isfinite(value) ? PlainText(value, InvariantNumberLocale()) : "not a number";
}

std::string ResultLine(std::string_view name, std::string_view value) {
    constexpr std::size_t kNameColumns = 28;
    return PadText(name, kNameColumns, 'R', ' ').append(value).append("\n");
}

std::string CupLine(std::initializer_list<std::string_view> columns) {
    constexpr std::size_t kColumns = 12;
    std::string line;
    for (const std::string_view column : columns) {
        line += RightColumn(column, kColumns);
    }
    return line + "\n";
}

// Results as far as they are Singles.
template <class Owner>
void AddSingles(Json& json, const Owner& results, std::span<const NamedResult<Owner>> named) {
    for (const auto& [name, value] : named) {
        json[name] = JsonSingle(results.*value);
    }
}

template <class Owner>
void AddSingles(std::string& listing, const Owner& results, std::span<const NamedResult<Owner>> named) {
    for (const auto& [name, value] : named) {
        listing += ResultLine(name, NumberText(results.*value));
    }
}

// Nothing where it can't be computed. A run-time error is shown, but not a second one: an entry that ended
// the calculation would only be reported twice.
std::optional<float> LastTowerRate() {
    std::optional<float> rate;
    const auto compute = [&rate] { rate = ApplicationRateAtLastTower(); };
    if (!Program().shownError) {
        (void)Attempt(compute);
        return rate;
    }
    try {
        compute();
    } catch (const RunTimeError&) { // NOLINT(bugprone-empty-catch)
        // An error has been shown already.
    }
    return rate;
}

} // namespace

Json CenterPivotResultsJson() {
    CalculateCenterPivot();
    const std::optional<float> rate = LastTowerRate();
    const CenterPivotResults& results = PivotResults();
    Json json = {{"kind", kCenterPivot},
                 {"ReportTitle", ToUtf8(results.ReportTitle.Trimmed())},
                 {"CupCount", results.CupCount}};
    AddSingles<CenterPivotResults>(json, results, kPivotResults);
    json[kLastTowerRateName] = rate ? JsonSingle(*rate) : Json(nullptr);
    Json cups = Json::array();
    for (const CupDepth& cup : CountedCupDepths()) {
        cups.push_back({{"Sequence", JsonSingle(cup.Sequence)},
                        {"Footage", JsonSingle(cup.Footage)},
                        {"Depth", JsonSingle(cup.Depth)}});
    }
    json["CupDepths"] = std::move(cups);
    return json;
}

std::string CenterPivotResultsListing() {
    CalculateCenterPivot();
    const std::optional<float> rate = LastTowerRate();
    const CenterPivotResults& results = PivotResults();
    std::string listing = ResultLine("ReportTitle", ToUtf8(results.ReportTitle.Trimmed()));
    listing += ResultLine("CupCount", std::to_string(results.CupCount));
    AddSingles<CenterPivotResults>(listing, results, kPivotResults);
    listing += ResultLine(kLastTowerRateName, rate ? NumberText(*rate) : "not computed");
    listing += CupLine({"Sequence", "Footage", "Depth"});
    for (const CupDepth& cup : CountedCupDepths()) {
        listing += CupLine({NumberText(cup.Sequence), NumberText(cup.Footage), NumberText(cup.Depth)});
    }
    return listing;
}

Json SolidSetResultsJson() {
    CalculateSolidSet();
    const SolidSetResults& results = SolidResults();
    Json json = {{"kind", kSolidSet}, {"SolidSetCupCount", results.SolidSetCupCount}};
    Json depths = Json::array();
    for (const float depth : SolidSetCountedDepths()) {
        depths.push_back(JsonSingle(depth));
    }
    json["SolidSetDepths"] = std::move(depths);
    AddSingles<SolidSetResults>(json, results, kSolidResults);
    return json;
}

std::string SolidSetResultsListing() {
    CalculateSolidSet();
    const SolidSetResults& results = SolidResults();
    std::string listing = ResultLine("SolidSetCupCount", std::to_string(results.SolidSetCupCount));
    AddSingles<SolidSetResults>(listing, results, kSolidResults);
    listing += CupLine({"Cup", "Depth"});
    int cup = 0;
    for (const float depth : SolidSetCountedDepths()) {
        listing += CupLine({std::to_string(++cup), NumberText(depth)});
    }
    return listing;
}

} // namespace orvel::cli
