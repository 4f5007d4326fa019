// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Listing.h"

#include "core/RunTimeError.h"
#include "core/Text.h"

#include <algorithm>

namespace orvel {

namespace {

constexpr std::size_t kLabelColumns = 34;
constexpr std::size_t kLeastCommentWidth = 500;
constexpr std::size_t kCupColumns = 8;
constexpr std::size_t kNumberColumns = 10;

std::string ValueText(std::span<const std::byte> bytes, FieldKind kind) {
    if (kind == FieldKind::Text) {
        return std::string{Trim(TextOf(bytes))};
    }
    if (kind == FieldKind::Flag) {
        return std::string{BooleanWord(FlagOf(bytes).IsSet())};
    }
    Raise(ErrorNumber::InvalidProcedureCall);
}

} // namespace

std::string ListingTitle(std::string_view title) {
    return PadText(title, kReportColumns, 'C', ' ').append(kCrLf) + RuleLine();
}

std::string ListingFields(std::span<const std::byte> record, std::span<const Field> fields,
                          std::span<const ListingLabel> labels) {
    std::string text;
    for (const ListingLabel& label : labels) {
        const auto field = std::ranges::find(fields, label.field, &Field::name);
        if (field == fields.end()) {
            Raise(ErrorNumber::InvalidProcedureCall);
        }
        const bool isComment = field->width >= kLeastCommentWidth;
        text += isComment ? std::string{label.label}.append(kCrLf)
                          : PadText(label.label, kLabelColumns, 'R', ' ');
        text += ValueText(record.subspan(field->offset, field->width), field->kind);
        text += kCrLf;
    }
    return text;
}

std::string ListingRow(std::initializer_list<std::string_view> columns) {
    std::string row;
    for (const std::string_view column : columns) {
        row += RightColumn(column, row.empty() ? kCupColumns : kNumberColumns);
    }
    return row.append(kCrLf);
}

} // namespace orvel
