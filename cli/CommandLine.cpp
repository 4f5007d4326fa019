// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Services.h"
#include "core/CodePage.h"
#include "core/FileNames.h"
#include "core/ProgramDirectory.h"
#include "core/ProgramState.h"
#include "core/Version.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

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
    kKind = 1U << 4U,
};

struct Command {
    const char* name;
    int (*run)(const Options&);
    unsigned accepts;
    const char* about;
    const char* file; // what its FILE is
};

constexpr const char* kTestFile = "A test file, .cpd or .ssd";

constexpr std::array<Command, 7> kCommands = {{
    {"results", RunResults, kSeveralFiles | kJson | kKind, "Calculate and print every result", kTestFile},
    {"check", RunCheck, kJson | kKind, "Run the data checks: status 0 when a report may be built", kTestFile},
    {"report", RunReport, kSeveralFiles | kJson | kFormat | kOutputDirectory | kKind,
     "Check, calculate and report", kTestFile},
    {"export", RunExport, kSeveralFiles | kOutputDirectory | kKind, "The comma-separated summary", kTestFile},
    {"listing", RunListing, kKind, "The data listing", kTestFile},
    {"dump", RunDump, kKind, "The record as JSON", kTestFile},
    {"text", RunText, kJson, "The plain text of a rich-text file", "A rich-text file"},
}};

// Without a name of its own: the help shows the option's type name.
CLI::Validator Check(std::string (*complaint)(const std::string&)) {
    return {[complaint](const std::string& value) { return complaint(value); }, ""};
}

std::string NoMoment(const std::string& text) {
    return ParseDateTime(text) ? "" : "must be a date and time, YYYY-MM-DD HH:MM:SS";
}

std::string NoName(const std::string& text) {
    return text.empty() ? "must not be empty" : "";
}

std::string NoFolder(const std::string& text) {
    if (text.empty() || FolderExists(PathOfSystemText(text))) {
        return NoName(text);
    }
    return "no such folder: " + text;
}

std::string NoKind(const std::string& text) {
    return text == kCenterPivot || text == kSolidSet ? "" : "must be centerPivot or solidSet";
}

std::string NoFormat(const std::string& text) {
    return text == "text" || text == "rtf" || text == "html" ? "" : "must be text, rtf or html";
}

CLI::Option* AddFiles(CLI::App& command, const char* name, const char* about, Options& options) {
    using Names = std::vector<std::string>;
    const auto take = [&options](const Names& names) {
        options.files.clear();
        std::ranges::transform(names, std::back_inserter(options.files), PathOfSystemText);
    };
    return command.add_option_function<Names>(name, take, about)
        ->required()
        ->type_name("")
        ->check(Check(NoName));
}

CLI::Option* AddPath(CLI::App& command, const char* name, const char* about, std::filesystem::path& path) {
    return command.add_option_function<std::string>(
        name, [&path](const std::string& text) { path = PathOfSystemText(text); }, about);
}

CLI::Option* AddOutput(CLI::App& command, const char* about, Options& options) {
    return AddPath(command, "-o,--output", about, options.output)->type_name("FILE")->check(Check(NoName));
}

void AddKind(CLI::App& command, Options& options) {
    command.add_option("--kind", options.kind, "The kind of test, whatever the extension says")
        ->type_name("centerPivot|solidSet")
        ->check(Check(NoKind));
}

// What every command takes, whether it has a use for it or not.
void AddSurroundings(CLI::App& command, Options& options) {
    AddPath(command, "--program-dir",
            "Where user.usr and soil.dat are (default: ORVEL_PROGRAM_DIR, else the program's folder)",
            options.programDirectory)
        ->type_name("FOLDER")
        ->check(Check(NoFolder));
    command
        .add_option_function<std::string>(
            "--now", [&options](const std::string& text) { options.now = ParseDateTime(text); },
            "The date and time to print, YYYY-MM-DD HH:MM:SS")
        ->type_name("TIME")
        ->check(Check(NoMoment));
}

void AddCommand(CLI::App& app, const Command& row, Options& options) {
    CLI::App* command = app.add_subcommand(row.name, row.about);
    CLI::Option* files = AddFiles(*command, "FILE", row.file, options);
    if ((row.accepts & kSeveralFiles) == 0) {
        files->expected(1);
    }
    if ((row.accepts & kKind) != 0) {
        AddKind(*command, options);
    }
    AddSurroundings(*command, options);
    CLI::Option* output = AddOutput(*command, "Write to this file instead of standard output", options);
    CLI::Option* json = nullptr;
    if ((row.accepts & kJson) != 0) {
        json = command->add_flag("--json", options.json, "Print JSON, messages included")
                   ->disable_flag_override();
    }
    if ((row.accepts & kFormat) != 0) {
        command->add_option("--format", options.format, "The report's form (default: text)")
            ->type_name("text|rtf|html")
            ->check(Check(NoFormat))
            ->excludes(json);
    }
    if ((row.accepts & kOutputDirectory) != 0) {
        AddPath(*command, "--output-dir", "Write a file for each test to this folder",
                options.outputDirectory)
            ->type_name("FOLDER")
            ->check(Check(NoFolder))
            ->excludes(output);
    }
}

void AddBuild(CLI::App& app, Options& options) {
    CLI::App* command = app.add_subcommand("build", "A test file from JSON");
    AddFiles(*command, "JSON", "The JSON file, or - for standard input", options)->expected(1);
    AddKind(*command, options);
    AddSurroundings(*command, options);
    AddOutput(*command, "The test file to write, .cpd or .ssd", options)->required();
}

// What an argument that nothing knows says about the call.
std::string UnknownArgument(const CLI::App& app) {
    if (app.remaining_size() == 0) {
        const CLI::App& command = *app.get_subcommands().front();
        return "unknown option for " + command.get_name() + ": " + command.remaining().front();
    }
    const std::string first = app.remaining().front();
    return (first.starts_with("-") ? "unknown option before the command: " : "unknown command: ") + first;
}

// The library's words for a wrong number of values are a programmer's.
std::string WrongNumber(const std::string& command, std::string_view complaint) {
    const std::string name{complaint.substr(0, complaint.find_first_of(": "))};
    if (complaint.ends_with("flag override")) {
        return "--" + name + " takes no value";
    }
    if (complaint.ends_with("missing")) {
        return name + " needs a value";
    }
    return name.starts_with("-") ? name + " is given more than once" : command + " takes only one " + name;
}

std::string WrongCall(const CLI::App& app, const CLI::ParseError& error) {
    if (app.remaining_size(true) > 0) {
        return UnknownArgument(app);
    }
    if (app.get_subcommands().empty()) {
        return "a command is missing; --help lists them";
    }
    const bool isWrongNumber = dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr;
    return isWrongNumber ? WrongNumber(app.get_subcommands().front()->get_name(), error.what())
                         : error.what();
}

int Dispatch(const CLI::App& app, const Options& options) {
    for (const Command& command : kCommands) {
        if (app.got_subcommand(command.name)) {
            return command.run(options);
        }
    }
    return RunBuild(options);
}

int ReadAndRun(const std::vector<std::string>& arguments) {
    CLI::App app{kAbout, "orvel-cli"};
    app.footer(kFooter);
    app.set_version_flag("--version", std::string("orvel-cli ") + ProgramVersion());
    app.require_subcommand(1);
    // "/field.cpd" is a file on every system.
    app.allow_windows_style_options(false);
    Options options;
    options.programDirectory = DefaultProgramDirectory();
    for (const Command& command : kCommands) {
        AddCommand(app, command, options);
    }
    AddBuild(app, options);
    try {
        // It takes them off the end.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::Success& request) {
        // --help or --version.
        std::ostringstream text;
        const int status = app.exit(request, text, text);
        Print(text.str());
        FlushOutput();
        return status;
    } catch (const CLI::ParseError& error) {
        throw CommandError(kWrongUsage, "", SystemToUtf8(WrongCall(app, error)));
    }
    return Dispatch(app, options);
}

} // namespace

int RunCommandLine(const std::vector<std::string>& arguments) noexcept {
    try {
        return ReadAndRun(arguments);
    } catch (const CommandError& error) {
        PrintComplaint(error.Subject(), error.what());
        return error.Status();
    } catch (const std::exception& error) {
        PrintComplaint("", error.what());
        return kRunTimeError;
    }
}

} // namespace orvel::cli
