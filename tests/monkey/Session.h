// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/FilePromises.h"
#include "tests/monkey/Monkey.h"
#include "tests/monkey/RecoveryPromises.h"
#include "tests/monkey/Sandbox.h"

#include <QBasicTimer>
#include <QObject>
#include <cstdint>

namespace orvel::monkey {

// Statuses of a session that ended by itself.
enum SessionStatus {
    kLeft = 0,        // by the main window, or the splash window
    kToldError = 1,   // by a run-time error that nothing traps; Progress says whether the user was told
    kBrokePromise = 3 // Progress has the finding
};

// One run of the program in this process, from its splash window to its end.
class Session : public QObject {
public:
    Session(std::uint64_t seed, int steps, const Sandbox& ofRun, Progress& ofSteps);

    // Acts until the program ends, which it is led to after the last step. Returns the program's status, or
    // leaves the process as the program does.
    int Run();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    // An action that opens a modal window returns when that is closed, so the next step comes from the event
    // loop, whichever that is.
    void Step();
    void Act();
    void CheckPromises();
    [[noreturn]] void Report(const std::string& finding);

    const Sandbox& sandbox;
    Progress& progress;
    Dice dice;
    Monkey monkey;
    FilePromises files;
    RecoveryPromises recovery;
    int lastStep;
    int stepsToLeave = 0;
    QBasicTimer timer;
    // The event loop in which an action is under way; none is -1.
    int loopOfAction = -1;
};

} // namespace orvel::monkey
