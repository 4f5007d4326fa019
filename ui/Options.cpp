// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Options.h"

#include "core/FileNames.h"
#include "core/ProgramDirectory.h"
#include "core/Version.h"

#include <CLI/CLI.hpp>
#include <cstdio>

namespace orvel::ui {

namespace {

namespace fs = std::filesystem;

// The full path, without a separator at its end.
fs::path Absolute(const fs::path& path) {
    const fs::path full = fs::absolute(path).lexically_normal();
    return full.has_filename() || full == full.root_path() ? full : full.parent_path();
}

} // namespace

std::optional<Options> ReadOptions(const std::vector<std::string>& arguments, int& status) {
    constexpr int kWrongCall = 2;
    Options options{.file = {}, .programDirectory = DefaultProgramDirectory()};
    std::string file;
    CLI::App app{"Evaluates field irrigation systems from catch-can tests.", "orvel"};
    // "/field.cpd" is a file on every system.
    app.allow_windows_style_options(false);
    app.set_version_flag("--version", std::string("orvel ") + ProgramVersion());
    app.add_option("FILE", file, "A test file to open, .cpd or .ssd")
        ->type_name("")
        ->check(CLI::Validator(
            [](const std::string& name) { return name.empty() ? "must not be empty" : ""; }, ""));
    app.add_option_function<std::string>(
           "--program-dir",
           [&options](const std::string& folder) { options.programDirectory = PathOfSystemText(folder); },
           "Where user.usr, soil.dat and help.rtf are (default: ORVEL_PROGRAM_DIR, else the program's folder)")
        ->type_name("FOLDER")
        ->check(CLI::Validator(
            [](const std::string& name) {
                return FolderExists(PathOfSystemText(name)) ? "" : "Directory does not exist: " + name;
            },
            ""));
    try {
        // It takes them off the end.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::Success& request) {
        status = app.exit(request);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        (void)std::fprintf(stderr, "orvel: %s\n", error.what());
        status = kWrongCall;
        return std::nullopt;
    }
    // Both are kept longer than the call: the one as the open file, the other perhaps as the default
    // directory.
    options.programDirectory = Absolute(options.programDirectory);
    if (!file.empty()) {
        options.file = Absolute(PathOfSystemText(file));
    }
    return options;
}

} // namespace orvel::ui
