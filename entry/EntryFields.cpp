// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryFields.h"

#include "core/EntryRules.h"
#include "core/RunTimeError.h"
#include "core/Text.h"

#include <string>

namespace orvel {

void EntryForm::Load(std::span<const std::byte> record) const {
    for (const EntryField& entry : entries) {
        const Field& field = FieldOf(entry.control);
        const auto bytes = record.subspan(field.offset, field.width);
        if (field.kind == FieldKind::Flag) {
            view.SetChecked(entry.control, FlagOf(bytes).IsSet());
        } else {
            view.SetText(entry.control, std::string{Trim(TextOf(bytes))});
        }
    }
}

void EntryForm::Store(std::span<std::byte> record) const {
    for (const EntryField& entry : entries) {
        if (FieldOf(entry.control).kind == FieldKind::Text) {
            StoreText(entry.control, record);
        }
    }
    for (const EntryField& entry : entries) {
        const Field& field = FieldOf(entry.control);
        if (field.kind != FieldKind::Flag) {
            continue;
        }
        if (const auto isChecked = view.IsChecked(entry.control)) {
            PutFlag(record.subspan(field.offset, field.width), *isChecked);
        }
    }
}

void EntryForm::StoreText(std::string_view control, std::span<std::byte> record) const {
    const Field& field = FieldOf(control);
    PutText(record.subspan(field.offset, field.width), Trim(view.Text(control)));
}

void EntryForm::CheckLength(std::string_view control) const {
    const auto entry = std::ranges::find(entries, control, &EntryField::control);
    if (entry == entries.end() || entry->rule != EntryRule::Length) {
        return;
    }
    LimitText(control);
    if (!entry->alsoChecked.empty()) {
        LimitText(entry->alsoChecked);
    }
}

const Field& EntryForm::FieldOf(std::string_view control) const {
    const auto field = std::ranges::find(fields, FieldName(control), &Field::name);
    if (field == fields.end()) {
        Raise(ErrorNumber::InvalidProcedureCall);
    }
    return *field;
}

void EntryForm::LimitText(std::string_view control) const {
    const std::string text = view.Text(control);
    const std::string limited = LimitLength(text, WidthOf(control));
    if (limited != text) {
        view.SetText(control, limited);
    }
}

} // namespace orvel
