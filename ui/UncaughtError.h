// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunTimeError.h"

#include <functional>

namespace orvel::ui {

// Tells the user of a run-time error that no routine trapped, and ends the program with status 1. What is
// typed into an open data window is in its recovery file then.
[[noreturn]] void EndByError(const RunTimeError& error);

// Runs an event of the logic. No error may leave it: the toolkit's event loop can't carry one.
template <class Event>
void Run(Event&& event) {
    try {
        std::invoke(std::forward<Event>(event));
    } catch (const RunTimeError& error) {
        EndByError(error);
    }
}

} // namespace orvel::ui
