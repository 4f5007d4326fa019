// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Options.h"

#include "core/FileNames.h"
#include "core/Version.h"

#include <CLI/CLI.hpp>
#include <cstdio>

namespace orvel::ui {

std::optional<Options> ReadOptions(int argc, const char* const* argv, int& status) {
    constexpr int kWrongCall = 2;
    Options options{.file = {}, .programDirectory = FolderOfExecutable()};
    std::string file;
    CLI::App app{"Evaluates field irrigation systems from catch-can tests.", "orvel"};
    app.set_version_flag("--version", std::string("orvel ") + ProgramVersion());
    app.add_option("FILE", file, "A test file to open, .cpd or .ssd")->type_name("");
    app.add_option("--program-dir", options.programDirectory,
                   "Where user.usr, soil.dat and help.rtf are (default: the program's folder)")
        ->type_name("FOLDER")
        ->check(CLI::ExistingDirectory);
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
    if (!file.empty()) {
        options.file = file;
    }
    return options;
}

} // namespace orvel::ui
