// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Options.h"

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

std::optional<Options> ReadOptions(int argc, const char* const* argv, int& status) {
    constexpr int kWrongCall = 2;
    Options options{.file = {}, .programDirectory = DefaultProgramDirectory()};
    std::string file;
    CLI::App app{"Evaluates field irrigation systems from catch-can tests.", "orvel"};
    app.set_version_flag("--version", std::string("orvel ") + ProgramVersion());
    app.add_option("FILE", file, "A test file to open, .cpd or .ssd")
        ->type_name("")
        ->check(CLI::Validator(
            [](const std::string& name) { return name.empty() ? "must not be empty" : ""; }, ""));
    app.add_option("--program-dir", options.programDirectory,
                   "Where user.usr, soil.dat and help.rtf are (default: the program's folder)")
        ->type_name("FOLDER")
        ->check(CLI::Validator(CLI::ExistingDirectory).description(""));
    try {
        app.parse(argc, argv);
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
        options.file = Absolute(file);
    }
    return options;
}

} // namespace orvel::ui
