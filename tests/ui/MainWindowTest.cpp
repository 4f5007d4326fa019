// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/MainWindow.h"

#include "core/ProgramState.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>

namespace orvel {

namespace {

using testing::Lines;

class MainWindow : public testing::WidgetTest {
protected:
    MainWindow() {
        Program().programDirectory = folder.Path();
        window.Load();
        surroundings.Said();
        ShowActive(window);
    }

    QMenu& Menu(const char* name) { return Find<QMenu>(window, name); }
    void Click(const char* name) { QTest::mouseClick(&Find<QAbstractButton>(window, name), Qt::LeftButton); }
    // Opens the menu with the keyboard and presses the letter of an item.
    void Choose(Qt::Key menu, Qt::Key item) {
        QTest::keyClick(&window, menu, Qt::AltModifier);
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_NE(popup, nullptr);
        QTest::keyClick(popup, item);
    }
    std::string Status() { return Find<QLabel>(window, "sbStatusBar").text().toStdString(); }

    testing::TemporaryFolder folder;
    ui::MainWindow window{surroundings};
};

TEST_F(MainWindow, HasItsMenusInOrder) {
    Lines menus;
    for (const QAction* menu : window.menuBar()->actions()) {
        menus.push_back(menu->text().remove('&').toStdString());
    }
    EXPECT_EQ(menus, (Lines{"File", "Edit", "Window", "Help"}));
    EXPECT_EQ(
        Items(Menu("mnuFile")),
        (Lines{"New Client | Ctrl+N", "Open Existing Client | Ctrl+O", "Close Current Client | Ctrl+W", "-",
               "Save Current Information | Ctrl+S", "Save As (Current Information) | Ctrl+Shift+S", "-",
               "Export Summary | Ctrl+E", "-", "Print Data Summary | Ctrl+P", "-", "Exit | Ctrl+Q"}));
    EXPECT_EQ(Items(Menu("mnuEdit")), (Lines{"Undo | Ctrl+Z", "-", "Cut | Ctrl+X", "Copy | Ctrl+C",
                                             "Paste | Ctrl+V", "Paste Special..."}));
    EXPECT_EQ(Items(Menu("mnuWindow")), (Lines{"Data Entry | Ctrl+D", "View Report | Ctrl+R",
                                               "Soil Intake Settings", "User Settings"}));
    EXPECT_EQ(Items(Menu("mnuHelp")), (Lines{"Instructions | F1", "-", "About ORVEL"}));
    for (const char* caption :
         {"E&xit", "&Undo", "Cu&t", "&Copy", "&Paste", "Paste &Special...", "&About ORVEL"}) {
        const QList<QAction*> all = window.findChildren<QAction*>();
        EXPECT_TRUE(std::any_of(all.begin(), all.end(), [&](const QAction* each) {
            return each->text() == caption;
        })) << caption;
    }
}

TEST_F(MainWindow, NamesItsControlsAsTheProgramDoes) {
    struct Caption {
        const char* name;
        const char* text;
    };
    EXPECT_EQ(window.windowTitle(), "ORVEL");
    for (const Caption& each : {Caption{"Frame2", "Step 1: Choose Type File to Work With"},
                                {"Frame3", "Step 2: Enter Data or Edit Existing Data (if needed)"},
                                {"Frame1", "Step 3: Create New Data or Open Existing Data File"},
                                {"Frame4", "Step 4: Create Report"}}) {
        EXPECT_EQ(Find<QGroupBox>(window, each.name).title().toStdString(), each.text);
    }
    for (const Caption& each : {Caption{"OptBtnCenterPivot", "Center Pivot System"},
                                {"OptBtnSolidSet", "Solid Set System"},
                                {"cmdBtnEditExisting", "Edit Data"},
                                {"cmdBtnNewDataFile", "New Data File"},
                                {"cmdBtnOpenFile", "Open Existing Data File"},
                                {"cmdBtnGenerateReport", "Generate Report"}}) {
        EXPECT_EQ(Find<QAbstractButton>(window, each.name).text().remove('&').toStdString(), each.text);
    }
    for (const char* name :
         {"mnuFileNew", "mnuFileOpen", "mnuFileClose", "mnuFileSave", "mnuFileSaveAs", "mnuExportSummary",
          "mnuDataPrint", "mnuFileExit", "mnuDataEntry", "mnuViewReport", "mnuSoilIntake", "mnuUserSettings",
          "mnuInstructions", "mnuHelpAbout"}) {
        EXPECT_NE(window.findChild<QAction*>(name), nullptr) << name;
    }
}

TEST_F(MainWindow, CanBeUsedByKeyboardAndScreenReader) {
    ExpectReachable(window);
    // Tab stops once at the options; the arrow keys go from one to the other.
    EXPECT_EQ(TabOrder(window), (Lines{"OptBtnCenterPivot", "cmdBtnEditExisting", "cmdBtnNewDataFile",
                                       "cmdBtnOpenFile", "cmdBtnGenerateReport"}));
}

TEST_F(MainWindow, FramesStandInTheOrderOfTheirSteps) {
    int above = -1;
    for (const char* frame : {"Frame2", "Frame3", "Frame1", "Frame4"}) {
        const int top = Find<QGroupBox>(window, frame).y();
        EXPECT_GT(top, above) << frame;
        above = top;
    }
}

TEST_F(MainWindow, StartsWithTheCenterPivotKind) {
    EXPECT_TRUE(Find<QRadioButton>(window, "OptBtnCenterPivot").isChecked());
    EXPECT_EQ(Status(), "Open or Create New Data File to Begin");
}

TEST_F(MainWindow, TheOptionsChooseTheKind) {
    Click("OptBtnSolidSet");
    EXPECT_EQ(Program().testKind, "solidSet");
    Click("OptBtnCenterPivot");
    EXPECT_EQ(Program().testKind, "centerPivot");
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return Program().testKind == "solidSet"; }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_EQ(Program().testKind, "centerPivot");
}

TEST_F(MainWindow, TheButtonsDoWhatTheyAreFor) {
    const char* noFile =
        "box [No Data File Open] Please create a new file or open an existing file first (Ok)";
    Click("cmdBtnEditExisting");
    EXPECT_EQ(Said(), (Lines{noFile}));
    surroundings.paths = {{}, {}};
    Click("cmdBtnNewDataFile");
    EXPECT_EQ(Status(), "No File Open");
    Click("cmdBtnOpenFile");
    EXPECT_EQ(Said().size(), 2U);
    Click("cmdBtnGenerateReport");
    EXPECT_EQ(Said().size(), 1U);
    window.OpenGivenFile(testing::Example("pivot-1978.cpd"));
    surroundings.replies = {Reply::No};
    Click("cmdBtnOpenFile");
    EXPECT_EQ(Said(), (Lines{"box [Open File] Close current file and open a new file? (YesNo)"}));
}

TEST_F(MainWindow, EveryMenuItemHasItsCommand) {
    struct Case {
        const char* action;
        const char* line;
        bool isDialog = false;
    };
    for (const Case& each :
         {Case{"mnuFileNew", "save [Create New Data File - Center Pivot System]", true},
          {"mnuFileOpen", "open [Open Center Pivot Data]", true},
          {"mnuFileSaveAs", "save [Save Center Pivot Data As - Enter File Name]", true},
          {"mnuExportSummary", "save [Save Center Pivot Data As - Enter File Name] Text", true},
          {"mnuDataPrint", "box [No Open File]"},
          {"mnuFileExit", "end"},
          {"mnuEditUndo", "Ctrl+Z"},
          {"mnuEditCut", "Ctrl+X"},
          {"mnuEditCopy", "Ctrl+C"},
          {"mnuEditPaste", "Ctrl+V"},
          {"mnuViewReport", "box [No Data File Open]"},
          {"mnuSoilIntake", "show frmSoilIntake"},
          {"mnuUserSettings", "show frmUserData"},
          {"mnuInstructions", "view Help"},
          {"mnuHelpAbout", "show frmAbout"}}) {
        if (each.isDialog) {
            surroundings.paths = {{}};
        }
        Find<QAction>(window, each.action).trigger();
        const Lines said = Said();
        ASSERT_EQ(said.size(), 1U) << each.action;
        EXPECT_TRUE(said[0].starts_with(each.line)) << said[0];
    }
    Find<QAction>(window, "mnuFileClose").trigger();
    EXPECT_EQ(Status(), "No File Open");
    Find<QAction>(window, "mnuEditPasteSpecial").trigger();
    Find<QAction>(window, "mnuFileSave").trigger();
    EXPECT_EQ(Said(), Lines{});
    surroundings.replies = {Reply::No, Reply::No};
    Find<QAction>(window, "mnuDataEntry").trigger();
    EXPECT_EQ(Said().size(), 2U);
}

TEST_F(MainWindow, SaveWritesTheOpenTest) {
    std::filesystem::copy_file(testing::Example("pivot-1978.cpd"), folder / "a.cpd");
    window.OpenGivenFile(folder / "a.cpd");
    Program().centerPivotTest.ClientName = "Somebody else";
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(testing::Contents(folder / "a.cpd").substr(0, 13), "Somebody else");
}

TEST_F(MainWindow, MenusOpenByKeyboard) {
    Choose(Qt::Key_W, Qt::Key_S);
    EXPECT_EQ(Said(), (Lines{"show frmSoilIntake"}));
    Choose(Qt::Key_F, Qt::Key_X);
    EXPECT_EQ(Said(), (Lines{"end"}));
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_EQ(Said(), (Lines{"view Help"}));
}

TEST_F(MainWindow, MnemonicsAreUniqueWithinAMenu) {
    for (const char* name : {"mnuFile", "mnuEdit", "mnuWindow", "mnuHelp"}) {
        std::set<QString> letters;
        for (const QAction* action : Menu(name).actions()) {
            if (!action->isSeparator()) {
                const QString letter = QKeySequence::mnemonic(action->text()).toString();
                EXPECT_TRUE(!letter.isEmpty() && letters.insert(letter).second)
                    << action->text().toStdString();
            }
        }
    }
}

TEST_F(MainWindow, ShowsTheOpenFileWhenItIsActivated) {
    window.OpenGivenFile(testing::Example("solid-set-1997.ssd"));
    EXPECT_EQ(Status(), "File: solid-set-1997.ssd");
    EXPECT_TRUE(Find<QRadioButton>(window, "OptBtnSolidSet").isChecked());
    Program().solidSetFile = "/somewhere/else.ssd";
    QWidget other;
    ShowActive(other);
    ShowActive(window);
    EXPECT_EQ(Status(), "File: else.ssd");
}

TEST_F(MainWindow, ClosingItUnloadsTheOthersAndEndsTheProgram) {
    QTimer::singleShot(0, [this] { window.close(); });
    EXPECT_EQ(RunToItsEnd(), EXIT_SUCCESS);
    EXPECT_EQ(Said(), (Lines{"unload others"}));
}

} // namespace

} // namespace orvel
