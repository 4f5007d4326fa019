// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"

#include <string>
#include <string_view>

// The instructions have one source, in a part of Markdown (UTF-8):
//
//     # Title                     of the whole, the first line
//     ## Section
//     - an entry of a list        its next lines begin with two blanks
//     ![what it shows](file)      a picture, for the manual only
//     a paragraph                 up to the next empty line
//
// and inside a text **bold**, *italic*, `formula`, and "\" before a character that means itself.
namespace orvel::help {

// What the program shows. Raises std::invalid_argument, with the text at fault, for a mark that nothing ends.
[[nodiscard]] RichDocument HelpDocument(std::string_view source);

// The page of the manual: the source, with a list of its sections below the title. Raises
// std::invalid_argument for a source without a title.
[[nodiscard]] std::string ManualPage(std::string_view source);

} // namespace orvel::help
