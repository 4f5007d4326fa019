// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramState.h"
#include "core/Version.h"
#include "ui/Desktop.h"
#include "ui/Logo.h"
#include "ui/Options.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>

namespace {

// One of them is set where windows can be shown.
constexpr std::array<const char*, 3> kDisplays = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

} // namespace

int main(int argc, char** argv) {
    // A file that grows over its limit is then a failed write and not the program's end.
    (void)std::signal(SIGXFSZ, SIG_IGN);
    int status = 0;
    const auto options = orvel::ui::ReadOptions(argc, argv, status);
    if (!options) {
        return status;
    }
    // The toolkit would abort.
    if (std::none_of(kDisplays.begin(), kDisplays.end(), qEnvironmentVariableIsSet)) {
        (void)std::fputs("orvel: there is no display; orvel-cli needs none\n", stderr);
        return EXIT_FAILURE;
    }
    orvel::UseCodePage(orvel::CodePage::OfSystem());
    orvel::UseNumberLocale(orvel::SystemNumberLocale());
    orvel::Program().programDirectory = options->programDirectory;

    // The toolkit's own options are for its environment variables.
    int toolkitsArgc = 1;
    const QApplication application(toolkitsArgc, argv);
    QApplication::setApplicationName(orvel::kProgramTitle);
    QApplication::setApplicationVersion(orvel::ProgramVersion());
    QApplication::setWindowIcon(orvel::ui::ProgramIcon());
    return orvel::ui::Desktop().Execute(options->file);
}
