// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ExitStatus.h"
#include "cli/Json.h"
#include "cli/Output.h"
#include "cli/RecordJson.h"
#include "cli/Session.h"
#include "cli/Sink.h"
#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "core/RecordLayout.h"
#include "core/RunTimeError.h"
#include "core/SafeFile.h"

#include <array>
#include <cstdio>
#include <cstring>
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
    try {
        return ReadFile(file);
    } catch (const FileError& error) {
        throw CommandError(kFileFailed, file.native(), error.what());
    }
}

// The kind that the call or the output's extension says, else the one that the JSON names.
std::string KindToBuild(const Options& options, const Json& json) {
    const bool isExtensionKnown = HasExtension(options.output, "cpd") || HasExtension(options.output, "ssd");
    if (options.kind.empty() && !isExtensionKnown && json.is_object()) {
        for (const char* kind : {kCenterPivot, kSolidSet}) {
            if (json.value("kind", Json()) == kind) {
                return kind;
            }
        }
    }
    return KindOf(options.output, options.kind);
}

// A built file is new as a whole: nothing of an older one stays behind the record.
void WriteWhole(const std::filesystem::path& output, const CenterPivotTest& test) {
    const auto bytes = AsBytes(test);
    std::string content(bytes.size(), '\0');
    std::memcpy(content.data(), bytes.data(), bytes.size());
    WriteOutput(output, content, Flush::ToDisk);
}

} // namespace

int RunDump(const Options& options) {
    const std::filesystem::path& file = options.files.front();
    Sink sink(options, "");
    (void)WorkableKindOf(file, options.kind);
    sink.Take(file, JsonDocument(DumpTest(ReadTestFile(file))));
    sink.Finish();
    return kDone;
}

int RunBuild(const Options& options) {
    const std::filesystem::path& file = options.files.front();
    RefuseToOverwriteInput(options.output, options.files);
    try {
        const Json json = ParseJson(ReadInput(file));
        (void)WorkableKindOf(options.output, KindToBuild(options, json));
        CenterPivotTest test = NewCenterPivotTest();
        BuildTest(json, test);
        WriteWhole(options.output, test);
    } catch (const CommandError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw CommandError(kFileFailed, file.native(), error.what());
    }
    return kDone;
}

} // namespace orvel::cli
