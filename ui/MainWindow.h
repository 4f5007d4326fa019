// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/frmMain.h"

#include <QLabel>
#include <QMainWindow>
#include <QRadioButton>
#include <functional>
#include <vector>

namespace orvel::ui {

class MainWindow : public QMainWindow, private frmMain::View {
public:
    // `windows` must outlive the window.
    explicit MainWindow(ProgramWindows& windows);

    // Loads the settings and checks them; once, before the window is shown.
    void Load();
    void OpenGivenFile(const std::filesystem::path& path);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    using Handler = void (frmMain::*)();

    // What a control's signal is connected to.
    std::function<void()> Event(Handler handler);
    void AddMenus();
    QWidget* NewSteps();
    QWidget* NewStep(const char* name, const char* caption, const std::vector<QWidget*>& controls);
    QRadioButton* NewOption(const char* name, const char* caption, Handler handler);
    QWidget* NewButton(const char* name, const char* caption, Handler handler);

    void CheckOptBtnCenterPivot() override { centerPivot->setChecked(true); }
    void CheckOptBtnSolidSet() override { solidSet->setChecked(true); }
    void SetStatusText(const std::string& text) override;

    frmMain logic;
    QRadioButton* centerPivot = nullptr;
    QRadioButton* solidSet = nullptr;
    QLabel* status = nullptr;
};

} // namespace orvel::ui
