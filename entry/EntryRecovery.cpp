// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryRecovery.h"

#include "core/CodePage.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/ProgramState.h"
#include "core/TestFile.h"

#include <array>
#include <cstdio>
#include <utility>

namespace orvel {

namespace {

constexpr const char* kTitle = "Restore Entries";

// Without an open file, what is typed goes to a place of its own.
RecoveryFile FileOfOpenTest() {
    std::filesystem::path file = CurrentFile();
    if (file.empty() && !Program().userDataFolder.empty()) {
        file = Program().userDataFolder / (std::string("untitled.") + CurrentKind().extension);
    }
    return RecoveryFile(file);
}

std::string Now() {
    const DateTime now = CurrentPlatform().clock->Now();
    std::array<char, 80> text{}; // room for six numbers of any size
    (void)std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", now.year, now.month,
                        now.day, now.hour, now.minute, now.second);
    return text.data();
}

} // namespace

EntryRecovery::EntryRecovery(EntryState untouched)
    : file(FileOfOpenTest()), saved(std::move(untouched)), kept(saved) {}

std::optional<EntryState> EntryRecovery::Offer() {
    std::optional<RecoveredEntries> latest;
    bool isDamaged = false;
    for (const std::string& content : file.Read()) {
        std::optional<RecoveredEntries> entries = ReadRecoveryText(content);
        if (!entries || entries->testKind != Program().testKind ||
            entries->state.cells.front().size() != kept.cells.front().size()) {
            isDamaged = true;
        } else if (!latest || entries->written > latest->written) {
            latest = std::move(entries);
        }
    }
    if (latest && Ask("What was typed into this test until " + FromUtf8(latest->written) +
                          " was not saved.\rWould you like to restore it?",
                      kTitle, Buttons::YesNo) == Reply::Yes) {
        kept = latest->state;
        return kept;
    }
    file.SetAside();
    if (isDamaged) {
        Tell(
            "The recovery file of this test can't be read. It is kept under another name until the next save.",
            kTitle);
    }
    return {};
}

void EntryRecovery::Keep(const EntryState& state) {
    if (state == kept) {
        return;
    }
    if (state == saved) {
        file.Remove();
    } else {
        file.Write(RecoveryText({Program().testKind, Now(), state}));
    }
    kept = state;
}

void EntryRecovery::Saved(const EntryState& state) {
    file.Remove();
    file.RemoveKept();
    file = FileOfOpenTest();
    // Of the test that was in that file.
    file.SetAside();
    saved = state;
    // No record holds what the editor does.
    saved.edit.reset();
    kept = saved;
}

} // namespace orvel
