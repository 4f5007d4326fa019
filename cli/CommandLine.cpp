// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Services.h"
#include "core/ProgramState.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <string>
#include <system_error>

namespace orvel::cli {

namespace {

constexpr const char* kAbout = "ORVEL evaluates field irrigation systems from catch-can tests.";
constexpr const char* kFooter =
    "Exit status: 0 done; 1 the data checks found errors; 2 wrong usage; 3 a file could "
    "not be read or written; 4 a run-time error of the evaluation.";

// What a command can be given besides its files.
enum Accepts : unsigned {
    kSeveralFiles = 1U << 0U,
    kJson = 1U << 1U,
    kFormat = 1U << 2U,
    kOutputDirectory = 1U << 3U,
};

struct Command {
    const char* name;
    int (*run)(const Options&);
    unsigned accepts;
    const char* about;
};

constexpr std::array<Command, 7> kCommands = {{
    {"results", RunResults, kSeveralFiles | kJson, "Calculate and print every result"},
    {"check", RunCheck, kJson, "Run the data checks: status 0 when a report may be built"},
    {"report", RunReport, kSeveralFiles | kJson | kFormat | kOutputDirectory, "Check, calculate and report"},
    {"export", RunExport, kSeveralFiles | kOutputDirectory, "The comma-separated summary"},
    {"listing", RunListing, 0, "The data listing"},
    {"dump", RunDump, 0, "The record as JSON"},
    {"text", RunText, kJson, "The plain text of a rich-text file"},
}};

std::filesystem::path FolderOfExecutable() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::string NoMoment(const std::string& text) {
    return ParseDateTime(text) ? "" : "must be a date and time, YYYY-MM-DD HH:MM:SS";
}

void AddKind(CLI::App& command, Options& options) {
    command.add_option("--kind", options.kind, "The kind of test, whatever the extension says")
        ->check(CLI::IsMember({kCenterPivot, kSolidSet}));
}

void AddCommand(CLI::App& app, const Command& row, Options& options) {
    CLI::App* command = app.add_subcommand(row.name, row.about);
    CLI::Option* files = command->add_option("FILE", options.files, "A test file")->required();
    if ((row.accepts & kSeveralFiles) == 0) {
        files->expected(1);
    }
    AddKind(*command, options);
    command
        ->add_option("--program-dir", options.programDirectory,
                     "Where user.usr and soil.dat are (default: the program's folder)")
        ->check(CLI::ExistingDirectory);
    command
        ->add_option_function<std::string>(
            "--now", [&options](const std::string& text) { options.now = ParseDateTime(text); },
            "The date and time to print, YYYY-MM-DD HH:MM:SS")
        ->check(CLI::Validator(NoMoment, "TIME"));
    CLI::Option* output =
        command->add_option("-o,--output", options.output, "Write to this file instead of standard output");
    CLI::Option* json = nullptr;
    if ((row.accepts & kJson) != 0) {
        json = command->add_flag("--json", options.json, "Print JSON, messages included");
    }
    if ((row.accepts & kFormat) != 0) {
        command->add_option("--format", options.format, "The report's form (default: text)")
            ->check(CLI::IsMember({"text", "rtf", "html"}))
            ->excludes(json);
    }
    if ((row.accepts & kOutputDirectory) != 0) {
        command
            ->add_option("--output-dir", options.outputDirectory, "Write a file for each test to this folder")
            ->check(CLI::ExistingDirectory)
            ->excludes(output);
    }
}

void AddBuild(CLI::App& app, Options& options) {
    CLI::App* command = app.add_subcommand("build", "A test file from JSON");
    command->add_option("JSON", options.files, "The JSON file, or - for standard input")
        ->required()
        ->expected(1);
    AddKind(*command, options);
    command->add_option("-o,--output", options.output, "The test file to write")->required();
}

int Dispatch(const CLI::App& app, const Options& options) {
    for (const Command& command : kCommands) {
        if (app.got_subcommand(command.name)) {
            return command.run(options);
        }
    }
    return RunBuild(options);
}

int ReadAndRun(int argc, const char* const* argv) {
    CLI::App app{kAbout, "orvel-cli"};
    app.footer(kFooter);
    app.set_version_flag("--version", "orvel-cli " ORVEL_VERSION);
    app.require_subcommand(1);
    Options options;
    options.programDirectory = FolderOfExecutable();
    for (const Command& command : kCommands) {
        AddCommand(app, command, options);
    }
    AddBuild(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        // --help or --version.
        return app.exit(request);
    } catch (const CLI::ParseError& error) {
        std::string reason = error.what();
        std::ranges::replace(reason, '\n', ' ');
        throw CommandError(kWrongUsage, "", reason);
    }
    return Dispatch(app, options);
}

} // namespace

int RunCommandLine(int argc, const char* const* argv) noexcept {
    try {
        return ReadAndRun(argc, argv);
    } catch (const CommandError& error) {
        PrintComplaint(error.Subject(), error.what());
        return error.Status();
    } catch (const std::exception& error) {
        PrintComplaint("", error.what());
        return kRunTimeError;
    }
}

} // namespace orvel::cli
