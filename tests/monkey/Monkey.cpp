// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Monkey.h"

#include "core/ProgramState.h"
#include "core/TestFile.h"
#include "tests/monkey/Windows.h"
#include "ui/TextEdge.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <algorithm>
#include <utility>

namespace orvel::monkey {

namespace {

QAction* CommandOf(const QWidget& window, const char* name) {
    const std::vector<QAction*> commands = Commands(window);
    const auto command = std::ranges::find(commands, QString(name), &QAction::objectName);
    return command == commands.end() ? nullptr : *command;
}

std::vector<QAbstractButton*> ButtonsOf(const QWidget& window) {
    std::vector<QAbstractButton*> buttons;
    for (QWidget* control : ShownControls(window)) {
        if (auto* button = qobject_cast<QAbstractButton*>(control);
            button != nullptr && button->isEnabled()) {
            buttons.push_back(button);
        }
    }
    return buttons;
}

bool IsOf(WindowKind kind, std::initializer_list<WindowKind> kinds) {
    return std::ranges::find(kinds, kind) != kinds.end();
}

bool IsFileDialog(WindowKind kind) {
    return IsOf(kind, {WindowKind::OpenDialog, WindowKind::SaveDialog, WindowKind::FolderBrowser});
}

// The list of files is read by another thread: until it has them all, chances would differ from run to run.
void WaitForFiles(QFileDialog& dialog) {
    constexpr qint64 kPatience = 3000;
    const auto* model = dialog.findChild<QFileSystemModel*>();
    // Devices are not.
    const auto isShown = [](const QFileInfo& file) { return file.isFile() || file.isDir(); };
    QElapsedTimer timer;
    timer.start();
    const auto isReady = [&] {
        const QDir directory(dialog.directory());
        const QFileInfoList files = directory.entryInfoList(model->nameFilters(), model->filter());
        return model->rowCount(model->index(directory.path())) >= std::ranges::count_if(files, isShown);
    };
    do {
        QCoreApplication::processEvents();
    } while (!isReady() && timer.elapsed() < kPatience);
    QCoreApplication::processEvents();
}

} // namespace

Monkey::Monkey(Dice& ofUser, Progress& ofRun, std::filesystem::path ofFiles)
    : dice(ofUser), progress(ofRun), folder(std::move(ofFiles)), hands(ofUser, ofRun) {}

void Monkey::Act() {
    window = ChooseWindow();
    if (window == nullptr) {
        return;
    }
    const WindowKind kind = KindOf(*window);
    ++progress.visits.at(static_cast<std::size_t>(kind));
    if (IsFileDialog(kind)) {
        KeepInside(dynamic_cast<QFileDialog&>(*window));
    }
    hands.Take(*window);
    hands.RememberBox();
    static constexpr std::array<Habit, 2> kSplash = {{{95, &Monkey::DoAnything}, {1, &Monkey::PressEscape}}};
    static constexpr std::array<Habit, 4> kMain = {{
        {30, &Monkey::LookForANewWindow},
        {40, &Monkey::DoAnything},
        {20, &Monkey::ChooseCommand},
        {1, &Monkey::CloseByTitleBar},
    }};
    static constexpr std::array<Habit, 8> kData = {{
        {25, &Monkey::EnterReadings},
        {55, &Monkey::DoAnything},
        {6, &Monkey::ChooseCommand},
        {4, &Monkey::MendSoil},
        {4, &Monkey::SaveWhileTyping},
        {8, &Monkey::OpenList},
        {4, &Monkey::FillGrid},
        {5, &Monkey::LeaveDataWindow},
    }};
    static constexpr std::array<Habit, 4> kSettings = {{
        {70, &Monkey::DoAnything},
        {8, &Monkey::Browse},
        {8, &Monkey::SaveOrCancel},
        {1, &Monkey::CloseByTitleBar},
    }};
    static constexpr std::array<Habit, 5> kReport = {{
        {50, &Monkey::DoAnything},
        {20, &Monkey::ChooseCommand},
        {6, &Monkey::Print},
        {6, &Monkey::Unlock},
        {4, &Monkey::CloseByTitleBar},
    }};
    static constexpr std::array<Habit, 3> kBox = {{
        {80, &Monkey::PushAButton},
        {10, &Monkey::DoAnything},
        {3, &Monkey::PressEscape},
    }};
    static constexpr std::array<Habit, 4> kDialog = {{
        {45, &Monkey::NameAFile},
        {25, &Monkey::DoAnything},
        {10, &Monkey::PushAButton},
        {15, &Monkey::PressEscape},
    }};
    static constexpr std::array<Habit, 4> kOther = {{
        {40, &Monkey::DoAnything},
        {30, &Monkey::PushAButton},
        {10, &Monkey::PressReturn},
        {20, &Monkey::PressEscape},
    }};
    static constexpr std::array<Habit, 3> kPopup = {{
        {50, &Monkey::PickFromPopup},
        {20, &Monkey::DoAnything},
        {20, &Monkey::PressEscape},
    }};
    switch (kind) {
    case WindowKind::Splash:
        return ActBy(kSplash);
    case WindowKind::Main:
        return ActBy(kMain);
    case WindowKind::CenterPivotData:
    case WindowKind::SolidSetData:
        return ActBy(kData);
    case WindowKind::UserData:
    case WindowKind::SoilIntake:
        return ActBy(kSettings);
    case WindowKind::Report:
    case WindowKind::Viewer:
        return ActBy(kReport);
    case WindowKind::Box:
        return ActBy(kBox);
    case WindowKind::OpenDialog:
    case WindowKind::SaveDialog:
    case WindowKind::FolderBrowser:
        return ActBy(kDialog);
    case WindowKind::Menu:
    case WindowKind::List:
        return ActBy(kPopup);
    default:
        return ActBy(kOther);
    }
}

QWidget* Monkey::ChooseWindow() {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && dice.IsIn100(95)) {
        return popup;
    }
    const std::vector<QWidget*> usable = UsableWindows();
    if (usable.empty()) {
        return nullptr;
    }
    QWidget* active = QApplication::activeWindow();
    if (std::ranges::find(usable, active) != usable.end() && dice.IsIn100(90)) {
        return active;
    }
    return dice.OneOf(usable);
}

void Monkey::DoAnything() {
    struct Anything {
        std::size_t weight;
        void (Hands::*action)();
    };
    static constexpr std::array<Anything, 13> kAnything = {{
        {24, &Hands::ClickSomewhere},
        {5, &Hands::DoubleClickSomewhere},
        {4, &Hands::Drag},
        {5, &Hands::TurnWheel},
        {20, &Hands::PressKey},
        {14, &Hands::TypeText},
        {1, &Hands::Compose},
        {8, &Hands::Paste},
        {3, &Hands::ChooseCommand},
        {3, &Hands::Resize},
        {1, &Hands::Move},
        {1, &Hands::MinimizeOrMaximize},
        {0, &Hands::Close},
    }};
    (hands.*dice.OneByWeight(kAnything).action)();
}

void Monkey::PushAButton() {
    const std::vector<QAbstractButton*> buttons = ButtonsOf(*window);
    if (!buttons.empty()) {
        hands.Click(*dice.OneOf(buttons));
    }
}

void Monkey::ChooseMain(const char* command) {
    if (QAction* action = CommandOf(*window, command)) {
        hands.Choose(*action);
    }
}

void Monkey::LookForANewWindow() {
    struct Way {
        WindowKind to;
        const char* command;
    };
    static constexpr std::array<Way, 9> kWays = {{
        {WindowKind::CenterPivotData, "mnuDataEntry"},
        {WindowKind::SolidSetData, "mnuDataEntry"},
        {WindowKind::UserData, "mnuUserSettings"},
        {WindowKind::SoilIntake, "mnuSoilIntake"},
        {WindowKind::Report, "mnuViewReport"},
        {WindowKind::Viewer, "mnuInstructions"},
        {WindowKind::About, "mnuHelpAbout"},
        {WindowKind::OpenDialog, "mnuFileOpen"},
        {WindowKind::SaveDialog, "mnuFileSaveAs"},
    }};
    // A data window is worth many visits, an about box few.
    const auto seen = [this](const Way& way) {
        const bool isData = IsOf(way.to, {WindowKind::CenterPivotData, WindowKind::SolidSetData});
        return progress.visits.at(static_cast<std::size_t>(way.to)) / (isData ? 8 : 1);
    };
    const Way& way = dice.IsIn100(50) ? *std::ranges::min_element(kWays, {}, seen) : dice.OneOf(kWays);
    const bool wantsPivot = way.to == WindowKind::CenterPivotData;
    const bool wantsSolid = way.to == WindowKind::SolidSetData;
    if ((wantsPivot && Program().testKind != kCenterPivot) ||
        (wantsSolid && Program().testKind != kSolidSet)) {
        hands.Click(*window->findChild<QWidget*>(wantsPivot ? "OptBtnCenterPivot" : "OptBtnSolidSet"));
    } else if ((wantsPivot || wantsSolid || way.to == WindowKind::Report) && CurrentFile().empty()) {
        ChooseMain(dice.IsIn100(70) ? "mnuFileOpen" : "mnuFileNew");
    } else {
        ChooseMain(way.command);
    }
}

void Monkey::GoToPageOf(const QWidget& control) {
    auto* pages = window->findChild<QTabWidget*>("tabPages");
    for (int page = 0; page < pages->count(); ++page) {
        if (BelongsTo(&control, pages->widget(page)) && page != pages->currentIndex()) {
            const QTabBar& tabs = *pages->tabBar();
            hands.ClickAt(tabs, tabs.tabRect(page).center());
        }
    }
}

void Monkey::EnterReadings() {
    auto* table = window->findChild<QTableView*>("gridTest");
    if (!table->isVisible()) {
        GoToPageOf(*table);
        return;
    }
    if (!table->hasFocus() && !window->findChild<QWidget*>("txtEdit")->hasFocus()) {
        const QRect shown = table->viewport()->rect();
        const int lastColumn = table->model()->columnCount() - 1;
        const int column = dice.IsIn100(90) ? lastColumn : dice.Below(lastColumn + 1);
        const int row = table->rowAt(dice.Below(shown.height() + 1));
        hands.ClickAt(*table->viewport(), table->visualRect(table->model()->index(row, column)).center());
        return;
    }
    static const std::array<QString, 10> kReadings = {"7", "85", "104", "98",    "112",
                                                      "0", ".",  "x",   "12345", "9.9"};
    static constexpr std::array kEnds = {Qt::Key_Down, Qt::Key_Down,    Qt::Key_Down,   Qt::Key_Return,
                                         Qt::Key_Up,   Qt::Key_Tab,     Qt::Key_Escape, Qt::Key_F10,
                                         Qt::Key_F9,   Qt::Key_PageDown};
    // A "." that stays in a cell ends the program at the next Save.
    hands.Type(dice.IsIn100(90) ? kReadings.at(static_cast<std::size_t>(dice.Below(6)))
                                : dice.OneOf(kReadings));
    if (dice.IsIn100(80)) {
        hands.Press(dice.OneOf(kEnds));
    }
}

void Monkey::FillGrid() {
    auto* button = window->findChild<QWidget*>("cmdBtnAutoFill");
    if (button->isVisible()) {
        hands.Click(*button);
    } else {
        GoToPageOf(*button);
    }
}

void Monkey::MendSoil() {
    auto* soil = window->findChild<QComboBox*>("comboSoilType");
    if (!soil->isVisible()) {
        GoToPageOf(*soil);
        return;
    }
    hands.Click(*soil->lineEdit());
    hands.Press(Qt::Key_A, Qt::ControlModifier);
    hands.Type(QString("%1 - ").arg(dice.Between(1, 9)));
    hands.Press(dice.OneOf(std::array{Qt::Key_Tab, Qt::Key_Return}));
}

void Monkey::SaveWhileTyping() {
    hands.TypeText();
    hands.Press(Qt::Key_S, Qt::ControlModifier);
}

void Monkey::OpenList() {
    constexpr int kArrow = 8;
    const QComboBox& list = *dice.OneOf(window->findChildren<QComboBox*>());
    if (list.isVisible()) {
        hands.ClickAt(list, list.rect().center() + QPoint(list.width() / 2 - kArrow, 0));
    } else {
        GoToPageOf(list);
    }
}

void Monkey::LeaveDataWindow() {
    if (dice.IsIn100(30)) {
        hands.Close();
        return;
    }
    const char* name = dice.IsIn100(50) ? "cmdBtnExitAndSave" : "cmdBtnCloseWithoutSaving";
    hands.Click(*window->findChild<QWidget*>(name));
}

void Monkey::Browse() {
    if (auto* button = window->findChild<QWidget*>("cmdBtnBrowse")) {
        hands.Click(*button);
    }
}

void Monkey::SaveOrCancel() {
    hands.Click(*window->findChild<QWidget*>(dice.IsIn100(50) ? "cmdBtnSave" : "cmdBtnCancel"));
}

void Monkey::Print() {
    if (QAction* action = CommandOf(*window, "mnuFilePrint")) {
        hands.Choose(*action);
    } else {
        hands.Click(*window->findChild<QWidget*>("cmdBtnPrint"));
    }
}

void Monkey::Unlock() {
    hands.Press(Qt::Key_L, Qt::ControlModifier);
}

void Monkey::KeepInside(QFileDialog& dialog) const {
    const QString home = ui::PathToQt(folder);
    // No file of a test run is to vanish but by the program.
    dialog.setOption(QFileDialog::ReadOnly);
    if (!(dialog.directory().path() + "/").startsWith(home + "/")) {
        dialog.setDirectory(home);
    }
    WaitForFiles(dialog);
}

void Monkey::NameAFile() {
    static const std::array<const char*, 8> kToOpen = {
        "pivot-1978", "solid-set-1997", "short", "long", "noise", "new", "two words", "missing",
    };
    static const std::array<const char*, 7> kToSave = {
        "new", "two words", "pivot-1978", "Gr\u00FC\u00DFe-\u65E5", "no-folder/new", "folder/full", "folder",
    };
    auto& dialog = dynamic_cast<QFileDialog&>(*window);
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
    QString name = QString::fromUtf8(KindOf(dialog) == WindowKind::SaveDialog ? dice.OneOf(kToSave)
                                                                              : dice.OneOf(kToOpen));
    if (KindOf(dialog) == WindowKind::FolderBrowser) {
        name = "folder";
    } else if (!dialog.defaultSuffix().isEmpty() || name != "new") {
        const QStringList patterns = dialog.nameFilters().join(' ').split("*.");
        name += "." + patterns.last().left(patterns.last().indexOf(')'));
    }
    hands.Click(*edit);
    hands.Press(Qt::Key_A, Qt::ControlModifier);
    hands.Type(name);
    if (dice.IsIn100(90)) {
        hands.Press(Qt::Key_Return);
    }
}

void Monkey::PickFromPopup() {
    if (const auto* menu = qobject_cast<QMenu*>(window); menu != nullptr && !menu->actions().isEmpty()) {
        hands.ClickAt(*menu, menu->actionGeometry(dice.OneOf(menu->actions())).center());
    } else if (const auto* list = window->findChild<QListView*>()) {
        const QRect shown = list->viewport()->rect();
        hands.ClickAt(*list->viewport(), QPoint(shown.width() / 2, dice.Below(shown.height())));
    } else {
        PressEscape();
    }
}

void Monkey::Leave() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) {
        for (QWidget* shown : ShownWindows()) {
            if (IsOf(KindOf(*shown), {WindowKind::Main, WindowKind::Splash})) {
                hands.Take(*shown);
                hands.Close();
                return;
            }
        }
        return;
    }
    hands.Take(*modal);
    switch (KindOf(*modal)) {
    case WindowKind::CenterPivotData:
    case WindowKind::SolidSetData:
        hands.Click(*modal->findChild<QWidget*>("cmdBtnCloseWithoutSaving"));
        break;
    case WindowKind::Box: {
        const auto& box = dynamic_cast<QMessageBox&>(*modal);
        const bool isLeaving = box.windowTitle() == "Close Data Window";
        const bool isIncomplete = box.windowTitle() == "Incomplete Data";
        QAbstractButton* answer = isLeaving      ? box.button(QMessageBox::Yes)
                                  : isIncomplete ? box.button(QMessageBox::No)
                                                 : box.buttons().last();
        hands.Click(*answer);
        break;
    }
    default:
        hands.Press(Qt::Key_Escape);
        break;
    }
}

} // namespace orvel::monkey
