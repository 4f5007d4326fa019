// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Session.h"

#include "centerpivot/CenterPivot.h"
#include "cli/ExitStatus.h"
#include "cli/Output.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"

namespace orvel::cli {

namespace {

template <class Read>
auto ReadOrComplain(const std::filesystem::path& file, Read read) {
    try {
        return read();
    } catch (const FileError& error) {
        throw CommandError(kFileFailed, file.native(), error.what());
    }
}

} // namespace

std::string KindOf(const std::filesystem::path& file, const std::string& namedKind) {
    if (!namedKind.empty()) {
        return namedKind;
    }
    if (HasExtension(file, "cpd")) {
        return kCenterPivot;
    }
    if (HasExtension(file, "ssd")) {
        return kSolidSet;
    }
    throw CommandError(kWrongUsage, file.native(),
                       "neither .cpd nor .ssd; --kind says which kind of test it is");
}

std::string WorkableKindOf(const std::filesystem::path& file, const std::string& namedKind) {
    std::string kind = KindOf(file, namedKind);
    if (kind != kCenterPivot) {
        throw CommandError(kWrongUsage, file.native(), "solid-set tests are not built yet");
    }
    return kind;
}

CenterPivotTest ReadTestFile(const std::filesystem::path& file) {
    return ReadOrComplain(file, [&file] { return ReadTest<CenterPivotTest>(file); });
}

Session::Session(const Options& callOptions)
    : options(callOptions), clock(callOptions.now),
      userSettings(ReadOrComplain(options.programDirectory / "user.usr",
                                  [this] { return ReadUserSettings(options.programDirectory); })),
      soilIntakeTable(ReadOrComplain(options.programDirectory / "soil.dat",
                                     [this] { return ReadSoilTable(options.programDirectory); })) {
    UsePlatform({&collector, &beeper, &clock});
}

Session::~Session() {
    UsePlatform({});
}

FileResult Session::Run(const std::filesystem::path& file, const std::function<FileResult()>& work) {
    Load(file);
    FileResult result = work();
    if (Program().shownError) {
        result.status = kRunTimeError;
    }
    if (!options.json) {
        TellMessages(file);
    }
    return result;
}

void Session::Load(const std::filesystem::path& file) {
    collector.Clear();
    ResetProgram();
    ResetCenterPivot();
    ProgramState& program = Program();
    program.programDirectory = options.programDirectory;
    program.userSettings = userSettings;
    program.soilIntakeTable = soilIntakeTable;
    program.testKind = WorkableKindOf(file, options.kind);
    program.centerPivotTest = ReadTestFile(file);
    program.centerPivotFile = file;
}

void Session::TellMessages(const std::filesystem::path& file) const {
    if (options.files.size() > 1 && !collector.Messages().empty()) {
        PrintError("orvel-cli: " + file.native() + ":\n");
    }
    for (const Message& message : collector.Messages()) {
        PrintError(MessageBlock(message));
    }
}

bool Attempt(const std::function<void()>& part) {
    try {
        part();
        return true;
    } catch (const RunTimeError& error) {
        ShowGenerationError(error);
        return false;
    }
}

} // namespace orvel::cli
