// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Desktop.h"

#include "centerpivot/CenterPivotSummary.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "solidset/SolidSetSummary.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <chrono>

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

TEST_F(DesktopProgram, WhatIsNotBuiltYetSaysSo) {
    struct Case {
        std::function<void()> show;
        const char* text;
    };
    for (const Case& each :
         {Case{[&] { desktop->ShowReport(); }, "The report window is not part of this version yet."},
          Case{[&] { desktop->ShowViewer(kViewHelp); }, "The viewer is not part of this version yet."}}) {
        WhileModal(each.show, [&](QWidget& window) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(window).text(), each.text);
            EXPECT_EQ(window.windowTitle(), "ORVEL");
            QTest::keyClick(&window, Qt::Key_Return);
        });
    }
}

TEST_F(DesktopProgram, EndingItClosesEveryWindow) {
    desktop->ShowMain();
    QWidget other;
    other.show();
    QTimer::singleShot(0, [this] { desktop->EndProgram(); });
    QTimer::singleShot(std::chrono::seconds(20), [] { QApplication::exit(EXIT_FAILURE); });
    EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
    EXPECT_FALSE(other.isVisible());
    EXPECT_EQ(WindowOfName("frmMain"), nullptr);
}

} // namespace

} // namespace orvel::ui
