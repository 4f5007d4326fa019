// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/ReportWindow.h"

#include "ui/InFront.h"
#include "ui/Logo.h"
#include "ui/Menus.h"
#include "ui/OnScreen.h"
#include "ui/TextEdge.h"
#include "ui/Twips.h"
#include "ui/UncaughtError.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

namespace orvel::ui {

namespace {

// A button of tbToolBar; its key is what the logic knows it by.
struct ToolButtonItem {
    const char* key = nullptr; // none: a gap
    const char* tip = nullptr;
    const char* shortcut = nullptr; // of those that show a state; the others have theirs in the menus
    bool isOfLines = false;         // its picture has one colour
};

constexpr std::array<ToolButtonItem, 12> kToolButtons = {{
    {"Back", "Close the report and go back", nullptr, true},
    {},
    {"Open", "Open a rich-text file"},
    {"Save", "Save the report as rich text"},
    {"Print", "Print the report"},
    {},
    {"Bold", "Make the whole text bold, or not (Ctrl+B)", "Ctrl+B", true},
    {"Italic", "Make the whole text italic, or not (Ctrl+I)", "Ctrl+I", true},
    {"Lock", "Protect the text from changes, or not (Ctrl+L)", "Ctrl+L"},
    {},
    {"Help", "Show the instructions"},
    {"Refresh", "Build the report anew"},
}};

} // namespace

ReportWindow::ReportWindow(ProgramWindows& windows)
    : report(new RichTextEdit), status(new QLabel), logic(*this, windows) {
    setObjectName("frmReport");
    setWindowTitle("Report");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* area = new QWidget;
    report->setParent(area);
    report->setObjectName("ReportRTB");
    report->setAccessibleName("Report");
    status->setObjectName("sbStatusBar");
    status->setTextFormat(Qt::PlainText);
    AddMenus();
    AddToolBar();
    setCentralWidget(area);
    statusBar()->addWidget(status, 1);
    area->installEventFilter(this);
    setMinimumSize(ToPixels(frmReport::kLeastWidth), ToPixels(frmReport::kLeastHeight));
}

void ReportWindow::Load() {
    logic.Form_Load();
    FitOntoAScreen();
    show();
    report->setFocus();
}

void ReportWindow::ShowAgain() {
    logic.ShowAgain();
    BringToFront(*this);
}

void ReportWindow::closeEvent(QCloseEvent* event) {
    Run([this] { logic.Form_Unload(); });
    event->accept();
}

bool ReportWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centralWidget() && event->type() == QEvent::Resize) {
        Run([this] { logic.Form_Resize(); });
    }
    return QMainWindow::eventFilter(watched, event);
}

std::function<void()> ReportWindow::Event(Handler handler) {
    return [this, handler] { Run([this, handler] { (logic.*handler)(); }); };
}

void ReportWindow::AddMenus() {
    AddMenu(
        *menuBar(), "mnuFile", "&File",
        {
            {"mnuFileOpen", "&Open...", QKeySequence::Open, Event(&frmReport::mnuFileOpen_Click)},
            {"mnuFileClose", "&Close", {}, Event(&frmReport::mnuFileClose_Click)},
            {},
            {"mnuRefreshReport", "&Refresh Report Computation", QKeySequence("F5"),
             Event(&frmReport::mnuRefreshReport_Click)},
            {},
            {"mnuFileSaveAs", "Save &As...", QKeySequence("Ctrl+Shift+S"),
             Event(&frmReport::mnuFileSaveAs_Click)},
            {"mnuSaveHTML", "Save as &HTML...", {}, Event(&frmReport::mnuSaveHTML_Click)},
            {},
            {"mnuFilePrint", "&Print...", QKeySequence::Print, Event(&frmReport::mnuFilePrint_Click)},
            {},
            {"mnuFileExit", "Close Repor&t", QKeySequence("Ctrl+W"), Event(&frmReport::mnuFileExit_Click)},
        });
    AddMenu(*menuBar(), "mnuEdit", "&Edit",
            {
                {"mnuUndo", "&Undo", QKeySequence::Undo, Event(&frmReport::mnuUndo_Click)},
                {},
                {"mnuCut", "Cu&t", QKeySequence::Cut, Event(&frmReport::mnuCut_Click)},
                {},
                {"mnuCopy", "Cop&y", QKeySequence::Copy, Event(&frmReport::mnuCopy_Click)},
                {"mnuEditCopy", "&Copy Report", {}, Event(&frmReport::mnuEditCopy_Click)},
                {},
                {"mnuPaste", "&Paste", QKeySequence::Paste, Event(&frmReport::mnuPaste_Click)},
            });
    AddMenu(
        *menuBar(), "mnuWindow", "&Window",
        {
            {"mnuMainWindow", "&Main Window", {}, Event(&frmReport::mnuMainWindow_Click)},
            {"mnuDataEntry", "&Data Entry", QKeySequence("Ctrl+D"), Event(&frmReport::mnuDataEntry_Click)},
            {"mnuInstructions", "&Instructions", {}, Event(&frmReport::mnuInstructions_Click)},
        });
    AddMenu(*menuBar(), "mnuHelp", "&Help",
            {
                {"mnuHelpContents", "&Instructions", QKeySequence::HelpContents,
                 Event(&frmReport::mnuHelpContents_Click)},
                {"mnuHelpAbout", "&About", {}, Event(&frmReport::mnuHelpAbout_Click)},
            });
}

void ReportWindow::AddToolBar() {
    auto* bar = addToolBar("Tools");
    bar->setObjectName("tbToolBar");
    bar->setMovable(false);
    bar->toggleViewAction()->setVisible(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    for (const ToolButtonItem& item : kToolButtons) {
        if (item.key == nullptr) {
            bar->addSeparator();
            continue;
        }
        const QString picture = QString(":/tools/%1.svg").arg(QString(item.key).toLower());
        QAction* action = bar->addAction(
            item.isOfLines ? LineIcon(picture) : SharedIcon(picture), item.key, this,
            [this, key = item.key] { Run([this, key] { logic.tbToolBar_ButtonClick(key); }); });
        tools.push_back(action);
        action->setObjectName(item.key);
        action->setToolTip(item.tip);
        if (item.shortcut != nullptr) {
            action->setCheckable(true);
            action->setShortcut(QKeySequence(item.shortcut));
        }
        // Within reach of the keyboard, but a click leaves the focus where it is.
        bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
}

void ReportWindow::FitOntoAScreen() {
    constexpr int kToGrab = 48;
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto home = std::ranges::find_if(screens, [this](const QScreen* screen) {
        const QRect seen = screen->availableGeometry() & QRect(x(), y(), width(), kToGrab);
        return seen.width() >= kToGrab && seen.height() == kToGrab;
    });
    const bool isReachable = home != screens.end();
    const QRect room = (isReachable ? *home : QGuiApplication::primaryScreen())->availableGeometry();
    const QSize frame(2 * kFrameBeside, kFrameAbove);
    resize(size().boundedTo(room.size() - frame));
    if (!isReachable) {
        move(room.topLeft());
        return;
    }
    QRegion unseen(QRect(pos(), size()));
    for (const QScreen* screen : screens) {
        unseen -= screen->availableGeometry();
    }
    if (!unseen.isEmpty()) {
        // The status bar and the scroll bar are at the lower and right edge.
        const QSize beside = room.size() - frame - size();
        move(std::min(x(), room.left() + std::max(beside.width(), 0)),
             std::min(y(), room.top() + std::max(beside.height(), 0)));
    }
}

void ReportWindow::SetReportSize(float width, float height) {
    const QSize room = centralWidget()->size();
    const QSize size = QSize(ToPixels(width), ToPixels(height)).boundedTo(room);
    report->setGeometry(
        QRect(QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 2), size));
}

void ReportWindow::ShowPressed(frmReport::ToolButton button, bool isPressed) {
    tools.at(static_cast<std::size_t>(button) - 1)->setChecked(isPressed);
}

void ReportWindow::SetStatusText(const std::string& text) {
    status->setText(ToQt(text));
}

float ReportWindow::Left() const {
    return ToTwips(x());
}

float ReportWindow::Top() const {
    return ToTwips(y());
}

float ReportWindow::Width() const {
    return ToTwips(width());
}

float ReportWindow::Height() const {
    return ToTwips(height());
}

void ReportWindow::SetLeft(float left) {
    move(ToPixels(left), y());
}

void ReportWindow::SetTop(float top) {
    move(x(), ToPixels(top));
}

void ReportWindow::SetWidth(float width) {
    resize(ToPixels(width), height());
}

void ReportWindow::SetHeight(float height) {
    resize(width(), ToPixels(height));
}

float ReportWindow::InnerWidth() const {
    return Width();
}

float ReportWindow::InnerHeight() const {
    return ToTwips(height() - menuBar()->height());
}

} // namespace orvel::ui
