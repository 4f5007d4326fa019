// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ExitStatus.h"
#include "cli/Json.h"
#include "cli/Output.h"
#include "cli/Session.h"
#include "cli/Sink.h"
#include "cli/TestKinds.h"
#include "core/FileNames.h"
#include "core/SafeFile.h"

#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace orvel::cli {

namespace {

constexpr const char* kStandardInput = "-";

std::string ReadStandardInput() {
    std::string content;
    std::array<char, 65536> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): fread fills it
    while (const std::size_t length = std::fread(buffer.data(), 1, buffer.size(), stdin)) {
        content.append(buffer.data(), length);
    }
    if (std::ferror(stdin) != 0) {
        throw CommandError(kFileFailed, "standard input", "cannot read");
    }
    return content;
}

std::string ReadInput(const std::filesystem::path& file) {
    if (file == kStandardInput) {
        return ReadStandardInput();
    }
    return ReadOrComplain(file, [&file] { return ReadFile(file); });
}

// The kind that the call or the output's extension says, else the one that the JSON names.
const TestKind& KindToBuild(const Options& options, const Json& json) {
    const bool isNamedByJsonAlone = options.kind.empty() && !HasKnownExtension(options.output);
    const bool namesOne = json.is_object() && json.contains("kind") && json["kind"].is_string();
    return KindOf(options.output,
                  isNamedByJsonAlone && namesOne ? json["kind"].get<std::string>() : options.kind);
}

} // namespace

int RunDump(const Options& options) {
    const std::filesystem::path& file = options.files.front();
    Sink sink(options, "");
    const TestKind& kind = KindOf(file, options.kind);
    sink.Take(file, JsonDocument(ReadOrComplain(file, [&] { return kind.dump(file); })));
    sink.Finish();
    return kDone;
}

int RunBuild(const Options& options) {
    const std::filesystem::path& file = options.files.front();
    Inputs(options.files).RefuseToOverwrite(options.output);
    try {
        const Json json = ParseJson(ReadInput(file));
        const TestKind& kind = KindToBuild(options, json);
        // A built file is new as a whole: nothing of an older one stays behind the record.
        WriteOutput(options.output, kind.build(json), Flush::ToDisk);
    } catch (const CommandError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw CommandError(kFileFailed, PathUtf8(file), error.what());
    }
    return kDone;
}

} // namespace orvel::cli
