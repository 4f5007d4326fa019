// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "entry/EntryState.h"

#include <QPointer>
#include <QWidget>
#include <filesystem>
#include <string>

namespace orvel::monkey {

// Looks after what is typed into a data window: all of it but the text under the hands is in the recovery
// file, or in the record that was opened or saved. Nothing at all is missing when a run-time error is told.
class RecoveryPromises {
public:
    // What has been broken since the last call; empty for nothing. `endsByError`: the user is being told.
    [[nodiscard]] std::string Broken(bool endsByError);

private:
    void FindHands(const QWidget& ofWindow);

    QPointer<const QWidget> window;
    // The entries that are safe, in which file, and when that was written: the test file is as good as a
    // recovery file when it has just been opened or saved.
    EntryState kept;
    std::filesystem::path keptIn;
    std::filesystem::file_time_type keptAt;
    // What the test file is as good as a recovery file for, in which window, and when it was written.
    EntryState saved;
    QPointer<const QWidget> savedIn;
    std::filesystem::file_time_type savedAt;
    std::string underTheHands; // the control whose text may get lost
};

} // namespace orvel::monkey
