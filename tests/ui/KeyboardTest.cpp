// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/FakePrinter.h"
#include "tests/ui/EveryWindow.h"
#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/MainWindow.h"
#include "ui/PromptMnemonics.h"
#include "ui/QtPlatform.h"
#include "ui/ReportWindow.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/SplashWindow.h"
#include "ui/UserDataDialog.h"
#include "ui/ViewerWindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>

// Every command of every window, by keys alone. The keys go to the window that has them, as the user's do,
// and never to a control that the test has picked.
namespace orvel::testing {

namespace {

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWindow* window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr) << "no window has the keys";
    QTest::keyClick(window, key, modifiers);
}

// With Alt, the letter that the caption underlines; whether there is one.
bool PressMnemonic(const QString& caption, Qt::KeyboardModifiers modifiers) {
    const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
    if (mnemonic.isEmpty()) {
        return false;
    }
    PressKey(mnemonic[0].key(), modifiers);
    return true;
}

// Whether the control got the keys; of option buttons one of its group.
bool TabTo(const QWidget& control) {
    constexpr int kMostPresses = 100;
    const auto isThere = [&control] {
        const QWidget* now = QApplication::focusWidget();
        return now != nullptr &&
               (now == &control || now->focusProxy() == &control || control.focusProxy() == now ||
                (qobject_cast<const QRadioButton*>(&control) != nullptr &&
                 qobject_cast<const QRadioButton*>(now) != nullptr &&
                 now->parentWidget() == control.parentWidget()));
    };
    for (int press = 0; press < kMostPresses && !isThere(); ++press) {
        PressKey(Qt::Key_Tab);
    }
    return isThere();
}

// What the user can have done: a menu's item, or a button.
struct Invoked {
    QAction* action = nullptr;
    QAbstractButton* button = nullptr;
    QMenu* menu = nullptr; // that the action is in; none: it is in the tool bar
};

// Those of the window by their names; of message boxes by their captions.
std::map<std::string, Invoked> CommandsOf(const QWidget& window) {
    std::map<std::string, Invoked> commands;
    const auto add = [&commands](const QString& name, const Invoked& command) {
        EXPECT_FALSE(name.isEmpty());
        EXPECT_TRUE(commands.emplace(name.toStdString(), command).second) << name.toStdString();
    };
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* opened : bar->actions()) {
            for (QAction* item : opened->menu()->actions()) {
                if (!item->isSeparator()) {
                    EXPECT_EQ(item->menu(), nullptr) << "a menu in a menu: " << item->text().toStdString();
                    add(item->objectName(), {.action = item, .menu = opened->menu()});
                }
            }
        }
    }
    for (const auto* bar : window.findChildren<QToolBar*>()) {
        for (QAction* tool : bar->actions()) {
            if (!tool->isSeparator()) {
                add(tool->objectName(), {.action = tool});
            }
        }
    }
    const bool isBox = qobject_cast<const QMessageBox*>(&window) != nullptr;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        // Those that the toolkit puts in where there is no room have no names of ours.
        const bool isOwn = !button->objectName().startsWith("qt_");
        if ((isOwn || isBox) && qobject_cast<QToolBar*>(button->parentWidget()) == nullptr &&
            qobject_cast<QTabBar*>(button->parentWidget()) == nullptr &&
            qobject_cast<QTableView*>(button->parentWidget()) == nullptr) {
            add(isBox ? button->text().remove('&') : button->objectName(), {.button = button});
        }
    }
    return commands;
}

// --- The ways to a command -----------------------------------------------------------------------------

// Each presses its keys, and says whether the command can be invoked so.
using Way = bool (*)(const QWidget& window, const Invoked& command);

bool ByLetters(const QWidget& /*window*/, const Invoked& command) {
    if (command.menu != nullptr) {
        return PressMnemonic(command.menu->title(), Qt::AltModifier) &&
               PressMnemonic(command.action->text(), Qt::NoModifier);
    }
    return command.button != nullptr && PressMnemonic(command.button->text(), Qt::AltModifier);
}

bool ByArrows(const QWidget& window, const Invoked& command) {
    if (command.menu == nullptr) {
        return false;
    }
    PressKey(Qt::Key_Alt);
    const auto& bar = *window.findChild<QMenuBar*>();
    for (const QAction* menu = bar.actions().constFirst(); menu->menu() != command.menu;
         menu = bar.activeAction()) {
        PressKey(Qt::Key_Right);
    }
    PressKey(Qt::Key_Down);
    for (int step = 0;
         step < command.menu->actions().size() && command.menu->activeAction() != command.action; ++step) {
        PressKey(Qt::Key_Down);
    }
    PressKey(Qt::Key_Return);
    return true;
}

bool ByShortcut(const QWidget& /*window*/, const Invoked& command) {
    if (command.action == nullptr || command.action->shortcut().isEmpty()) {
        return false;
    }
    if (const QWidget* now = QApplication::focusWidget(); qobject_cast<const QLineEdit*>(now) != nullptr &&
                                                          command.menu != nullptr &&
                                                          command.menu->objectName() == "mnuEdit") {
        return false; // the box's own keys
    }
    const QKeyCombination keys = command.action->shortcut()[0];
    PressKey(keys.key(), keys.keyboardModifiers());
    return true;
}

bool ByTabAndSpace(const QWidget& window, const Invoked& command) {
    const QWidget* control = command.button;
    if (command.action != nullptr && command.menu == nullptr) {
        control = window.findChild<QToolBar*>()->widgetForAction(command.action);
    }
    if (control == nullptr) {
        return false;
    }
    EXPECT_TRUE(TabTo(*control)) << control->objectName().toStdString();
    PressKey(Qt::Key_Space);
    return true;
}

constexpr std::initializer_list<std::pair<const char*, Way>> kWays = {
    {"letters", ByLetters}, {"arrows", ByArrows}, {"shortcut", ByShortcut}, {"Tab and Space", ByTabAndSpace}};

// --- The commands --------------------------------------------------------------------------------------

// What is to come of a command.
struct Command {
    const char* name;
    Lines said = {};                                      // how each line begins that the window says
    std::deque<Reply> replies = {};                       // to its questions
    bool isCancelled = false;                             // its file dialog
    std::function<bool(const QWidget* window)> came = {}; // what else is so then; none: the window is gone
    std::function<void()> prepare = {};                   // before
    const char* page = nullptr;                           // that it is on
};

struct WindowOfCommands {
    const char* name;
    std::function<QWidget*()> open;
    std::vector<Command> commands;
};

bool IsGone(const QWidget* window) {
    return window == nullptr || !window->isVisible();
}

class Keyboard : public EveryWindow {
protected:
    Keyboard() {
        dialog.error = ErrorNumber::CancelWasSelected;
        Platform platform = CurrentPlatform();
        platform.printDialog = &dialog;
        platform.printer = &printer;
        UsePlatform(platform);
    }

    // A copy of the example, opened, in a folder of its own: what was typed before is not offered.
    std::filesystem::path OpenCopy(const char* kind, const char* example) {
        const std::filesystem::path place = Folder() / std::to_string(++copies);
        std::filesystem::create_directory(place);
        const std::filesystem::path copy = place / example;
        std::filesystem::copy_file(Example(example), copy);
        Program().testKind = kind;
        OpenTestFile(copy);
        return copy;
    }

    void ExpectCommands(const WindowOfCommands& tested) {
        std::set<std::string> found;
        for (const Command& command : tested.commands) {
            bool hasWay = false;
            for (const auto& [way, press] : kWays) {
                hasWay = Invoke(tested, command, way, press, found) || hasWay;
            }
            EXPECT_TRUE(hasWay) << tested.name << ": no key leads to " << command.name;
        }
        std::set<std::string> known;
        for (const Command& command : tested.commands) {
            known.insert(command.name);
        }
        std::vector<std::string> differences;
        std::ranges::set_symmetric_difference(found, known, std::back_inserter(differences));
        EXPECT_EQ(differences, Lines{}) << tested.name << ": only in the window, or only in this table";
    }

private:
    // In a window of its own; whether the command can be invoked in this way. Notes the names of all that
    // there are.
    bool Invoke(const WindowOfCommands& tested, const Command& command, const char* way, Way press,
                std::set<std::string>& found) {
        const std::string what = std::string(tested.name) + ": " + command.name + " by " + way;
        const QPointer<QWidget> window = tested.open();
        ShowActive(*window);
        Said();
        const std::map<std::string, Invoked> commands = CommandsOf(*window);
        for (const auto& [name, each] : commands) {
            // What the entries of a page are tested for is below.
            if (qobject_cast<QCheckBox*>(each.button) == nullptr &&
                qobject_cast<QRadioButton*>(each.button) == nullptr) {
                found.insert(name);
            }
        }
        bool isPressed = false;
        if (const auto place = commands.find(command.name); place == commands.end()) {
            ADD_FAILURE() << what << ": is not there";
        } else {
            isPressed = PressAndExpect(*window, command, place->second, press, what);
        }
        delete window;
        Said();
        return isPressed;
    }

    bool PressAndExpect(QWidget& opened, const Command& command, const Invoked& invoked, Way press,
                        const std::string& what) {
        const QPointer<QWidget> window = &opened;
        if (command.page != nullptr) {
            EXPECT_TRUE(PressMnemonic(command.page, Qt::AltModifier));
        }
        if (command.prepare) {
            command.prepare();
        }
        surroundings.replies = command.replies;
        if (command.isCancelled) {
            surroundings.paths = {{}};
        }
        int times = 0;
        if (invoked.action != nullptr) {
            QObject::connect(invoked.action, &QAction::triggered, [&times] { ++times; });
        } else {
            QObject::connect(invoked.button, &QAbstractButton::clicked, [&times] { ++times; });
        }
        if (!press(opened, invoked)) {
            surroundings.replies.clear();
            surroundings.paths.clear();
            return false;
        }
        EXPECT_EQ(times, 1) << what;
        const Lines said = Said();
        EXPECT_EQ(said.size(), command.said.size()) << what;
        for (std::size_t line = 0; line < std::min(said.size(), command.said.size()); ++line) {
            EXPECT_EQ(said[line].substr(0, command.said[line].size()), command.said[line]) << what;
        }
        if (command.came) {
            EXPECT_TRUE(command.came(window)) << what;
        }
        return true;
    }

    // As in the program.
    ui::PromptMnemonics mnemonics;
    FakePrintDialog dialog{surroundings};
    FakePrinter printer{surroundings};
    int copies = 0;
};

std::string StatusOf(const QWidget* window) {
    return window->findChild<QLabel*>("sbStatusBar")->text().toStdString();
}

TEST_F(Keyboard, ReachesEveryCommandOfTheMainWindow) {
    std::filesystem::path file;
    const auto isSaved = [&file](const QWidget*) { return std::filesystem::exists(file); };
    ExpectCommands(
        {"frmMain",
         [&] {
             auto* window = new ui::MainWindow(surroundings);
             window->Load();
             file = OpenCopy(kCenterPivot, "pivot-1978.cpd");
             window->OpenGivenFile(file);
             return window;
         },
         {
             {"mnuFileNew", {"save [Create New Data File - Center Pivot System]"}, {}, true},
             {"mnuFileOpen", {"open [Open Center Pivot Data]"}, {}, true},
             {.name = "mnuFileClose",
              .came = [](const QWidget* window) { return StatusOf(window) == "No File Open"; }},
             {.name = "mnuFileSave", .came = isSaved, .prepare = [&file] { std::filesystem::remove(file); }},
             {"mnuFileSaveAs", {"save [Save Center Pivot Data As - Enter File Name]"}, {}, true},
             {"mnuExportSummary", {"save ["}, {}, true},
             {"mnuDataPrint", {"view CPData"}},
             {"mnuFileExit", {"end"}},
             {"mnuEditUndo", {"Ctrl+Z"}},
             {"mnuEditCut", {"Ctrl+X"}},
             {"mnuEditCopy", {"Ctrl+C"}},
             {"mnuEditPaste", {"Ctrl+V"}},
             {"mnuEditPasteSpecial"},
             {"mnuDataEntry", {"show frmCenterPivotData"}},
             {"mnuViewReport", {"show frmReport"}},
             {"mnuSoilIntake", {"show frmSoilIntake"}},
             {"mnuUserSettings", {"show frmUserData"}},
             {"mnuInstructions", {"view Help"}},
             {"mnuHelpAbout", {"show frmAbout"}},
             {"cmdBtnEditExisting", {"show frmCenterPivotData"}},
             {"cmdBtnNewDataFile", {"save [Create New Data File - Center Pivot System]"}, {}, true},
             {"cmdBtnOpenFile", {"box [Open File] Close current file"}, {Reply::No}},
             {"cmdBtnGenerateReport", {"show frmReport"}},
         }});
}

TEST_F(Keyboard, ReachesEveryCommandOfTheReport) {
    const auto isPressed = [](const char* tool, bool state) {
        return [tool, state](const QWidget* window) {
            return window->findChild<QAction*>(tool)->isChecked() == state;
        };
    };
    const auto hasText = [](const QWidget* window) {
        return !window->findChild<QTextEdit*>()->toPlainText().isEmpty();
    };
    ExpectCommands(
        {"frmReport",
         [&] {
             OpenPivot();
             auto* window = new ui::ReportWindow(surroundings);
             window->Load();
             return window;
         },
         {
             {"mnuFileOpen", {"open [Open File]"}, {}, true},
             {.name = "mnuFileClose", .came = [&](const QWidget* window) { return !hasText(window); }},
             {.name = "mnuRefreshReport", .came = hasText},
             {"mnuFileSaveAs", {"save [Save Report As"}, {}, true},
             {"mnuSaveHTML", {"save [Save Report as HTML]"}, {}, true},
             {"mnuFilePrint", {"print dialog"}},
             {.name = "mnuFileExit", .came = IsGone},
             {"mnuUndo", {"Ctrl+Z"}},
             {"mnuCut", {"Ctrl+X"}},
             {"mnuCopy", {"Ctrl+C"}},
             {"mnuEditCopy"},
             {"mnuPaste", {"Ctrl+V"}},
             {"mnuMainWindow", {"show frmMain"}},
             {"mnuDataEntry", {"show frmCenterPivotData"}},
             {"mnuInstructions", {"view Help"}},
             {"mnuHelpContents", {"view Help"}},
             {"mnuHelpAbout", {"show frmAbout"}},
             {.name = "Back", .came = IsGone},
             {"Open", {"open [Open File]"}, {}, true},
             {"Save", {"save [Save Report As"}, {}, true},
             {"Print", {"print dialog"}},
             {.name = "Bold", .came = isPressed("Bold", true)},
             {.name = "Italic", .came = isPressed("Italic", true)},
             {.name = "Lock", .came = isPressed("Lock", false)},
             {"Help", {"view Help"}},
             {.name = "Refresh", .came = hasText},
         }});
}

TEST_F(Keyboard, ReachesEveryCommandOfTheCenterPivotWindow) {
    std::filesystem::path file;
    const auto isSaved = [&file](const QWidget*) { return std::filesystem::exists(file); };
    const auto remove = [&file] { std::filesystem::remove(file); };
    ExpectCommands({"frmCenterPivotData",
                    [&] {
                        file = OpenCopy(kCenterPivot, "pivot-1978.cpd");
                        return new ui::CenterPivotDataDialog(nullptr, surroundings);
                    },
                    {
                        {.name = "mnuFileSave", .came = isSaved, .prepare = remove},
                        {"mnuFileSaveAs", {"save ["}, {}, true},
                        {"mnuFileDiscard", {"box [Close Data Window]"}, {Reply::No}},
                        {"mnuFileClose", {"box [Close Window]"}, {Reply::Cancel}},
                        {"mnuEditUndo", {"Ctrl+Z"}},
                        {"mnuEditCut", {"Ctrl+X"}},
                        {"mnuEditCopy", {"Ctrl+C"}},
                        {"mnueditPaste", {"Ctrl+V"}},
                        {"mnuHelpInstructions", {"view Help"}},
                        {"mnuHelpAbout", {"show frmAbout"}},
                        {"cmdBtnSaveAs", {"save ["}, {}, true},
                        {"cmdBtnCloseWithoutSaving", {"box [Close Data Window]"}, {Reply::No}},
                        {"cmdBtnExitAndSave", {"box [Close Window]"}, {Reply::No}, false, isSaved, remove},
                        {.name = "cmdBtnAutoFill",
                         .said = {"box [Auto Complete Entries]"},
                         .replies = {Reply::No},
                         .page = "&Test Data"},
                    }});
}

TEST_F(Keyboard, ReachesEveryCommandOfTheSolidSetWindow) {
    std::filesystem::path file;
    const auto isSaved = [&file](const QWidget*) { return std::filesystem::exists(file); };
    const auto remove = [&file] { std::filesystem::remove(file); };
    ExpectCommands({"frmSolidSetData",
                    [&] {
                        file = OpenCopy(kSolidSet, "solid-set-1997.ssd");
                        return new ui::SolidSetDataDialog(nullptr, surroundings);
                    },
                    {
                        {.name = "mnuFileSave", .came = isSaved, .prepare = remove},
                        {"mnuFileDiscard", {"box [Close Data Window]"}, {Reply::No}},
                        {"mnuFileClose", {"box [Close Window]"}, {Reply::Cancel}},
                        {"mnuEditUndo", {"Ctrl+Z"}},
                        {"mnuEditCut", {"Ctrl+X"}},
                        {"mnuEditCopy", {"Ctrl+C"}},
                        {"mnueditPaste", {"Ctrl+V"}},
                        {"mnuHelpInstructions", {"view Help"}},
                        {"mnuHelpAbout", {"show frmAbout"}},
                        {"cmdBtnCloseWithoutSaving", {"box [Close Data Window]"}, {Reply::No}},
                        {"cmdBtnExitAndSave", {"box [Close Window]"}, {Reply::No}, false, isSaved, remove},
                        {.name = "cmdBtnAutoFill",
                         .said = {"box [Auto Complete Entries]"},
                         .replies = {Reply::No},
                         .page = "&Test Data"},
                    }});
}

TEST_F(Keyboard, ReachesEveryCommandOfTheSettingsTheViewerAndTheAboutBox) {
    const auto soils = Folder() / "soil.dat";
    const auto settings = Folder() / "user.usr";
    ExpectCommands(
        {"frmSoilIntake",
         [] { return new ui::SoilIntakeDialog(nullptr); },
         {
             {.name = "cmdBtnSave",
              .came = [&](const QWidget* window) { return IsGone(window) && std::filesystem::exists(soils); },
              .prepare = [&] { std::filesystem::remove(soils); }},
             {.name = "cmdBtnCancel", .came = IsGone},
         }});
    ExpectCommands(
        {"frmUserData",
         [] { return new ui::UserDataDialog(nullptr); },
         {
             {.name = "cmdBtnSave",
              .came =
                  [&](const QWidget* window) { return IsGone(window) && std::filesystem::exists(settings); },
              .prepare = [&] { std::filesystem::remove(settings); }},
             {.name = "cmdBtnCancel", .came = IsGone},
             {"cmdBtnBrowse", {"browse ["}, {}, true},
         }});
    ExpectCommands({"frmShowRTF",
                    [&] {
                        auto* window = new ui::ViewerWindow(nullptr);
                        window->ShowTopic(kViewHelp);
                        return window;
                    },
                    {
                        {"cmdBtnPrint", {"print dialog"}},
                        {"cmdBtnSave", {"save ["}, {}, true},
                        {.name = "cmdBtnClose", .came = IsGone},
                    }});
    ExpectCommands(
        {"frmAbout", [] { return new ui::AboutDialog(nullptr); }, {{.name = "cmdOK", .came = IsGone}}});
}

// --- Other keys that close -----------------------------------------------------------------------------

TEST_F(Keyboard, EscapeAndReturnEndWhatHasNothingElseForThem) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        ui::AboutDialog about(nullptr);
        ShowActive(about);
        PressKey(key);
        EXPECT_FALSE(about.isVisible()) << key;
        ui::UserDataDialog settings(nullptr);
        ShowActive(settings);
        PressKey(key);
        EXPECT_FALSE(settings.isVisible()) << key;
        ui::SoilIntakeDialog soils(nullptr);
        ShowActive(soils);
        PressKey(key);
        EXPECT_FALSE(soils.isVisible()) << key;
    }
    bool isEnded = false;
    ui::SplashWindow splash([&isEnded] { isEnded = true; });
    ShowActive(splash);
    PressKey(Qt::Key_Escape);
    EXPECT_TRUE(isEnded);
}

TEST_F(Keyboard, AnswersEveryButtonOfABox) {
    struct Case {
        Buttons buttons;
        std::set<std::string> captions;
    };
    const std::map<std::string, Reply> replies = {
        {"OK", Reply::Ok}, {"Yes", Reply::Yes}, {"No", Reply::No}, {"Cancel", Reply::Cancel}};
    for (const Case& each : {Case{Buttons::Ok, {"OK"}},
                             {Buttons::YesNo, {"Yes", "No"}},
                             {Buttons::YesNoCancel, {"Yes", "No", "Cancel"}}}) {
        for (const std::string& caption : each.captions) {
            for (const auto& [way, press] : kWays) {
                bool isPressed = false;
                Reply reply = Reply::None;
                WhileModal(
                    [&] {
                        reply = ui::QtMessageBox().Show({"Question?", "Title", each.buttons, Icon::Question});
                    },
                    [&, press = press](QWidget& box) {
                        ShowActive(box);
                        const std::map<std::string, Invoked> commands = CommandsOf(box);
                        std::set<std::string> found;
                        for (const auto& [name, command] : commands) {
                            found.insert(name);
                        }
                        EXPECT_EQ(found, each.captions);
                        isPressed = press(box, commands.at(caption));
                        if (!isPressed) {
                            PressKey(Qt::Key_Escape);
                        }
                    });
                EXPECT_TRUE(isPressed || press != ByTabAndSpace) << caption;
                if (isPressed) {
                    EXPECT_EQ(reply, replies.at(caption)) << way;
                }
            }
        }
    }
}

TEST_F(Keyboard, ScrollsTheTextOfALongBox) {
    std::string text;
    for (int line = 0; line < 300; ++line) {
        text += "one more line\r\n";
    }
    WhileModal(
        [&] {
            ui::QtMessageBox().Show({text, "Data Warnings"});
        },
        [](QWidget& box) {
            ShowActive(box);
            auto& area = *box.findChild<QScrollArea*>();
            EXPECT_TRUE(TabTo(area));
            PressKey(Qt::Key_PageDown);
            EXPECT_GT(area.verticalScrollBar()->value(), 0);
            EXPECT_TRUE(TabTo(*box.findChild<QPushButton*>()));
            PressKey(Qt::Key_Space);
        });
}

// --- Entries -------------------------------------------------------------------------------------------

// Does with the control that has the keys what it is for; whether that came of it.
bool UseEntry(QWidget& control) {
    if (auto* box = qobject_cast<QLineEdit*>(&control)) {
        PressKey(Qt::Key_End);
        const QString before = box->text();
        PressKey(Qt::Key_Backspace);
        PressKey(Qt::Key_7);
        return box->text() == before.left(before.size() - 1) + '7';
    }
    if (auto* box = qobject_cast<QPlainTextEdit*>(&control)) {
        const QString before = box->toPlainText();
        PressKey(Qt::Key_Home);
        PressKey(Qt::Key_7);
        return box->toPlainText() == '7' + before;
    }
    if (auto* list = qobject_cast<QComboBox*>(&control)) {
        const int before = list->currentIndex();
        PressKey(before == list->count() - 1 ? Qt::Key_Up : Qt::Key_Down);
        return list->currentIndex() != before;
    }
    if (auto* button = qobject_cast<QCheckBox*>(&control)) {
        const bool before = button->isChecked();
        PressKey(Qt::Key_Space);
        return button->isChecked() != before;
    }
    if (auto* option = qobject_cast<QRadioButton*>(&control)) {
        for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Right}) {
            if (!option->hasFocus()) {
                PressKey(arrow);
            }
        }
        PressKey(Qt::Key_Space);
        return option->isChecked();
    }
    if (auto* table = qobject_cast<QTableView*>(&control)) {
        const int before = table->currentIndex().row();
        PressKey(Qt::Key_Down);
        PressKey(Qt::Key_7);
        return table->currentIndex().row() == before + 1 &&
               QApplication::focusWidget()->objectName() == "txtEdit";
    }
    if (auto* text = qobject_cast<QTextEdit*>(&control)) {
        PressKey(Qt::Key_A, Qt::ControlModifier);
        return text->textCursor().hasSelection();
    }
    if (qobject_cast<QTabBar*>(&control) != nullptr || qobject_cast<QPushButton*>(&control) != nullptr ||
        qobject_cast<QToolButton*>(&control) != nullptr || qobject_cast<QScrollArea*>(&control) != nullptr) {
        return true; // tested elsewhere
    }
    ADD_FAILURE() << "what are the keys of a " << control.metaObject()->className() << "?";
    return false;
}

TEST_F(Keyboard, EntersIntoEveryControlOfEveryWindow) {
    std::set<std::string> kinds;
    ForEach([&kinds](QWidget& window, const std::string& where) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const bool isOwn = control->isVisible() && control->isEnabled() &&
                               control->focusProxy() == nullptr &&
                               (control->focusPolicy() & Qt::TabFocus) != 0;
            const bool isOption = qobject_cast<QRadioButton*>(control) != nullptr && control->isVisible();
            // The editor of a list is a part of it, that of the grid comes with it.
            const bool isPart = qobject_cast<QComboBox*>(control->parentWidget()) != nullptr ||
                                control->objectName() == "txtEdit";
            if ((isOwn || isOption) && !isPart) {
                const std::string what = where + ": " + control->metaObject()->className() + " " +
                                         control->objectName().toStdString();
                EXPECT_TRUE(TabTo(*control)) << what;
                EXPECT_TRUE(UseEntry(*control)) << what;
                kinds.insert(control->metaObject()->className());
            }
        }
    });
    EXPECT_EQ(kinds, (std::set<std::string>{"QCheckBox", "QComboBox", "QLineEdit", "QPlainTextEdit",
                                            "QPushButton", "QRadioButton", "QScrollArea", "QTabBar",
                                            "QTableView", "QTextEdit", "QToolButton"}));
}

TEST_F(Keyboard, TurnsToEveryPageByLetterAndInTurn) {
    const auto expectPages = [](QWidget& window) {
        ShowActive(window);
        auto& pages = Find<QTabWidget>(window, "tabPages");
        for (int page = pages.count() - 1; page >= 0; --page) {
            EXPECT_TRUE(PressMnemonic(pages.tabText(page), Qt::AltModifier));
            EXPECT_EQ(pages.currentIndex(), page);
        }
        for (int page = 1; page <= pages.count(); ++page) {
            PressKey(Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(pages.currentIndex(), page % pages.count());
        }
        PressKey(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(pages.currentIndex(), pages.count() - 1);
        EXPECT_TRUE(TabTo(*pages.tabBar()));
        PressKey(Qt::Key_Left);
        EXPECT_EQ(pages.currentIndex(), pages.count() - 2);
    };
    OpenCopy(kCenterPivot, "pivot-1978.cpd");
    ui::CenterPivotDataDialog pivot(nullptr, surroundings);
    expectPages(pivot);
    pivot.hide();
    OpenCopy(kSolidSet, "solid-set-1997.ssd");
    ui::SolidSetDataDialog solid(nullptr, surroundings);
    expectPages(solid);
}

TEST_F(Keyboard, EditsTheMeasurements) {
    OpenCopy(kCenterPivot, "pivot-1978.cpd");
    ui::CenterPivotDataDialog pivot(nullptr, surroundings);
    ShowActive(pivot);
    const auto& table = Find<QTableView>(pivot, "gridTest");
    const auto cell = [&table](int row) {
        return table.model()->index(row - 1, 2).data().toString().toStdString();
    };
    EXPECT_TRUE(PressMnemonic("&Test Data", Qt::AltModifier));
    EXPECT_TRUE(TabTo(table));
    PressKey(Qt::Key_7);
    PressKey(Qt::Key_Return);
    EXPECT_EQ(cell(1), "07");
    PressKey(Qt::Key_8);
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(cell(1), "07");
    const auto change = [this](Qt::Key key) {
        surroundings.replies = {Reply::Yes};
        PressKey(Qt::Key_Space);
        PressKey(key);
        EXPECT_TRUE(surroundings.replies.empty()) << key << " asks nothing";
        surroundings.replies.clear();
    };
    change(Qt::Key_Insert);
    EXPECT_EQ(cell(2), "07");
    change(Qt::Key_F10);
    EXPECT_EQ(cell(3), "07");
    change(Qt::Key_Delete);
    EXPECT_EQ(cell(2), "07");
    // It leaves the end of the table current.
    while (table.currentIndex().row() > 0) {
        PressKey(Qt::Key_PageUp);
    }
    change(Qt::Key_F9);
    EXPECT_EQ(cell(1), "07");
    Said();
}

} // namespace

} // namespace orvel::testing
