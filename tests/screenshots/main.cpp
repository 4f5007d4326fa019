// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/Desktop.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/UserDataDialog.h"

#include <QApplication>
#include <QTabWidget>
#include <QTemporaryDir>
#include <cstdio>

// Takes a picture of every window: orvel_screenshots FOLDER.

namespace {

using namespace orvel;

void FillSettings(const std::string& programDirectory) {
    Program().programDirectory = programDirectory;
    UserSettings settings = testing::CompleteUserSettings();
    settings.DefaultDirectory = "/home/ida/tests";
    SaveUserSettings(settings);
}

bool Take(QWidget& window, const QString& folder, const QString& page = {}) {
    window.show();
    QApplication::processEvents();
    const QString file = folder + "/" + window.objectName() + page + ".png";
    if (!window.grab().save(file)) {
        (void)std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
        return false;
    }
    return true;
}

// One picture of each page: frmCenterPivotData-Test-Data.png.
bool TakePages(QWidget& window, const QString& folder) {
    auto* pages = window.findChild<QTabWidget*>();
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        const QString caption = pages->tabText(page).remove('&').replace(' ', '-');
        if (!Take(window, folder, "-" + caption)) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2) {
        (void)std::fputs("orvel_screenshots FOLDER\n", stderr);
        return 2;
    }
    // Else a picture could catch the cursor of a text box, or not.
    QApplication::setCursorFlashTime(0);
    const QTemporaryDir programDirectory;
    FillSettings(programDirectory.path().toStdString());

    ui::Desktop desktop;
    ui::MainWindow mainWindow(desktop);
    mainWindow.Load();
    mainWindow.OpenGivenFile(ORVEL_EXAMPLES "/pivot-1978.cpd");
    ui::SplashWindow splash([] {});
    ui::AboutDialog about(nullptr);
    ui::UserDataDialog userData(nullptr);
    ui::SoilIntakeDialog soilIntake(nullptr);
    for (QWidget* window :
         std::initializer_list<QWidget*>{&mainWindow, &splash, &about, &userData, &soilIntake}) {
        if (!Take(*window, arguments.at(1))) {
            return 1;
        }
    }
    ui::CenterPivotDataDialog centerPivot(nullptr, desktop);
    mainWindow.OpenGivenFile(ORVEL_EXAMPLES "/solid-set-1997.ssd");
    ui::SolidSetDataDialog solidSet(nullptr, desktop);
    return TakePages(centerPivot, arguments.at(1)) && TakePages(solidSet, arguments.at(1)) ? 0 : 1;
}
