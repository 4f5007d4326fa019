// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/ResultsOutput.h"

#include "centerpivot/CenterPivot.h"
#include "core/CodePage.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/Text.h"

#include <array>
#include <cmath>
#include <span>
#include <string_view>

namespace orvel::cli {

namespace {

struct NamedResult {
    const char* name;
    float CenterPivotResults::*value;
};

constexpr std::array<NamedResult, 8> kResults = {{
    {"MaximumDepth", &CenterPivotResults::MaximumDepth},
    {"AverageDepth", &CenterPivotResults::AverageDepth},
    {"ChristiansenCU", &CenterPivotResults::ChristiansenCU},
    {"HeermannHeinCU", &CenterPivotResults::HeermannHeinCU},
    {"LowQuarterDU", &CenterPivotResults::LowQuarterDU},
    {"IrrigatedAcres", &CenterPivotResults::IrrigatedAcres},
    {"CalculatedFlowRate", &CenterPivotResults::CalculatedFlowRate},
    {"ApplicationEfficiency", &CenterPivotResults::ApplicationEfficiency},
}};

constexpr const char* kApplicationRateName = "ApplicationRateAtLastTower";

std::span<const CupDepth> CountedCups() {
    return std::span(CupDepths()).subspan(1, static_cast<std::size_t>(PivotResults().CupCount));
}

std::string NumberText(float value) {
    return std::isfinite(value) ? PlainText(value, InvariantNumberLocale()) : "not a number";
}

std::string ResultLine(std::string_view name, std::string_view value) {
    constexpr std::size_t kNameColumns = 28;
    return PadText(name, kNameColumns, 'R', ' ').append(value).append("\n");
}

std::string CupLine(std::string_view sequence, std::string_view footage, std::string_view depth) {
    constexpr std::size_t kColumns = 12;
    std::string line;
    for (const std::string_view column : {sequence, footage, depth}) {
        line +=
            column.size() < kColumns ? PadText(column, kColumns, 'L', ' ') : std::string{" "}.append(column);
    }
    return line + "\n";
}

} // namespace

Json CenterPivotResultsJson(const std::optional<float>& applicationRate) {
    const CenterPivotResults& results = PivotResults();
    Json json = {{"kind", kCenterPivot},
                 {"ReportTitle", ToUtf8(results.ReportTitle.Trimmed())},
                 {"CupCount", results.CupCount}};
    for (const NamedResult& result : kResults) {
        json[result.name] = JsonSingle(results.*result.value);
    }
    json[kApplicationRateName] = applicationRate ? JsonSingle(*applicationRate) : Json(nullptr);
    Json cups = Json::array();
    for (const CupDepth& cup : CountedCups()) {
        cups.push_back({{"Sequence", JsonSingle(cup.Sequence)},
                        {"Footage", JsonSingle(cup.Footage)},
                        {"Depth", JsonSingle(cup.Depth)}});
    }
    json["CupDepths"] = std::move(cups);
    return json;
}

std::string CenterPivotResultsListing(const std::optional<float>& applicationRate) {
    const CenterPivotResults& results = PivotResults();
    std::string text = ResultLine("ReportTitle", results.ReportTitle.Trimmed());
    text += ResultLine("CupCount", std::to_string(results.CupCount));
    for (const NamedResult& result : kResults) {
        text += ResultLine(result.name, NumberText(results.*result.value));
    }
    text += ResultLine(kApplicationRateName, applicationRate ? NumberText(*applicationRate) : "not computed");
    text += CupLine("Sequence", "Footage", "Depth");
    for (const CupDepth& cup : CountedCups()) {
        text += CupLine(NumberText(cup.Sequence), NumberText(cup.Footage), NumberText(cup.Depth));
    }
    return text;
}

} // namespace orvel::cli
