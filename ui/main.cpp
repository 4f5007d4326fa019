// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramStart.h"
#include "core/ProgramState.h"
#include "ui/Desktop.h"
#include "ui/Options.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>

namespace {

// Where no window can be shown, the toolkit would print paragraphs and abort.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type == QtFatalMsg) {
        (void)std::fputs("orvel: no window can be shown here; orvel-cli needs none\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

int main(int argc, char** argv) {
    orvel::SurviveFileSizeLimit();
    int status = 0;
    const auto options = orvel::ui::ReadOptions(orvel::CallArguments(argc, argv), status);
    if (!options) {
        return status;
    }
    orvel::UseCodePage(orvel::CodePage::OfSystem());
    orvel::UseNumberLocale(orvel::SystemNumberLocale());
    orvel::Program().programDirectory = options->programDirectory;

    // The toolkit's own options are for its environment variables.
    int toolkitsArgc = 1;
    qInstallMessageHandler(EndWithoutDisplay);
    const QApplication application(toolkitsArgc, argv);
    qInstallMessageHandler(nullptr);
    orvel::ui::IntroduceProgram();
    return orvel::ui::Desktop().Execute(options->file);
}
