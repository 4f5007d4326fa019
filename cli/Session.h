// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Services.h"
#include "cli/TestKinds.h"
#include "core/FileNames.h"
#include "core/Records.h"
#include "core/RunTimeError.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace orvel::cli {

// Does a part of the work that reads a file; a failure becomes a CommandError.
template <class Read>
auto ReadOrComplain(const std::filesystem::path& file, Read read) {
    try {
        return read();
    } catch (const FileError& error) {
        throw CommandError(kFileFailed, PathUtf8(file), error.what());
    }
}

// What a command made of one file: an ExitStatus, and the text to write (UTF-8) if there is one.
struct FileResult {
    int status = 0;
    std::optional<std::string> text;
};

// Runs the program's logic over test files, each as a fresh run of the program would: nothing of one file is
// left over in the next.
class Session {
public:
    // Reads the settings of the program directory, without ever writing them. Raises CommandError.
    explicit Session(const Options& callOptions);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Loads the file and does the work for its kind. A run-time error that was shown on the way makes the
    // status kRunTimeError. Without --json the boxes go to standard error. Raises CommandError for a file
    // that can't be read.
    FileResult Run(const std::filesystem::path& file,
                   const std::function<FileResult(const TestKind& kind)>& work);

    // The boxes of the current file so far.
    [[nodiscard]] Json Messages() const { return MessagesJson(collector.Messages()); }

private:
    void Load(const TestKind& kind, const std::filesystem::path& file);
    void TellMessages(const std::filesystem::path& file) const;

    const Options& options;
    MessageCollector collector;
    SilentBeeper beeper;
    CommandClock clock;
    UserSettings userSettings;
    SoilIntakeTable soilIntakeTable;
};

// Does a part of the work; a run-time error that ends it is shown in the error box, and the answer is false.
[[nodiscard]] bool Attempt(const std::function<void()>& part);

} // namespace orvel::cli
