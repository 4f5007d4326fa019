// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/ReportWindow.h"

#include "report/MemoryRichTextBox.h"
#include "report/RtfReader.h"
#include "tests/support/OpenedExamples.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <map>

namespace orvel {

namespace {

using testing::Lines;

class Store : public SettingsStore {
public:
    std::map<std::string, std::string> values;

    std::string Get(const std::string& /*section*/, const std::string& key,
                    const std::string& fallback) override {
        const auto found = values.find(key);
        return found == values.end() ? fallback : found->second;
    }
    void Save(const std::string& /*section*/, const std::string& key, const std::string& value) override {
        values[key] = value;
    }
};

class ReportWindow : public testing::WidgetTest, public testing::OpenedExamples {
protected:
    ReportWindow() {
        Platform platform = CurrentPlatform();
        platform.settingsStore = &store;
        UsePlatform(platform);
    }

    ~ReportWindow() override { delete window; }

    void Open() {
        window = new ui::ReportWindow(surroundings);
        window->Load();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    }

    // A report of nothing.
    void OpenEmpty() {
        Program().testKind = "";
        Open();
    }

    void ShowPivot() {
        OpenPivot();
        Open();
    }

    void ShowSolid() {
        OpenSolid();
        Open();
        Said(); // the warnings about its catches
    }

    ui::RichTextEdit& Report() {
        return *dynamic_cast<ui::RichTextEdit*>(&Find<QWidget>(*window, "ReportRTB"));
    }
    QToolButton& Button(const char* key) {
        auto* action = window->findChild<QAction*>(key);
        return dynamic_cast<QToolButton&>(*Find<QToolBar>(*window, "tbToolBar").widgetForAction(action));
    }
    void Click(const char* key) { QTest::mouseClick(&Button(key), Qt::LeftButton); }
    void Choose(const char* action) { Find<QAction>(*window, action).trigger(); }
    std::string Status() { return Find<QLabel>(*window, "sbStatusBar").text().toStdString(); }

    RichDocument Shown() {
        Report().Save(folder / "shown.rtf");
        return ReadRtf(testing::Contents(folder / "shown.rtf"));
    }

    testing::TemporaryFolder folder;
    Store store;
    QPointer<ui::ReportWindow> window;
};

TEST_F(ReportWindow, HasItsMenusInOrder) {
    OpenEmpty();
    Lines menus;
    for (const QAction* menu : window->menuBar()->actions()) {
        menus.push_back(menu->text().toStdString());
    }
    EXPECT_EQ(menus, (Lines{"&File", "&Edit", "&Window", "&Help"}));
    EXPECT_EQ(Items(Find<QMenu>(*window, "mnuFile")),
              (Lines{"Open... | Ctrl+O", "Close", "-", "Refresh Report Computation | F5", "-",
                     "Save As... | Ctrl+Shift+S", "Save as HTML...", "-", "Print... | Ctrl+P", "-",
                     "Close Report | Ctrl+W"}));
    EXPECT_EQ(Items(Find<QMenu>(*window, "mnuEdit")),
              (Lines{"Undo | Ctrl+Z", "-", "Cut | Ctrl+X", "-", "Copy | Ctrl+C", "Copy Report", "-",
                     "Paste | Ctrl+V"}));
    EXPECT_EQ(Items(Find<QMenu>(*window, "mnuWindow")),
              (Lines{"Main Window", "Data Entry | Ctrl+D", "Instructions"}));
    EXPECT_EQ(Items(Find<QMenu>(*window, "mnuHelp")), (Lines{"Instructions | F1", "About"}));
    for (const char* caption : {"&Open...", "&Close", "Save &As...", "&Print...", "&Copy Report", "&About"}) {
        const QList<QAction*> all = window->findChildren<QAction*>();
        EXPECT_TRUE(std::any_of(all.begin(), all.end(), [&](const QAction* each) {
            return each->text() == caption;
        })) << caption;
    }
}

TEST_F(ReportWindow, NoTwoItemsOfAMenuHaveOneLetter) {
    OpenEmpty();
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        std::map<QString, QString> letters;
        for (const QAction* item : menu->actions()) {
            const QString letter = QKeySequence::mnemonic(item->text()).toString();
            if (!letter.isEmpty()) {
                EXPECT_TRUE(letters.emplace(letter, item->text()).second) << item->text().toStdString();
            }
        }
    }
}

TEST_F(ReportWindow, HasItsToolsInOrder) {
    OpenEmpty();
    Lines tools;
    for (const QAction* tool : Find<QToolBar>(*window, "tbToolBar").actions()) {
        if (tool->isSeparator()) {
            tools.push_back("-");
            continue;
        }
        tools.push_back(tool->objectName().toStdString());
        EXPECT_FALSE(tool->icon().pixmap(16).isNull()) << tools.back();
        EXPECT_GT(tool->toolTip().size(), tool->text().size()) << tools.back();
        EXPECT_EQ(tool->isCheckable(),
                  tools.back() == "Bold" || tools.back() == "Italic" || tools.back() == "Lock");
    }
    EXPECT_EQ(tools, (Lines{"Back", "-", "Open", "Save", "Print", "-", "Bold", "Italic", "Lock", "-", "Help",
                            "Refresh"}));
}

TEST_F(ReportWindow, ShowsNamesAsTheyAreAndItsToolsInTheirPlace) {
    OpenEmpty();
    EXPECT_EQ(Find<QLabel>(*window, "sbStatusBar").textFormat(), Qt::PlainText);
    EXPECT_FALSE(Find<QToolBar>(*window, "tbToolBar").isMovable());
}

TEST_F(ReportWindow, CanBeUsedByKeyboardAndScreenReader) {
    ShowPivot();
    ExpectReachable(*window);
    ShowActive(*window);
    EXPECT_TRUE(Report().hasFocus());
    EXPECT_EQ(Report().accessibleName(), "Report");
    QTest::keyClick(window, Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(Button("Bold").isChecked());
    QTest::keyClick(window, Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(Button("Italic").isChecked());
    QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
    EXPECT_FALSE(Button("Lock").isChecked());
    Button("Lock").setFocus();
    QTest::keyClick(&Button("Lock"), Qt::Key_Space);
    EXPECT_TRUE(Button("Lock").isChecked());
    Click("Bold");
    EXPECT_TRUE(Button("Lock").hasFocus()) << "a click leaves the focus where it was";
}

TEST_F(ReportWindow, ShowsTheReportWithItsMarksAndLocked) {
    ShowPivot();
    EXPECT_EQ(window->windowTitle(), "Report");
    EXPECT_EQ(Status(), "Current File: pivot-1978.cpd");
    EXPECT_TRUE(Report().IsReadOnly());
    EXPECT_TRUE(Button("Lock").isChecked());
    EXPECT_FALSE(Button("Bold").isChecked());
    EXPECT_FALSE(Button("Italic").isChecked());
    MemoryRichTextBox expected;
    ReportBuilder(expected).BuildCenterPivotReport();
    EXPECT_EQ(Report().Text(), expected.Text());
    EXPECT_EQ(Shown(), expected.Document());
}

TEST_F(ReportWindow, ShowsASolidSetReportWithItsMarks) {
    ShowSolid();
    MemoryRichTextBox expected;
    ReportBuilder(expected).BuildSolidSetReport();
    EXPECT_EQ(Status(), "Current File: solid-set-triangle.ssd");
    EXPECT_EQ(Shown(), expected.Document());
    Said();
}

TEST_F(ReportWindow, BoldAndItalicChangeTheWholeTextAndTheirButtons) {
    ShowPivot();
    const auto isAll = [this](bool CharacterFormat::*property) {
        for (const Paragraph& paragraph : Shown().paragraphs) {
            for (const TextRun& run : paragraph.runs) {
                if (!(run.format.*property)) {
                    return false;
                }
            }
        }
        return true;
    };
    const RichDocument before = Shown();
    Click("Bold");
    EXPECT_TRUE(isAll(&CharacterFormat::isBold));
    EXPECT_TRUE(Button("Bold").isChecked());
    Click("Italic");
    EXPECT_TRUE(isAll(&CharacterFormat::isItalic));
    EXPECT_TRUE(Button("Italic").isChecked());
    Click("Bold");
    Click("Italic");
    EXPECT_FALSE(Button("Bold").isChecked());
    EXPECT_FALSE(Button("Italic").isChecked());
    EXPECT_EQ(Shown(), before);
}

TEST_F(ReportWindow, ItsCommandsReachTheLogic) {
    OpenEmpty();
    struct Case {
        const char* action;
        Lines lines;
    };
    for (const Case& each : {Case{"mnuUndo", {"Ctrl+Z"}},
                             {"mnuCut", {"Ctrl+X"}},
                             {"mnuCopy", {"Ctrl+C"}},
                             {"mnuEditCopy", {}},
                             {"mnuPaste", {"Ctrl+V"}},
                             {"mnuMainWindow", {"show frmMain"}},
                             {"mnuInstructions", {"view Help"}},
                             {"mnuHelpContents", {"view Help"}},
                             {"Help", {"view Help"}},
                             {"mnuHelpAbout", {"show frmAbout"}}}) {
        Choose(each.action);
        EXPECT_EQ(Said(), each.lines) << each.action;
    }
    for (const char* action : {"mnuFileOpen", "Open"}) {
        surroundings.paths = {{}};
        Choose(action);
        EXPECT_EQ(Said().at(0).substr(0, 16), "open [Open File]") << action;
    }
    for (const char* action : {"mnuFileSaveAs", "Save", "mnuSaveHTML"}) {
        surroundings.paths = {{}};
        Choose(action);
        EXPECT_EQ(Said().at(0).substr(0, 13), "save [Save Re") << action;
    }
}

TEST_F(ReportWindow, AnErrorInTheMiddleOfAReportEmptiesItAndTheNextOneShows) {
    ShowSolid();
    Program().solidSetTest.NumberX = "";
    Choose("mnuRefreshReport");
    EXPECT_EQ(Report().toPlainText(), "");
    EXPECT_EQ(Said(),
              (Lines{"box [Error] Sorry, an error occurred generating report...|Error Number: 13|Error "
                     "Description: Type mismatch|Error Source: ORVEL| (Ok, Critical)"}));
    OpenSolid();
    Choose("mnuRefreshReport");
    Said(); // the warnings about its catches
    EXPECT_TRUE(Report().toPlainText().contains("Uniformity Analysis - Representative Layout"));
}

TEST_F(ReportWindow, RefreshAndCloseChangeTheText) {
    ShowPivot();
    for (const char* refresh : {"mnuRefreshReport", "Refresh"}) {
        Choose("mnuFileClose");
        EXPECT_EQ(Report().Text(), "");
        EXPECT_TRUE(window->isVisible());
        Choose(refresh);
        EXPECT_NE(Report().Text(), "") << refresh;
    }
}

TEST_F(ReportWindow, UnlockedItTakesWhatIsTypedUntilItIsBuiltAnew) {
    ShowPivot();
    ShowActive(*window);
    QTest::keyClicks(&Report(), "Typed");
    EXPECT_EQ(Report().Text().find("Typed"), std::string::npos);
    Click("Lock");
    QTest::keyClicks(&Report(), "Typed <50% ");
    EXPECT_TRUE(Report().Text().starts_with("Typed <50% "));
    EXPECT_EQ(Shown().paragraphs.front().runs.front().text.substr(0, 11), U"Typed <50% ");
    window->ShowAgain();
    EXPECT_EQ(Report().Text().find("Typed"), std::string::npos);
    EXPECT_TRUE(Report().IsReadOnly());
    EXPECT_TRUE(Button("Lock").isChecked());
}

TEST_F(ReportWindow, CloseReportAndBackCloseItForGood) {
    for (const char* action : {"mnuFileExit", "Back"}) {
        OpenEmpty();
        Choose(action);
        EXPECT_FALSE(window->isVisible()) << action;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(window, nullptr) << action;
    }
}

TEST_F(ReportWindow, TakesItsPlaceFromTheStoreAndLeavesItThere) {
    store.values = {{"MainLeft", "1500"}, {"MainTop", "750"}, {"MainWidth", "10500"}, {"MainHeight", "6000"}};
    OpenEmpty();
    EXPECT_EQ(window->size(), QSize(700, 400));
    EXPECT_EQ(window->pos(), QPoint(100, 50));
    window->resize(720, 410);
    window->move(90, 60);
    window->close();
    EXPECT_EQ(store.values,
              (std::map<std::string, std::string>{
                  {"MainLeft", "1350"}, {"MainTop", "900"}, {"MainWidth", "10800"}, {"MainHeight", "6150"}}));
}

TEST_F(ReportWindow, IsNeverSmallerThanItsLeastSize) {
    OpenEmpty();
    EXPECT_EQ(window->size(), QSize(644, 433)) << "6500 by 6500 twips are less wide than 9660";
    window->resize(100, 100);
    EXPECT_EQ(window->size(), QSize(644, 280));
}

TEST_F(ReportWindow, MinimizedItKeepsWhatWasKept) {
    store.values = {{"MainLeft", "1500"}};
    OpenEmpty();
    window->showMinimized();
    window->close();
    EXPECT_EQ(store.values, (std::map<std::string, std::string>{{"MainLeft", "1500"}}));
}

TEST_F(ReportWindow, AskedForAgainItIsNoLongerMinimized) {
    OpenEmpty();
    window->showMinimized();
    window->ShowAgain();
    EXPECT_FALSE(window->isMinimized());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ReportWindow, OutOfReachItComesToTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const char* left : {"-300000", "300000"}) {
        store.values = {{"MainLeft", left}, {"MainTop", "1500"}};
        OpenEmpty();
        EXPECT_EQ(window->pos(), screen.topLeft()) << left;
        delete window;
    }
    // Too little to grab: 20 pixels of the width, 20 of the title's height.
    for (const auto& [left, top] :
         {std::pair{15 * (screen.right() - 20), 1500}, {1500, 15 * (screen.bottom() - 20)}}) {
        store.values = {{"MainLeft", std::to_string(left)}, {"MainTop", std::to_string(top)}};
        OpenEmpty();
        EXPECT_EQ(window->pos(), screen.topLeft()) << left << ", " << top;
        delete window;
    }
    store.values = {{"MainLeft", "-1500"}, {"MainTop", "1500"}};
    OpenEmpty();
    EXPECT_EQ(window->pos(), QPoint(-100, 100)) << "in reach";
}

TEST_F(ReportWindow, IsNoLargerThanItsScreenWhenItOpens) {
    store.values = {{"MainWidth", "1e9"}, {"MainHeight", "1e9"}};
    OpenEmpty();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(window->size(), screen.size() - QSize(10, 40)) << "with room for a frame";
    EXPECT_EQ(window->pos(), screen.topLeft());
}

TEST_F(ReportWindow, OverTheLowerOrRightEdgeItComesBack) {
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    store.values = {{"MainLeft", std::to_string(15 * (screen.width() - 300))},
                    {"MainTop", std::to_string(15 * (screen.height() - 200))}};
    OpenEmpty();
    EXPECT_EQ(window->pos(),
              QPoint(screen.width() - 10 - window->width(), screen.height() - 40 - window->height()));
}

TEST_F(ReportWindow, TheReportFollowsTheSizeOfTheWindow) {
    OpenEmpty();
    for (const QSize size : {QSize(644, 280), QSize(900, 700)}) {
        constexpr int kBeside = 33;        // 500 twips
        constexpr int kAboveAndBelow = 67; // 1000 twips
        const QSize expected(size.width() - kBeside,
                             size.height() - window->menuBar()->height() - kAboveAndBelow);
        window->resize(size);
        // A window manager may still tell of the size before.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Report().size() == expected; }));
        const QRect report = Report().geometry();
        EXPECT_EQ(report.size(), expected);
        const QSize area = Report().parentWidget()->size();
        EXPECT_NEAR(report.left(), area.width() - 1 - report.right(), 1) << "in the middle";
        EXPECT_LE(report.height(), area.height());
        EXPECT_GE(report.top(), 0);
    }
}

} // namespace

} // namespace orvel
