// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "core/Version.h"
#include "ui/Menus.h"
#include "ui/OnScreen.h"
#include "ui/ScrollingArea.h"
#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace orvel::ui {

MainWindow::MainWindow(ProgramWindows& windows) : logic(*this, windows) {
    setObjectName("frmMain");
    setWindowTitle(kProgramTitle);
    AddMenus();
    setCentralWidget(new ScrollingArea(NewSteps()));
    status = new QLabel;
    status->setObjectName("sbStatusBar");
    status->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(status, 1);
    SizeToContent(*this);
}

void MainWindow::Load() {
    logic.Form_Load();
}

void MainWindow::OpenGivenFile(const std::filesystem::path& path) {
    logic.OpenGivenFile(path);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        Run([this] { logic.Form_Activate(); });
    }
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    Run([this] { logic.Form_Unload(); });
    event->accept();
    QApplication::exit();
}

void MainWindow::AddMenus() {
    AddMenu(
        *menuBar(), "mnuFile", "&File",
        {
            {"mnuFileNew", "&New Client", QKeySequence::New, Event(&frmMain::mnuFileNew_Click)},
            {"mnuFileOpen", "&Open Existing Client", QKeySequence::Open, Event(&frmMain::mnuFileOpen_Click)},
            {"mnuFileClose", "&Close Current Client", QKeySequence("Ctrl+W"),
             Event(&frmMain::mnuFileClose_Click)},
            {},
            {"mnuFileSave", "&Save Current Information", QKeySequence::Save,
             Event(&frmMain::mnuFileSave_Click)},
            {"mnuFileSaveAs", "Save &As (Current Information)", QKeySequence("Ctrl+Shift+S"),
             Event(&frmMain::mnuFileSaveAs_Click)},
            {},
            {"mnuExportSummary", "&Export Summary", QKeySequence("Ctrl+E"),
             Event(&frmMain::mnuExportSummary_Click)},
            {},
            {"mnuDataPrint", "&Print Data Summary", QKeySequence::Print, Event(&frmMain::mnuDataPrint_Click)},
            {},
            {"mnuFileExit", "E&xit", QKeySequence("Ctrl+Q"), Event(&frmMain::mnuFileExit_Click)},
        });
    AddMenu(*menuBar(), "mnuEdit", "&Edit",
            {
                {"mnuEditUndo", "&Undo", QKeySequence::Undo, Event(&frmMain::mnuEditUndo_Click)},
                {},
                {"mnuEditCut", "Cu&t", QKeySequence::Cut, Event(&frmMain::mnuEditCut_Click)},
                {"mnuEditCopy", "&Copy", QKeySequence::Copy, Event(&frmMain::mnuEditCopy_Click)},
                {"mnuEditPaste", "&Paste", QKeySequence::Paste, Event(&frmMain::mnuEditPaste_Click)},
                {"mnuEditPasteSpecial", "Paste &Special...", {}, Event(&frmMain::mnuEditPasteSpecial_Click)},
            });
    AddMenu(
        *menuBar(), "mnuWindow", "&Window",
        {
            {"mnuDataEntry", "&Data Entry", QKeySequence("Ctrl+D"), Event(&frmMain::mnuDataEntry_Click)},
            {"mnuViewReport", "&View Report", QKeySequence("Ctrl+R"), Event(&frmMain::mnuViewReport_Click)},
            {"mnuSoilIntake", "&Soil Intake Settings", {}, Event(&frmMain::mnuSoilIntake_Click)},
            {"mnuUserSettings", "&User Settings", {}, Event(&frmMain::mnuUserSettings_Click)},
        });
    AddMenu(*menuBar(), "mnuHelp", "&Help",
            {
                {"mnuInstructions", "&Instructions", QKeySequence::HelpContents,
                 Event(&frmMain::mnuInstructions_Click)},
                {},
                {"mnuHelpAbout", "&About ORVEL", {}, Event(&frmMain::mnuHelpAbout_Click)},
            });
}

QWidget* MainWindow::NewSteps() {
    centerPivot = NewOption("OptBtnCenterPivot", "&Center Pivot System", &frmMain::OptBtnCenterPivot_Click);
    solidSet = NewOption("OptBtnSolidSet", "&Solid Set System", &frmMain::OptBtnSolidSet_Click);
    constexpr int kMargin = 16;
    constexpr int kGap = 12;
    auto* steps = new QWidget;
    auto* layout = new QVBoxLayout(steps);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kGap);
    for (QWidget* step : {
             NewStep("Frame2", "Step 1: Choose Type File to Work With", {centerPivot, solidSet}),
             NewStep("Frame3", "Step 2: Enter Data or Edit Existing Data (if needed)",
                     {NewButton("cmdBtnEditExisting", "Edit &Data", &frmMain::cmdBtnEditExisting_Click)}),
             NewStep(
                 "Frame1", "Step 3: Create New Data or Open Existing Data File",
                 {NewButton("cmdBtnNewDataFile", "&New Data File", &frmMain::cmdBtnNewDataFile_Click),
                  NewButton("cmdBtnOpenFile", "&Open Existing Data File", &frmMain::cmdBtnOpenFile_Click)}),
             NewStep("Frame4", "Step 4: Create Report",
                     {NewButton("cmdBtnGenerateReport", "&Generate Report",
                                &frmMain::cmdBtnGenerateReport_Click)}),
         }) {
        layout->addWidget(step);
    }
    layout->addStretch();
    return steps;
}

QWidget* MainWindow::NewStep(const char* name, const char* caption, const std::vector<QWidget*>& controls) {
    auto* frame = new QGroupBox(caption);
    frame->setObjectName(name);
    // All frames have the same two columns.
    constexpr int kColumns = 2;
    constexpr int kColumnWidth = 200;
    constexpr int kMargin = 12;
    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setHorizontalSpacing(kMargin);
    for (int column = 0; column < kColumns; ++column) {
        layout->setColumnStretch(column, 1);
        layout->setColumnMinimumWidth(column, kColumnWidth);
    }
    int column = 0;
    for (QWidget* control : controls) {
        layout->addWidget(control, 0, column++);
    }
    if (column < kColumns) {
        layout->addWidget(new QWidget, 0, column);
    }
    return frame;
}

QRadioButton* MainWindow::NewOption(const char* name, const char* caption, Handler handler) {
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    // No wider than its caption, so that a click anywhere in it counts.
    option->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(option, &QRadioButton::clicked, this, Event(handler));
    return option;
}

QWidget* MainWindow::NewButton(const char* name, const char* caption, Handler handler) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, Event(handler));
    return button;
}

std::function<void()> MainWindow::Event(Handler handler) {
    return [this, handler] { Run([this, handler] { (logic.*handler)(); }); };
}

void MainWindow::SetStatusText(const std::string& text) {
    status->setText(ToQt(text));
}

} // namespace orvel::ui
