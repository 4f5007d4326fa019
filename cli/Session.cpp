// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Session.h"

#include "centerpivot/CenterPivot.h"
#include "cli/Output.h"
#include "core/FileNames.h"
#include "core/Messages.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "solidset/SolidSet.h"

namespace orvel::cli {

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

FileResult Session::Run(const std::filesystem::path& file,
                        const std::function<FileResult(const TestKind& kind)>& work) {
    const TestKind& kind = KindOf(file, options.kind);
    Load(kind, file);
    FileResult result = work(kind);
    if (Program().shownError) {
        result.status = kRunTimeError;
    }
    if (!options.json) {
        TellMessages(file);
    }
    return result;
}

void Session::Load(const TestKind& kind, const std::filesystem::path& file) {
    collector.Clear();
    ResetProgram();
    ResetCenterPivot();
    ResetSolidSet();
    ProgramState& program = Program();
    program.programDirectory = options.programDirectory;
    program.userSettings = userSettings;
    program.soilIntakeTable = soilIntakeTable;
    ReadOrComplain(file, [&] { kind.load(file); });
}

void Session::TellMessages(const std::filesystem::path& file) const {
    if (options.files.size() > 1 && !collector.Messages().empty()) {
        PrintError("orvel-cli: " + PathUtf8(file) + ":\n");
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
