// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramState.h"

namespace orvel {

ProgramState& Program() {
    static ProgramState state;
    return state;
}

void ResetProgram() {
    Program() = ProgramState{};
}

} // namespace orvel
