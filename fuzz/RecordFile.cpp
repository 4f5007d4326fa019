// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/RecordFile.h"

#include "core/Text.h"

#include <algorithm>

namespace orvel::fuzz {

std::string RecordOf(std::string_view file, std::span<const Field> fields) {
    std::string record;
    for (const Field& field : fields) {
        record.append(field.width, field.kind == FieldKind::Text ? ' ' : '\0');
    }
    return record.replace(0, std::min(file.size(), record.size()), file.substr(0, record.size()));
}

std::string SavedOver(std::string_view file, std::string_view record) {
    return std::string{record}.append(file.substr(std::min(file.size(), record.size())));
}

bool IsOnlyTrimmed(std::string_view before, std::string_view after, std::span<const Field> fields) {
    return std::ranges::all_of(fields, [&](const Field& field) {
        const std::string_view old = before.substr(field.offset, field.width);
        const std::string_view now = after.substr(field.offset, field.width);
        const bool isTrimmed = field.kind == FieldKind::Text && TrimRight(now) == Trim(old);
        return now == old || isTrimmed;
    });
}

} // namespace orvel::fuzz
