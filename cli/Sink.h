// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace orvel::cli {

// Takes what a command makes of its files to where the call wants it: a file for each in the output folder,
// one output file for all, or standard output.
class Sink {
public:
    // `extension` is that of the files in the output folder. Raises CommandError for a call that can't be
    // done: an output that is an input, two files that would share a name in the folder. Nothing has been
    // written then.
    Sink(const Options& callOptions, std::string_view extensionOfOutputs);

    // Raises CommandError when the text can't be written.
    void Take(const std::filesystem::path& file, std::string_view text);
    // Writes what was gathered. Raises CommandError.
    void Finish();

private:
    [[nodiscard]] std::filesystem::path OutputFor(const std::filesystem::path& file) const;

    const Options& options;
    std::string extension;
    std::string gathered;
    bool hasGathered = false;
};

} // namespace orvel::cli
