// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SplashWindow.h"

#include "core/Version.h"
#include "tests/ui/WidgetTest.h"
#include "ui/AboutDialog.h"

#include <QPushButton>
#include <QTest>

namespace orvel {

namespace {

class SplashAndAbout : public testing::WidgetTest {};

TEST_F(SplashAndAbout, TheSplashWindowShowsTheVersionAndIsNotAlwaysOnTop) {
    int closings = 0;
    ui::SplashWindow splash([&closings] { ++closings; });
    splash.show();
    EXPECT_EQ(Find<QLabel>(splash, "lblTitle").text(), "ORVEL");
    EXPECT_EQ(Find<QLabel>(splash, "lblVersion").text().toStdString(), VersionText());
    EXPECT_FALSE(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint)) << "it would cover message boxes";
    QTest::mouseClick(&Find<QLabel>(splash, "imgLogo"), Qt::LeftButton);
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(closings, 0);
    EXPECT_EQ(splash.windowTitle(), "ORVEL");
    EXPECT_TRUE(splash.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    splash.close();
    EXPECT_EQ(closings, 1);
    splash.show();
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_EQ(closings, 2);
}

TEST_F(SplashAndAbout, TheAboutBoxClosesByItsButtonAndByEscape) {
    ui::AboutDialog about(nullptr);
    EXPECT_EQ(about.windowTitle(), "About ORVEL");
    EXPECT_EQ(Find<QLabel>(about, "lblTitle").text(), "ORVEL");
    EXPECT_EQ(Find<QLabel>(about, "lblVersion").text().toStdString(), VersionText());
    EXPECT_EQ(Find<QLabel>(about, "lblDescription").text(),
              "Evaluates field irrigation systems from catch-can tests.");
    EXPECT_EQ(Find<QLabel>(about, "lblLicence").text(), "Copyright 2026 The ORVEL developers. MIT licence.");
    EXPECT_EQ(Find<QPushButton>(about, "cmdOK").text(), "OK");
    ShowActive(about);
    ExpectReachable(about);
    QTest::mouseClick(&Find<QPushButton>(about, "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    ShowActive(about);
    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
    EXPECT_EQ(surroundings.Said(), testing::Lines{});
}

} // namespace

} // namespace orvel
