// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryState.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace orvel {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kMark = "orvel recovery";
constexpr int kVersion = 1;

Json ToJson(const std::optional<CellEdit>& edit) {
    return edit ? Json{{"row", edit->row}, {"column", edit->column}, {"text", edit->text}} : Json();
}

std::optional<CellEdit> EditOf(const Json& json) {
    if (json.is_null()) {
        return {};
    }
    return CellEdit{json.at("row").get<int>(), json.at("column").get<int>(),
                    json.at("text").get<std::string>()};
}

// Whether the table is one of a grid, and the editor lies over one of its cells.
bool IsWhole(const EntryState& state) {
    if (state.cells.size() != MeasurementGrid::kLastRow || state.cells.front().empty()) {
        return false;
    }
    const std::size_t columns = state.cells.front().size();
    const bool isTable =
        std::ranges::all_of(state.cells, [columns](const auto& row) { return row.size() == columns; });
    const auto isCell = [columns](const CellEdit& edit) {
        return edit.row >= MeasurementGrid::kFixedRows && edit.row <= MeasurementGrid::kLastRow &&
               edit.column >= 1 && static_cast<std::size_t>(edit.column) <= columns;
    };
    return isTable && (!state.edit || isCell(*state.edit));
}

} // namespace

std::string RecoveryText(const RecoveredEntries& entries) {
    const EntryState& state = entries.state;
    const Json json = {{kMark, kVersion},           {"kind", entries.testKind}, {"written", entries.written},
                       {"texts", state.texts},      {"checks", state.checks},   {"cells", state.cells},
                       {"edit", ToJson(state.edit)}};
    // What a control shows is Unicode; should it be none after all, the rest is worth more than nothing.
    return json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<RecoveredEntries> ReadRecoveryText(std::string_view text) {
    try {
        const Json json = Json::parse(text);
        if (json.at(kMark) != kVersion) {
            return {};
        }
        RecoveredEntries entries;
        json.at("kind").get_to(entries.testKind);
        json.at("written").get_to(entries.written);
        json.at("texts").get_to(entries.state.texts);
        json.at("checks").get_to(entries.state.checks);
        json.at("cells").get_to(entries.state.cells);
        entries.state.edit = EditOf(json.at("edit"));
        return IsWhole(entries.state) ? std::optional(entries) : std::nullopt;
    } catch (const Json::exception&) {
        // Trapped: the file is not one of ours, or damaged.
        return {};
    }
}

} // namespace orvel
