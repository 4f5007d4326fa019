// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramWindows.h"
#include "ui/FileDialogs.h"
#include "ui/MainWindow.h"
#include "ui/PromptMnemonics.h"
#include "ui/QtPlatform.h"
#include "ui/QtPrinter.h"
#include "ui/ReportWindow.h"
#include "ui/SplashWindow.h"
#include "ui/ViewerWindow.h"

#include <QPointer>
#include <filesystem>
#include <memory>
#include <optional>

namespace orvel::ui {

// Tells the toolkit the program's name, version and icon, and the program where it may keep the user's data.
// There must be a QApplication.
void IntroduceProgram();

// The desktop program: its services, its windows, and the way from one to the other. There must be one
// QApplication, and it must outlive it.
class Desktop : public ProgramWindows {
public:
    Desktop();
    ~Desktop() override;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    // Starts up, opens the file if one is given, and runs until the main window is closed. Returns the
    // program's status.
    int Execute(const std::optional<std::filesystem::path>& file);

    void ShowSplash() override;
    void UnloadSplash() override;
    void ShowMain() override;
    void ShowCenterPivotData() override;
    void ShowSolidSetData() override;
    void ShowUserData() override;
    void ShowSoilIntake() override;
    void ShowAbout() override;
    void ShowReport() override;
    void ShowViewer(std::string_view what) override;
    std::string BuildCenterPivotSummary() override;
    std::string BuildSolidSetSummary() override;
    void UnloadOthers() override;
    void EndProgram() override;

private:
    // Never the viewer, in whose place another one may come at any time.
    [[nodiscard]] QWidget* OwnerOfModal() const;

    PromptMnemonics mnemonics;
    QtMessageBox messageBox;
    QtBeeper beeper;
    QtClock clock;
    QtFileDialogs fileDialogs;
    QtFolderBrowser folderBrowser;
    QtKeySender keySender;
    QtSettingsStore settingsStore;
    QtEventPump eventPump;
    QtPrinter printer;
    QtPrintDialog printDialog{printer};

    std::unique_ptr<SplashWindow> splash;
    std::unique_ptr<MainWindow> mainWindow;
    // Closed ones delete themselves.
    QPointer<ReportWindow> report;
    QPointer<ViewerWindow> viewer;
};

} // namespace orvel::ui
