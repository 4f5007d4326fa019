// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/frmReport.h"
#include "ui/RichTextEdit.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <functional>
#include <vector>

namespace orvel::ui {

class ReportWindow : public QMainWindow, private frmReport::View {
public:
    // `windows` must outlive the window, which deletes itself when it is closed.
    explicit ReportWindow(ProgramWindows& windows);

    // Builds the report and shows it; once.
    void Load();
    // Builds it anew and brings it to the front.
    void ShowAgain();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Handler = void (frmReport::*)();

    [[nodiscard]] std::function<void()> Event(Handler handler);
    void AddMenus();
    void AddToolBar();
    // Keeps the window where somebody can reach it, no larger than that screen and not over its right or
    // lower edge, whatever it was on before.
    void FitOntoAScreen();

    RichTextBox& ReportRTB() override { return *report; }
    void SetReportSize(float width, float height) override;
    void ShowPressed(frmReport::ToolButton button, bool isPressed) override;
    void SetStatusText(const std::string& text) override;
    [[nodiscard]] float Left() const override;
    [[nodiscard]] float Top() const override;
    [[nodiscard]] float Width() const override;
    [[nodiscard]] float Height() const override;
    void SetLeft(float left) override;
    void SetTop(float top) override;
    void SetWidth(float width) override;
    void SetHeight(float height) override;
    [[nodiscard]] bool IsMinimized() const override { return isMinimized(); }
    [[nodiscard]] float InnerWidth() const override;
    [[nodiscard]] float InnerHeight() const override;
    void Unload() override { close(); }

    RichTextEdit* report;
    QLabel* status;
    std::vector<QAction*> tools; // of the tool bar, without its gaps
    frmReport logic;
};

} // namespace orvel::ui
