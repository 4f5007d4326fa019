// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Sink.h"

#include "cli/ExitStatus.h"
#include "cli/Output.h"
#include "core/FileNames.h"

#include <set>

namespace orvel::cli {

Sink::Sink(const Options& callOptions, std::string_view extensionOfOutputs)
    : options(callOptions), extension(extensionOfOutputs) {
    if (!options.output.empty()) {
        Inputs(options.files).RefuseToOverwrite(options.output);
    }
    if (!options.outputDirectory.empty()) {
        const Inputs inputs(options.files);
        std::set<std::filesystem::path> outputs;
        for (const std::filesystem::path& file : options.files) {
            const std::filesystem::path output = OutputFor(file);
            if (!outputs.insert(PathForComparison(output)).second) {
                throw CommandError(kWrongUsage, PathUtf8(file),
                                   "another file would be written to " + PathUtf8(output) + " too");
            }
            inputs.RefuseToOverwrite(output);
        }
    }
}

void Sink::Take(const std::filesystem::path& file, std::string_view text) {
    if (!options.outputDirectory.empty()) {
        WriteOutput(OutputFor(file), text, Flush::Lazy);
    } else if (!options.output.empty()) {
        gathered += text;
        hasGathered = true;
    } else {
        Print(text);
    }
}

void Sink::Finish() {
    if (hasGathered) {
        WriteOutput(options.output, gathered, Flush::Lazy);
    }
    FlushOutput();
}

std::filesystem::path Sink::OutputFor(const std::filesystem::path& file) const {
    // A name that is nothing but ".cpd" stays whole, so that its output has a name too.
    std::filesystem::path name = file.stem();
    return options.outputDirectory / (name += "." + extension);
}

} // namespace orvel::cli
