// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/Dice.h"

#include <QString>
#include <string>

// What hostile users type and paste.
namespace orvel::monkey {

// A few characters, as a number box, a name or nothing at all might get them; also such that no code page
// has.
[[nodiscard]] QString TextToType(Dice& dice);

// Puts something on the clipboard, or empties it: plain text of up to a megabyte, with line ends and NULs,
// rich text whole, broken or wrongly labelled, markup, a picture, addresses. Says what.
std::string FillClipboard(Dice& dice);

} // namespace orvel::monkey
