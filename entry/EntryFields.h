// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordLayout.h"
#include "entry/DataView.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

// The controls of a data window and the fields of the record that they edit.
namespace orvel {

// What is looked after while the user types.
enum class EntryRule {
    None,
    Length,  // no longer than the field
    Numeric, // keys through the numeric key filter
};

struct EntryField {
    std::string_view control;
    EntryRule rule = EntryRule::None;
    // A text box whose length is looked after on this one's changes, too.
    std::string_view alsoChecked = {};
};

// A field is named as its control without its prefix.
[[nodiscard]] constexpr std::string_view FieldName(std::string_view control) {
    for (const std::string_view prefix : {"txtBox", "combo", "Combo", "chkBox"}) {
        if (control.starts_with(prefix)) {
            return control.substr(prefix.size());
        }
    }
    return {};
}

// Whether each control edits a text or a flag of the record.
[[nodiscard]] constexpr bool AreInRecord(std::span<const EntryField> entries, std::span<const Field> record) {
    return std::ranges::all_of(entries, [record](const EntryField& entry) {
        const auto field = std::ranges::find(record, FieldName(entry.control), &Field::name);
        return field != record.end() && (field->kind == FieldKind::Text || field->kind == FieldKind::Flag);
    });
}

// The controls of one window and the layout of the record behind them.
class EntryForm {
public:
    EntryForm(DataView& ofWindow, std::span<const EntryField> ofEntries, std::span<const Field> ofRecord)
        : view(ofWindow), entries(ofEntries), fields(ofRecord) {}

    // Shows each field: a text without surrounding blanks, a flag as checked or not.
    void Load(std::span<const std::byte> record) const;
    // The texts in the order of the entries, without surrounding blanks, then the flags; a greyed check box
    // leaves its flag.
    void Store(std::span<std::byte> record) const;
    // One text box.
    void StoreText(std::string_view control, std::span<std::byte> record) const;

    // The characters that its field holds.
    [[nodiscard]] std::size_t WidthOf(std::string_view control) const { return FieldOf(control).width; }

    // The length rule, after a change of the text box.
    void CheckLength(std::string_view control) const;

private:
    [[nodiscard]] const Field& FieldOf(std::string_view control) const;
    void LimitText(std::string_view control) const;

    DataView& view;
    std::span<const EntryField> entries;
    std::span<const Field> fields;
};

} // namespace orvel
