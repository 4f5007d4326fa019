// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/RunTimeError.h"

#include <string>

namespace orvel {

// A box that is only to be read.
void Tell(const std::string& text, const char* title);
void TellError(const std::string& text, const char* title);
// A box that asks.
[[nodiscard]] Reply Ask(const std::string& question, const char* title, Buttons buttons);

// Shows a box and keeps its text and the reply in the program state, as the data checks and the report do.
Reply ShowKeptMessage(const Message& message);

// Tells the user that a calculation or a report ended in a run-time error: its number, description and
// source, each on a line ended by CR. Keeps the message and the error in the program state.
void ShowGenerationError(const RunTimeError& error);

} // namespace orvel
