// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <filesystem>
#include <string>

namespace orvel {

// A document as rich text that word processors open unchanged; pure ASCII, lines ended by CR LF. Reading it
// gives the same document, but for names of fonts that are longer than 63 characters.
[[nodiscard]] std::string WriteRtf(const RichDocument& document);

// The same into a file. Raises FileError.
void SaveRtf(const std::filesystem::path& file, const RichDocument& document);

} // namespace orvel
