// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Desktop.h"

#include "centerpivot/CenterPivotSummary.h"
#include "core/ProgramState.h"
#include "core/StartUp.h"
#include "core/Version.h"
#include "solidset/SolidSetSummary.h"
#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/InFront.h"
#include "ui/Logo.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"
#include "ui/UserDataDialog.h"

#include <QApplication>
#include <QPointer>
#include <QStandardPaths>

namespace orvel::ui {

namespace {

// Returns when the user has closed the dialog. A dialog often closes together with the box that it asked in,
// and some window managers find nobody then to give the focus to: its owner takes it.
void ShowModal(QDialog&& dialog) {
    dialog.exec();
    if (QWidget* owner = dialog.parentWidget()) {
        owner->activateWindow();
    }
}

} // namespace

void IntroduceProgram() {
    QApplication::setApplicationName(kProgramTitle);
    QApplication::setApplicationVersion(ProgramVersion());
    QApplication::setWindowIcon(ProgramIcon());
    // By which a desktop knows whose window it is: the name of the installed desktop file.
    QApplication::setDesktopFileName("org.example.orvel");
    Program().userDataFolder =
        PathFromQt(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) / "orvel";
}

Desktop::Desktop() {
    // The program ends when the main window closes, whichever window closes last.
    QApplication::setQuitOnLastWindowClosed(false);
    UsePlatform({&messageBox, &beeper, &clock, &fileDialogs, &folderBrowser, &keySender, &settingsStore,
                 &eventPump, &printDialog, &printer});
}

Desktop::~Desktop() {
    delete viewer;
    delete report;
    UsePlatform({});
}

int Desktop::Execute(const std::optional<std::filesystem::path>& file) {
    bool isUp = false;
    Run([&] {
        isUp = StartUp(*this);
        if (isUp && file) {
            mainWindow->OpenGivenFile(*file);
        }
    });
    return isUp ? QApplication::exec() : EXIT_SUCCESS;
}

void Desktop::ShowSplash() {
    splash = std::make_unique<SplashWindow>([this] { eventPump.End(); });
    splash->show();
}

void Desktop::UnloadSplash() {
    splash.reset();
}

void Desktop::ShowMain() {
    if (mainWindow == nullptr) {
        mainWindow = std::make_unique<MainWindow>(*this);
        mainWindow->Load();
    }
    BringToFront(*mainWindow);
}

void Desktop::ShowCenterPivotData() {
    ShowModal(CenterPivotDataDialog(OwnerOfModal(), *this));
}

void Desktop::ShowSolidSetData() {
    ShowModal(SolidSetDataDialog(OwnerOfModal(), *this));
}

void Desktop::ShowUserData() {
    ShowModal(UserDataDialog(OwnerOfModal()));
}

void Desktop::ShowSoilIntake() {
    ShowModal(SoilIntakeDialog(OwnerOfModal()));
}

void Desktop::ShowAbout() {
    ShowModal(AboutDialog(OwnerOfModal()));
}

QWidget* Desktop::OwnerOfModal() const {
    QWidget* front = WindowInFront();
    if (front == nullptr || front != viewer) {
        return front;
    }
    QWidget* owner = viewer->parentWidget();
    return owner == nullptr ? mainWindow.get() : owner;
}

void Desktop::ShowReport() {
    if (report != nullptr && report->isVisible()) {
        report->ShowAgain();
        return;
    }
    report = new ReportWindow(*this);
    report->Load();
}

void Desktop::ShowViewer(std::string_view what) {
    // A modal window lets only those be used that belong to it.
    QWidget* owner = QApplication::activeModalWidget();
    if (viewer == nullptr || !viewer->isVisible() || viewer->parentWidget() != owner) {
        delete viewer;
        viewer = new ViewerWindow(owner);
    }
    viewer->ShowTopic(what);
}

std::string Desktop::BuildCenterPivotSummary() {
    return orvel::BuildCenterPivotSummary();
}

std::string Desktop::BuildSolidSetSummary() {
    return orvel::BuildSolidSetSummary();
}

void Desktop::UnloadOthers() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    // Closing one may delete another.
    for (const QPointer<QWidget>& window : QList<QPointer<QWidget>>(windows.begin(), windows.end())) {
        if (window != nullptr && window != mainWindow.get()) {
            window->close();
        }
    }
}

void Desktop::EndProgram() {
    mainWindow->close();
}

} // namespace orvel::ui
