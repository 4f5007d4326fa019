// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// The program up to the main window, or, with a test file, up to the report, without the time that it shows
// its splash window on purpose: bench_shown PROGRAM-DIRECTORY [FILE] ends when that is on the screen.

#include "bench/OnceShown.h"
#include "centerpivot/CenterPivot.h"
#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramState.h"
#include "core/TestFile.h"
#include "ui/Desktop.h"

#include <optional>

namespace {

// Another two seconds each time that somebody looks.
class HurryingClock : public orvel::Clock {
public:
    orvel::DateTime Now() override {
        constexpr int kSeconds = 60;
        second = (second + 2) % kSeconds;
        return {2026, 6, 1, 9, 30, second};
    }

private:
    int second = 0;
};

// Handles the events and does not wait for more.
class BusyPump : public orvel::ui::QtEventPump {
public:
    bool ProcessEvents() override {
        QCoreApplication::processEvents();
        return true;
    }
};

} // namespace

int main(int argc, char** argv) {
    orvel::UseCodePage(orvel::CodePage::OfSystem());
    orvel::UseNumberLocale(orvel::SystemNumberLocale());
    orvel::Program().programDirectory = argv[1];
    const QApplication application(argc, argv);
    orvel::ui::IntroduceProgram();
    HurryingClock clock;
    BusyPump pump;
    orvel::ui::Desktop desktop;
    orvel::Platform platform = orvel::CurrentPlatform();
    platform.clock = &clock;
    platform.eventPump = &pump;
    orvel::UsePlatform(platform);
    using orvel::bench::OnceShown;
    using orvel::bench::TellMemoryAndEnd;
    if (argc == 2) {
        const OnceShown end("frmMain", TellMemoryAndEnd);
        return desktop.Execute(std::nullopt);
    }
    const OnceShown goOn("frmMain", [&desktop] { desktop.ShowReport(); });
    const OnceShown end("frmReport", [] {
        if (orvel::PivotResults().CupCount == 0) {
            std::_Exit(EXIT_FAILURE); // there is no report
        }
        TellMemoryAndEnd();
    });
    return desktop.Execute(argv[2]);
}
