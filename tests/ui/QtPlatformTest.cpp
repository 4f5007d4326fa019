// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/QtPlatform.h"

#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"
#include "ui/Menus.h"
#include "ui/RichTextEdit.h"
#include "ui/TextEdge.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

namespace orvel::ui {

namespace {

using testing::WhileModal;

class QtServices : public testing::WidgetTest {};

TEST_F(QtServices, AMessageBoxShowsItsTextAsItStands) {
    QtMessageBox service;
    WhileModal(
        [&] {
            service.Show({"<b>50%</b>\r\ntwo\rthr\xE9"
                          "e",
                          "The title", Buttons::Ok, Icon::Critical});
        },
        [](QWidget& window) {
            auto& box = dynamic_cast<QMessageBox&>(window);
            EXPECT_EQ(box.text().toStdString(), "<b>50%</b>\ntwo\nthr\u00E9e");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), "The title");
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            QTest::keyClick(&box, Qt::Key_Return);
        });
}

TEST_F(QtServices, AMessageBoxAnswersWithItsButton) {
    struct Case {
        Buttons buttons;
        QMessageBox::StandardButton pressed; // NoButton: Escape
        Reply reply;
    };
    QtMessageBox service;
    for (const Case& each : {Case{Buttons::Ok, QMessageBox::Ok, Reply::Ok},
                             {Buttons::Ok, QMessageBox::NoButton, Reply::Ok},
                             {Buttons::YesNo, QMessageBox::Yes, Reply::Yes},
                             {Buttons::YesNo, QMessageBox::No, Reply::No},
                             {Buttons::YesNo, QMessageBox::NoButton, Reply::No},
                             {Buttons::YesNoCancel, QMessageBox::Yes, Reply::Yes},
                             {Buttons::YesNoCancel, QMessageBox::No, Reply::No},
                             {Buttons::YesNoCancel, QMessageBox::Cancel, Reply::Cancel},
                             {Buttons::YesNoCancel, QMessageBox::NoButton, Reply::Cancel}}) {
        Reply reply = Reply::None;
        WhileModal(
            [&] {
                reply = service.Show({"Text", "Title", each.buttons, Icon::None});
            },
            [&](QWidget& window) {
                auto& box = dynamic_cast<QMessageBox&>(window);
                EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
                if (each.pressed == QMessageBox::NoButton) {
                    QTest::keyClick(&box, Qt::Key_Escape);
                } else {
                    box.button(each.pressed)->click();
                }
            });
        EXPECT_EQ(reply, each.reply);
    }
}

TEST_F(QtServices, AMessageBoxLetsATextScrollThatHasNoRoomOnTheScreen) {
    std::string warnings;
    for (int gauge = 1; gauge <= 300; ++gauge) {
        warnings += "The Value For Gauge " + std::to_string(gauge) + " May be Low (<50% of Average).\r\n";
    }
    QtMessageBox service;
    for (const std::string& text :
         {warnings, std::string(10'000, '1'), warnings + std::string(10'000, '1')}) {
        WhileModal(
            [&] {
                service.Show({text, "Data Warnings"});
            },
            [&](QWidget& window) {
                const auto& box = dynamic_cast<QMessageBox&>(window);
                const QRect screen = box.screen()->availableGeometry();
                EXPECT_TRUE(screen.contains(box.frameGeometry()));
                const QWidget& ok = *box.button(QMessageBox::Ok);
                EXPECT_TRUE(box.rect().contains(ok.geometry()));
                const auto* area = box.findChild<QScrollArea*>();
                ASSERT_NE(area, nullptr);
                const auto& label = dynamic_cast<QLabel&>(*area->widget());
                EXPECT_EQ(label.text(), box.text());
                EXPECT_EQ(label.textFormat(), Qt::PlainText);
                EXPECT_FALSE(box.findChild<QLabel*>("qt_msgbox_label")->isVisible());
                EXPECT_GE(label.width(),
                          label.fontMetrics().boundingRect(label.rect(), 0, box.text()).width());
                QTest::keyClick(&window, Qt::Key_Return);
            });
    }
}

TEST_F(QtServices, AMessageBoxWrapsALongSentence) {
    const std::string text = "There is no folder " + std::string(40, 'a') + " " + std::string(300, ' ') + ".";
    WhileModal(
        [&] {
            QtMessageBox().Show({text, "Open File"});
        },
        [](QWidget& window) {
            EXPECT_EQ(window.findChild<QScrollArea*>(), nullptr);
            EXPECT_TRUE(window.findChild<QLabel*>("qt_msgbox_label")->isVisible());
            QTest::keyClick(&window, Qt::Key_Return);
        });
}

TEST_F(QtServices, AMessageBoxShowsItsIcon) {
    QtMessageBox service;
    for (const auto& [icon, shown] : std::initializer_list<std::pair<Icon, QMessageBox::Icon>>{
             {Icon::None, QMessageBox::NoIcon},
             {Icon::Critical, QMessageBox::Critical},
             {Icon::Question, QMessageBox::Question},
             {Icon::Information, QMessageBox::Information},
             {Icon::Warning, QMessageBox::Warning}}) {
        WhileModal(
            [&, asked = icon] {
                service.Show({"Text", "Title", Buttons::Ok, asked});
            },
            [&, expected = shown](QWidget& window) {
                EXPECT_EQ(dynamic_cast<QMessageBox&>(window).icon(), expected);
                window.close();
            });
    }
}

TEST_F(QtServices, AMessageBoxBelongsToTheModalWindowThatIsOpen) {
    QDialog dialog;
    WhileModal([&] { dialog.exec(); },
               [](QWidget& open) {
                   WhileModal(
                       [] {
                           QtMessageBox().Show({"Text", "Title", Buttons::Ok, Icon::None});
                       },
                       [&](QWidget& box) {
                           EXPECT_EQ(box.parentWidget(), &open);
                           box.close();
                       });
                   open.close();
               });
}

TEST_F(QtServices, AMessageBoxBelongsToTheWindowInFront) {
    QWidget window;
    ShowActive(window);
    QtMessageBox service;
    WhileModal(
        [&] {
            service.Show({"Text", "Title", Buttons::Ok, Icon::None});
        },
        [&](QWidget& box) {
            EXPECT_EQ(box.parentWidget(), &window);
            box.close();
        });
}

TEST_F(QtServices, AKeyReachesTheControlAndNotTheCommandThatSendsIt) {
    QMainWindow window;
    auto* controls = new QWidget;
    auto* locked = new RichTextEdit(controls);
    auto* button = new QPushButton(controls);
    auto* option = new QCheckBox(controls);
    window.setCentralWidget(controls);
    QtKeySender sender;
    int commands = 0;
    AddMenu(*window.menuBar(), "mnuEdit", "&Edit", {{"mnuCopy", "&Copy", QKeySequence::Copy, [&] {
                                                         ++commands;
                                                         sender.SendCtrl('C');
                                                     }}});
    locked->SetText("locked");
    locked->SetReadOnly(true);
    ShowActive(window);
    for (QWidget* control : std::initializer_list<QWidget*>{button, option, locked}) {
        control->setFocus();
        commands = 0;
        Find<QAction>(window, "mnuCopy").trigger();
        EXPECT_EQ(commands, 1);
    }
    locked->selectAll();
    Find<QAction>(window, "mnuCopy").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "locked");
    QApplication::clipboard()->setText("");
    QTest::keyClick(locked, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "locked");
    QTest::keyClick(button, Qt::Key_C, Qt::ControlModifier);
}

TEST_F(QtServices, KeysGoToTheControlThatHadTheFocusLast) {
    QMainWindow window;
    auto* box = new QLineEdit;
    window.setCentralWidget(box);
    window.menuBar()->addMenu("&Edit")->addAction("&Paste");
    QtKeySender sender;
    ShowActive(window);
    box->setFocus();
    QTest::keyClicks(box, "abc");
    sender.SendCtrl('Z');
    EXPECT_EQ(box->text(), "");
    QTest::keyClicks(box, "12");
    box->selectAll();
    sender.SendCtrl('X');
    EXPECT_EQ(box->text(), "");
    QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    sender.SendCtrl('V');
    sender.SendCtrl('V');
    EXPECT_EQ(box->text(), "1212");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

TEST_F(QtServices, KeysWithoutAnyControlGoNowhere) {
    QtKeySender sender;
    sender.SendCtrl('Z');
}

TEST_F(QtServices, SettingsAreKeptByTheirKey) {
    EXPECT_EQ(QtSettingsStore().Get("Settings", "MainLeft", "1000"), "1000");
    QtSettingsStore().Save("Settings", "MainLeft", "12.5");
    EXPECT_EQ(QtSettingsStore().Get("Settings", "MainLeft", "1000"), "12.5");
    EXPECT_EQ(QtSettingsStore().Get("Settings", "MainTop", "1000"), "1000");
    EXPECT_EQ(QtSettingsStore().Get("Others", "MainLeft", "1000"), "1000");
}

TEST_F(QtServices, TheClockTellsTheLocalTime) {
    const QDateTime before = QDateTime::currentDateTime();
    const DateTime now = QtClock().Now();
    const QDateTime told(QDate(now.year, now.month, now.day), QTime(now.hour, now.minute, now.second));
    EXPECT_LE(told, QDateTime::currentDateTime());
    EXPECT_GE(told.addSecs(1), before);
}

TEST_F(QtServices, ThePumpHandlesEventsUntilTheProgramEnds) {
    QtEventPump pump;
    bool isHandled = false;
    QTimer::singleShot(0, [&] { isHandled = true; });
    EXPECT_TRUE(pump.ProcessEvents());
    EXPECT_TRUE(isHandled);
    pump.End();
    EXPECT_FALSE(pump.ProcessEvents());
}

TEST_F(QtServices, TextsAndPathsSurviveTheEdge) {
    EXPECT_EQ(ToQt("23\xB0 \x80"), QString("23\u00B0 \u20AC"));
    EXPECT_EQ(FromQt(QString("23\u00B0 \u20AC \u0416")), "23\xB0 \x80 ?");
    EXPECT_EQ(PathFromQt(PathToQt("/a/\u0416 b")), "/a/\u0416 b");
}

} // namespace

} // namespace orvel::ui
