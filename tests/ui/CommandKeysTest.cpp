// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/FakePrinter.h"
#include "tests/ui/EveryWindow.h"
#include "tests/ui/UserKeys.h"
#include "tests/ui/WaysToCommands.h"
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
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QTextEdit>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <set>

// Every command of every window, by keys alone. The keys go to the window that has them, as the user's do,
// and never to a control that the test has picked.
namespace orvel::testing {

namespace {

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

class CommandKeys : public EveryWindow {
protected:
    CommandKeys() {
        dialog.error = ErrorNumber::CancelWasSelected;
        Platform platform = CurrentPlatform();
        platform.printDialog = &dialog;
        platform.printer = &printer;
        UsePlatform(platform);
    }

    void ExpectCommands(const WindowOfCommands& tested) {
        std::set<std::string> found;
        for (const Command& command : tested.commands) {
            bool hasWay = false;
            for (const auto& [way, press] : Ways()) {
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
};

std::string StatusOf(const QWidget* window) {
    return window->findChild<QLabel*>("sbStatusBar")->text().toStdString();
}

TEST_F(CommandKeys, ReachesEveryCommandOfTheMainWindow) {
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

TEST_F(CommandKeys, ReachesEveryCommandOfTheReport) {
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

// What both data windows have over a test of that file, which they save.
std::vector<Command> CommandsOfADataWindow(const std::filesystem::path& file) {
    const auto isSaved = [&file](const QWidget*) { return std::filesystem::exists(file); };
    const auto remove = [&file] { std::filesystem::remove(file); };
    return {
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
    };
}

TEST_F(CommandKeys, ReachesEveryCommandOfTheCenterPivotWindow) {
    std::filesystem::path file;
    std::vector<Command> commands = CommandsOfADataWindow(file);
    commands.push_back({"mnuFileSaveAs", {"save ["}, {}, true});
    commands.push_back({"cmdBtnSaveAs", {"save ["}, {}, true});
    ExpectCommands({"frmCenterPivotData",
                    [&] {
                        file = OpenCopy(kCenterPivot, "pivot-1978.cpd");
                        return new ui::CenterPivotDataDialog(nullptr, surroundings);
                    },
                    commands});
}

TEST_F(CommandKeys, ReachesEveryCommandOfTheSolidSetWindow) {
    std::filesystem::path file;
    ExpectCommands({"frmSolidSetData",
                    [&] {
                        file = OpenCopy(kSolidSet, "solid-set-1997.ssd");
                        return new ui::SolidSetDataDialog(nullptr, surroundings);
                    },
                    CommandsOfADataWindow(file)});
}

TEST_F(CommandKeys, ReachesEveryCommandOfTheSettingsTheViewerAndTheAboutBox) {
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

TEST_F(CommandKeys, EscapeAndReturnEndWhatHasNothingElseForThem) {
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

TEST_F(CommandKeys, AnswersEveryButtonOfABox) {
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
            for (const auto& [way, press] : Ways()) {
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
                EXPECT_TRUE(isPressed || std::string(way) != "Tab and Space") << caption;
                if (isPressed) {
                    EXPECT_EQ(reply, replies.at(caption)) << way;
                }
            }
        }
    }
}

} // namespace

} // namespace orvel::testing
