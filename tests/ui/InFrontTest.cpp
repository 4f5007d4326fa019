// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/InFront.h"

#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QDialog>

namespace orvel::ui {

namespace {

using testing::WhileModal;

class InFront : public testing::WidgetTest {};

TEST_F(InFront, IsTheActiveWindow) {
    QWidget first;
    QWidget second;
    ShowActive(second);
    ShowActive(first);
    EXPECT_EQ(WindowInFront(), &first);
    BringToFront(second);
    QApplication::setActiveWindow(&second);
    EXPECT_EQ(WindowInFront(), &second);
}

TEST_F(InFront, IsTheLastActiveWindowWhileNoneIs) {
    QWidget first;
    QWidget second;
    ShowActive(second);
    ShowActive(first);
    EXPECT_EQ(WindowInFront(), &first);
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(WindowInFront(), &first);
    first.hide();
    EXPECT_EQ(WindowInFront(), &second) << "any that is shown";
}

TEST_F(InFront, IsTheModalWindowOrWhatBelongsToIt) {
    QWidget other;
    ShowActive(other);
    QDialog modal;
    WhileModal([&] { modal.exec(); },
               [&](QWidget&) {
                   QApplication::setActiveWindow(&other);
                   EXPECT_EQ(WindowInFront(), &modal) << "nothing else can be used";
                   QWidget beside(&modal, Qt::Window);
                   beside.show();
                   QApplication::setActiveWindow(&beside);
                   EXPECT_EQ(WindowInFront(), &beside);
                   beside.hide();
                   modal.reject();
               });
}

TEST_F(InFront, AMinimizedWindowIsShownAgain) {
    QWidget window;
    window.showMinimized();
    BringToFront(window);
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isVisible());
}

} // namespace

} // namespace orvel::ui
