// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/EntryState.h"
#include "entry/RecoveryFile.h"

#include <filesystem>
#include <optional>
#include <string>

namespace orvel {

// Keeps what is typed into a data window safe until it is saved: between opening and closing the window, the
// recovery file of its test holds the last state, as long as that differs from what was opened or saved.
class EntryRecovery {
public:
    // Of the open test, whose controls show that and nobody has touched.
    explicit EntryRecovery(EntryState untouched);

    // What an earlier run left behind, if the user wants it back. What he does not want, and what can't be
    // read, is kept under another name until the next save.
    [[nodiscard]] std::optional<EntryState> Offer();

    // Writes the state unless it is kept already; nothing is left to recover of one that is as it was opened
    // or saved. Raises FileError.
    void Keep(const EntryState& state);

    // The test is saved, maybe in another file, with which it goes on: nothing is left to recover.
    void Saved(const EntryState& state);
    // Nobody wants what was typed.
    void Discard() { file.Remove(); }

private:
    RecoveryFile file;
    EntryState saved; // or opened
    EntryState kept;  // by the file, or saved where there is none
};

} // namespace orvel
