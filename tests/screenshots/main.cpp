// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "centerpivot/CenterPivotChecks.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/Desktop.h"
#include "ui/ReportWindow.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/UserDataDialog.h"
#include "ui/ViewerWindow.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <cstdio>
#include <functional>

// Takes a picture of every window: orvel_screenshots FOLDER.

namespace {

using namespace orvel;

void FillSettings(const std::string& programDirectory) {
    Program().programDirectory = programDirectory;
    UserSettings settings = testing::CompleteUserSettings();
    settings.DefaultDirectory = "/home/ida/tests";
    SaveUserSettings(settings);
}

class FixedClock : public Clock {
public:
    DateTime Now() override { return {2026, 7, 4, 9, 5, 3}; }
};

QWidget* WindowOfName(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name) {
            return window;
        }
    }
    return nullptr;
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

// Of a report the part with marks on both sides of the average; the moment is always the same.
bool TakeReport(ui::Desktop& desktop, const QString& folder) {
    static FixedClock clock;
    Platform platform = CurrentPlatform();
    platform.clock = &clock;
    UsePlatform(platform);
    desktop.ShowReport();
    QWidget* report = WindowOfName("frmReport");
    constexpr QSize kSize(680, 620);
    report->resize(kSize);
    auto* text = report->findChild<QTextEdit*>();
    text->moveCursor(QTextCursor::End);
    text->find("Percent Timer Analysis", QTextDocument::FindBackward);
    text->moveCursor(QTextCursor::StartOfLine);
    QScrollBar& bar = *text->verticalScrollBar();
    bar.setValue(bar.value() - 2 * bar.pageStep() / 3);
    return Take(*report, folder);
}

bool TakeViewer(ui::Desktop& desktop, const QString& folder) {
    desktop.ShowViewer(kViewCenterPivotData);
    if (!Take(*WindowOfName("frmShowRTF"), folder)) {
        return false;
    }
    desktop.ShowViewer(kViewHelp);
    return Take(*WindowOfName("frmShowRTF"), folder, "-Instructions");
}

// The box that a command shows, named by its title, as box-Auto-Complete-Entries.png, and answered.
bool TakeBox(const QString& folder, const std::function<void()>& command) {
    bool isTaken = false;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        isTaken = box->grab().save(folder + "/box-" + box->windowTitle().replace(' ', '-') + ".png");
        box->button(box->standardButtons().testFlag(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok)
            ->click();
    });
    command();
    return isTaken;
}

bool TakeBoxes(QWidget& centerPivot, const QString& folder) {
    auto* autoFill = centerPivot.findChild<QPushButton*>("cmdBtnAutoFill");
    // As somebody would who fills in; the pages show these distances then.
    centerPivot.findChild<QLineEdit*>("txtBoxDistanceToFirstGuage")->setText("30");
    centerPivot.findChild<QLineEdit*>("txtBoxGuageSpacing")->setText("20");
    // Without it the check has something to say.
    Program().centerPivotTest.EndGunRadius = "";
    return TakeBox(folder, [autoFill] { autoFill->click(); }) &&
           TakeBox(folder, [] { (void)CheckCenterPivotData(); });
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
    QFile::copy(ORVEL_HELP, programDirectory.filePath("help.rtf"));
    // What is typed for a picture is kept beside the test.
    const auto copyOf = [&programDirectory](const QString& example) {
        const QString copy = programDirectory.filePath(example);
        QFile::copy(ORVEL_EXAMPLES "/" + example, copy);
        return copy.toStdString();
    };

    ui::Desktop desktop;
    ui::MainWindow mainWindow(desktop);
    mainWindow.Load();
    mainWindow.OpenGivenFile(copyOf("pivot-1978.cpd"));
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
    if (!TakeReport(desktop, arguments.at(1)) || !TakeViewer(desktop, arguments.at(1))) {
        return 1;
    }
    ui::CenterPivotDataDialog centerPivot(nullptr, desktop);
    const bool areTaken = TakeBoxes(centerPivot, arguments.at(1)) && TakePages(centerPivot, arguments.at(1));
    mainWindow.OpenGivenFile(copyOf("solid-set-1997.ssd"));
    ui::SolidSetDataDialog solidSet(nullptr, desktop);
    return areTaken && TakePages(solidSet, arguments.at(1)) ? 0 : 1;
}
