// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <string_view>

namespace orvel {

// The document in the bytes of a rich-text file, as word processors write them. Never fails: of a damaged or
// cut file it gives what can be shown, and bytes that are no rich text at all are plain text of the current
// code page. Takes time and memory linear in the file.
[[nodiscard]] RichDocument ReadRtf(std::string_view bytes);

} // namespace orvel
