// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/EveryWindow.h"

#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/MainWindow.h"
#include "ui/QtPlatform.h"
#include "ui/ReportWindow.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/SplashWindow.h"
#include "ui/UserDataDialog.h"
#include "ui/ViewerWindow.h"

#include <QApplication>
#include <QScreen>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace orvel::testing {

namespace {

// Until the layout has come to rest: a control may find out how large it is when it is shown first.
void Settle(const QWidget& window) {
    constexpr int kRoundsAtRest = 3;
    std::vector<QRect> places;
    for (int rounds = 0; rounds < kRoundsAtRest; ++rounds) {
        QTest::qWait(1);
        std::vector<QRect> now;
        for (const QWidget* control : window.findChildren<QWidget*>()) {
            now.push_back(control->geometry());
        }
        if (now != places) {
            places = std::move(now);
            rounds = 0;
        }
    }
}

} // namespace

EveryWindow::EveryWindow() {
    Program().programDirectory = folder.Path();
    SaveUserSettings(CompleteUserSettings());
    LoadSoilTable();
    Platform platform = CurrentPlatform();
    platform.settingsStore = &store;
    UsePlatform(platform);
}

void EveryWindow::SetUp() {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QString size = QString("%1x%2").arg(screen.width()).arg(screen.height());
    ASSERT_EQ(size, qEnvironmentVariable("ORVEL_SCREEN", size));
}

void EveryWindow::ForEach(const Look& look) {
    {
        ui::SplashWindow splash([] {});
        LookAt(splash, look);
    }
    {
        ui::MainWindow main(surroundings);
        main.Load();
        LookAt(main, look);
    }
    {
        ui::AboutDialog about(nullptr);
        LookAt(about, look);
    }
    {
        ui::UserDataDialog settings(nullptr);
        LookAt(settings, look);
    }
    {
        ui::SoilIntakeDialog soils(nullptr);
        LookAt(soils, look);
    }
    LookAtPages<ui::CenterPivotDataDialog>(kCenterPivot, "pivot-1978.cpd", look);
    LookAtPages<ui::SolidSetDataDialog>(kSolidSet, "solid-set-1997.ssd", look);
    {
        OpenPivot();
        // It deletes itself.
        auto* report = new ui::ReportWindow(surroundings);
        report->Load();
        LookAt(*report, look);
        report->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    {
        ui::ViewerWindow viewer(nullptr);
        viewer.ShowTopic(kViewHelp);
        LookAt(viewer, look);
    }
    LookAtBoxes(look);
    Said();
}

std::filesystem::path EveryWindow::OpenCopy(const char* kind, const char* example) {
    const std::filesystem::path place = Folder() / std::to_string(++copies);
    std::filesystem::create_directory(place);
    const std::filesystem::path copy = place / example;
    std::filesystem::copy_file(Example(example), copy);
    Program().testKind = kind;
    OpenTestFile(copy);
    return copy;
}

template <class Dialog>
void EveryWindow::LookAtPages(const char* kind, const char* example, const Look& look) {
    constexpr int kTestPage = 3;
    OpenCopy(kind, example);
    Dialog dialog(nullptr, surroundings);
    auto& pages = Find<QTabWidget>(dialog, "tabPages");
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        LookAt(dialog, look);
    }
    pages.setCurrentIndex(kTestPage);
    auto& grid = Find<QTableView>(dialog, "gridTest");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_5);
    ASSERT_TRUE(Find<QLineEdit>(dialog, "txtEdit").isVisible());
    Settle(dialog);
    look(dialog, "cell editor of " + dialog.objectName().toStdString());
    QTest::keyClick(&Find<QLineEdit>(dialog, "txtEdit"), Qt::Key_Escape);
}

void EveryWindow::LookAtBoxes(const Look& look) {
    std::string warnings;
    for (int gauge = 1; gauge <= 100; ++gauge) {
        warnings += "The Value For Gauge " + std::to_string(gauge) + " May be Low (<50% of Average).\r\n";
    }
    for (const Message& message : {Message{"Really close without saving data?", "Close Data Window",
                                           Buttons::YesNoCancel, Icon::Question},
                                   Message{warnings, "Data Warnings", Buttons::Ok, Icon::Warning}}) {
        WhileModal([&] { ui::QtMessageBox().Show(message); },
                   [&](QWidget& box) {
                       LookAt(box, look);
                       box.close();
                   });
    }
}

void EveryWindow::LookAt(QWidget& window, const Look& look) {
    ShowActive(window);
    Settle(window);
    std::string where = window.objectName().isEmpty() ? "box " + window.windowTitle().toStdString()
                                                      : window.objectName().toStdString();
    if (const auto* pages = window.findChild<QTabWidget*>()) {
        where += ", " + pages->tabText(pages->currentIndex()).remove('&').toStdString();
    }
    look(window, where);
}

} // namespace orvel::testing
