// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Session.h"

#include "tests/monkey/WindowPromises.h"
#include "tests/monkey/Windows.h"
#include "ui/Desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QThread>
#include <cstdlib>
#include <utility>

namespace orvel::monkey {

namespace {

// What the toolkit complained of first.
QString complaint;

void NoteComplaint(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    // Not of the program: a platform without a screen can't raise windows, and the toolkit's file dialog
    // looks for a name that has a NUL.
    const bool isOfToolkit = message.startsWith("This plugin does not support") ||
                             message.startsWith("Broken filename passed to function");
    if (type != QtDebugMsg && type != QtInfoMsg && !isOfToolkit && complaint.isEmpty()) {
        complaint = message;
    }
}

bool IsRunTimeError(const QWidget& window) {
    const auto* box = qobject_cast<const QMessageBox*>(&window);
    return box != nullptr && box->windowTitle() == "ORVEL" && box->text().startsWith("Run-time error '");
}

} // namespace

Session::Session(std::uint64_t seed, int steps, const Sandbox& ofRun, Progress& ofSteps)
    : sandbox(ofRun), progress(ofSteps), dice(seed), monkey(dice, ofSteps, ofRun.Tests()),
      files(ofRun.Tests(), ofRun.ProgramDirectory()), lastStep(ofSteps.steps + steps) {}

int Session::Run() {
    qInstallMessageHandler(NoteComplaint);
    ui::Desktop desktop;
    TickingClock clock;
    Platform platform = CurrentPlatform();
    FencedFileDialogs fileDialogs(*platform.fileDialogs, sandbox.Tests());
    PaperlessPrintDialog printDialog(*platform.printDialog, sandbox.Tests() / "printed.pdf");
    platform.clock = &clock;
    platform.fileDialogs = &fileDialogs;
    platform.printDialog = &printDialog;
    UsePlatform(platform);
    timer.start(0, this);
    const int status = desktop.Execute(std::nullopt);
    if (!complaint.isEmpty()) {
        Report(complaint.toStdString());
    }
    return status;
}

void Session::timerEvent(QTimerEvent* /*event*/) {
    // Events that an action handles itself are a part of it: the timer waits.
    if (QThread::currentThread()->loopLevel() > loopOfAction) {
        timer.stop();
        Step();
    }
}

void Session::Step() {
    const int outer = std::exchange(loopOfAction, QThread::currentThread()->loopLevel());
    // What the first of them post is handled, too.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    CheckPromises();
    timer.start(0, this);
    Act();
    loopOfAction = outer;
    timer.start(0, this);
}

void Session::Act() {
    constexpr int kPatience = 300;
    Hands& hands = monkey.Fingers();
    const bool isLeaving = progress.steps == lastStep;
    if (!isLeaving) {
        ++progress.steps;
    } else if (++stepsToLeave > kPatience) {
        Report("the program can't be left");
    }
    try {
        if (hands.IsDragging()) {
            hands.Drop();
        } else if (isLeaving) {
            monkey.Leave();
        } else {
            monkey.Act();
        }
    } catch (const Interrupted&) {
        hands.LetGo();
    }
}

void Session::CheckPromises() {
    for (const QWidget* window : ShownWindows()) {
        progress.hasToldError = progress.hasToldError || IsRunTimeError(*window);
    }
    if (!complaint.isEmpty()) {
        Report(complaint.toStdString());
    }
    for (const std::string& broken : {files.Broken(), recovery.Broken(progress.hasToldError),
                                      BrokenByWindows(monkey.Fingers().LastTyped())}) {
        if (!broken.empty()) {
            Report(broken);
        }
    }
}

void Session::Report(const std::string& finding) {
    progress.finding = finding;
    std::_Exit(kBrokePromise);
}

} // namespace orvel::monkey
