// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Desktop.h"

#include "centerpivot/CenterPivotSummary.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/Version.h"
#include "solidset/SolidSetSummary.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>
#include <QTimer>

namespace orvel::ui {

namespace {

using testing::WhileModal;

// The whole program but its process, with complete settings.
class DesktopProgram : public testing::WidgetTest {
protected:
    DesktopProgram() {
        Program().programDirectory = folder.Path();
        SaveUserSettings(testing::CompleteUserSettings());
        desktop = std::make_unique<Desktop>();
    }

    ~DesktopProgram() override {
        // What the report's window left behind.
        QSettings(QSettings::NativeFormat, QSettings::UserScope, kProgramTitle, kProgramTitle).clear();
    }

    static QWidget* WindowOfName(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && window->isVisible()) {
                return window;
            }
        }
        return nullptr;
    }

    testing::TemporaryFolder folder;
    std::unique_ptr<Desktop> desktop;
};

TEST_F(DesktopProgram, ClosingTheSplashWindowEndsTheProgramBeforeItBegins) {
    QTimer::singleShot(0, [] { QTest::keyClick(WindowOfName("frmSplash"), Qt::Key_Escape); });
    EXPECT_EQ(desktop->Execute(std::nullopt), EXIT_SUCCESS);
    EXPECT_EQ(WindowOfName("frmMain"), nullptr);
}

TEST_F(DesktopProgram, TheMainWindowIsLoadedWhenItIsShownFirst) {
    desktop->ShowMain();
    EXPECT_EQ(Program().userSettings.Name.Trimmed(), "Ida Lund");
    EXPECT_NE(WindowOfName("frmMain"), nullptr);
    Program().userSettings.Name = "Somebody else";
    desktop->ShowMain();
    EXPECT_EQ(Program().userSettings.Name.Trimmed(), "Somebody else");
}

TEST_F(DesktopProgram, TheUnderlinedLetterOfAButtonClicksItAtOnce) {
    desktop->ShowMain();
    QWidget& window = *WindowOfName("frmMain");
    ShowActive(window);
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Program().testKind, kSolidSet);
    EXPECT_TRUE(Find<QRadioButton>(window, "OptBtnSolidSet").hasFocus());
    // The button of a box, too.
    Reply reply = Reply::None;
    WhileModal(
        [&] {
            reply = CurrentPlatform().messageBox->Show({"Yes?", "Title", Buttons::YesNo, Icon::Question});
        },
        [](QWidget& box) {
            box.activateWindow();
            EXPECT_TRUE(QTest::qWaitFor([&box] { return box.isActiveWindow(); }));
            QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
            EXPECT_FALSE(box.isVisible());
        });
    EXPECT_EQ(reply, Reply::No);
}

TEST_F(DesktopProgram, SummariesAreThoseOfTheirKind) {
    Program().centerPivotTest = ReadTest<CenterPivotTest>(testing::Example("pivot-1978.cpd"));
    Program().solidSetTest = ReadTest<SolidSetTest>(testing::Example("solid-set-1997.ssd"));
    const std::string pivot = desktop->BuildCenterPivotSummary();
    EXPECT_EQ(pivot, orvel::BuildCenterPivotSummary());
    EXPECT_NE(pivot, desktop->BuildSolidSetSummary());
    EXPECT_EQ(desktop->BuildSolidSetSummary(), orvel::BuildSolidSetSummary());
}

TEST_F(DesktopProgram, EachWindowIsShownUntilItIsClosed) {
    struct Case {
        void (Desktop::*show)();
        const char* window;
    };
    for (const Case& each : {Case{&Desktop::ShowUserData, "frmUserData"},
                             {&Desktop::ShowSoilIntake, "frmSoilIntake"},
                             {&Desktop::ShowAbout, "frmAbout"}}) {
        Program().userSettings = testing::CompleteUserSettings();
        WhileModal([&] { (*desktop.*each.show)(); },
                   [&](QWidget& window) {
                       EXPECT_EQ(window.objectName(), each.window);
                       QTest::keyClick(&window, Qt::Key_Escape);
                   });
    }
}

TEST_F(DesktopProgram, ADataWindowIsShownUntilItsQuestionIsAnswered) {
    struct Case {
        void (Desktop::*show)();
        const char* window;
    };
    for (const Case& each : {Case{&Desktop::ShowCenterPivotData, "frmCenterPivotData"},
                             {&Desktop::ShowSolidSetData, "frmSolidSetData"}}) {
        WhileModal([&] { (*desktop.*each.show)(); },
                   [&](QWidget& window) {
                       EXPECT_EQ(window.objectName(), each.window);
                       auto& close = Find<QPushButton>(window, "cmdBtnCloseWithoutSaving");
                       WhileModal([&] { close.click(); },
                                  [](QWidget& question) {
                                      dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
                                  });
                   });
    }
}

TEST_F(DesktopProgram, TheReportIsShownOnceAndBuiltAnewWhenAskedForAgain) {
    desktop->ShowMain();
    Program().testKind = "";
    desktop->ShowReport();
    QWidget* report = WindowOfName("frmReport");
    ASSERT_NE(report, nullptr);
    EXPECT_FALSE(report->isModal());
    Find<QAction>(*report, "Lock").trigger();
    desktop->ShowReport();
    EXPECT_EQ(WindowOfName("frmReport"), report);
    EXPECT_TRUE(Find<QAction>(*report, "Lock").isChecked());
    report->close();
    EXPECT_EQ(WindowOfName("frmReport"), nullptr);
    desktop->ShowReport();
    EXPECT_NE(WindowOfName("frmReport"), nullptr) << "another one";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_NE(WindowOfName("frmReport"), nullptr) << "not the closed one";
}

TEST_F(DesktopProgram, TheViewerIsOneWindowForAllTopics) {
    desktop->ShowMain();
    desktop->ShowViewer(kViewHelp);
    QWidget* viewer = WindowOfName("frmShowRTF");
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer->windowTitle(), "No Help File Available");
    EXPECT_EQ(viewer->parentWidget(), nullptr);
    desktop->ShowViewer(kViewCenterPivotData);
    EXPECT_EQ(WindowOfName("frmShowRTF"), viewer);
    EXPECT_EQ(viewer->windowTitle(), "Center Pivot Data - ");
    viewer->close();
    desktop->ShowViewer(kViewHelp);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_NE(WindowOfName("frmShowRTF"), nullptr);
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST_F(DesktopProgram, AViewerOfAModalWindowBelongsToItAndClosesWithIt) {
    desktop->ShowMain();
    desktop->ShowViewer(kViewHelp);
    WhileModal([&] { desktop->ShowUserData(); },
               [&](QWidget& window) {
                   desktop->ShowViewer(kViewHelp);
                   QWidget* viewer = WindowOfName("frmShowRTF");
                   ASSERT_NE(viewer, nullptr);
                   EXPECT_EQ(viewer->parentWidget(), &window);
                   desktop->ShowViewer(kViewHelp);
                   EXPECT_EQ(WindowOfName("frmShowRTF"), viewer) << "still the same";
                   QTest::keyClick(&window, Qt::Key_Escape);
               });
    EXPECT_EQ(WindowOfName("frmShowRTF"), nullptr);
    desktop->ShowViewer(kViewHelp);
    EXPECT_NE(WindowOfName("frmShowRTF"), nullptr);
}

TEST_F(DesktopProgram, EndingItClosesReportAndViewerAndKeepsThePlaceOfTheReport) {
    desktop->ShowMain();
    Program().testKind = "";
    desktop->ShowReport();
    WindowOfName("frmReport")->resize(777, 555);
    desktop->ShowViewer(kViewHelp);
    desktop->EndProgram();
    EXPECT_EQ(WindowOfName("frmReport"), nullptr);
    EXPECT_EQ(WindowOfName("frmShowRTF"), nullptr);
    EXPECT_EQ(QtSettingsStore().Get("Settings", "MainWidth", ""), "11655");
    EXPECT_EQ(QtSettingsStore().Get("Settings", "MainHeight", ""), "8325");
}

TEST_F(DesktopProgram, EndingItClosesEveryWindow) {
    desktop->ShowMain();
    QWidget other;
    other.show();
    QTimer::singleShot(0, [this] { desktop->EndProgram(); });
    EXPECT_EQ(RunToItsEnd(), EXIT_SUCCESS);
    EXPECT_FALSE(other.isVisible());
    EXPECT_EQ(WindowOfName("frmMain"), nullptr);
}

} // namespace

} // namespace orvel::ui
