// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/WaysToCommands.h"

#include "tests/ui/UserKeys.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <gtest/gtest.h>

namespace orvel::testing {

namespace {

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
    const auto isThere = [&] {
        return bar.activeAction() != nullptr && bar.activeAction()->menu() == command.menu;
    };
    for (int step = 0; step < bar.actions().size() && !isThere(); ++step) {
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

} // namespace

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

const std::vector<std::pair<const char*, Way>>& Ways() {
    static const std::vector<std::pair<const char*, Way>> ways = {{"letters", ByLetters},
                                                                  {"arrows", ByArrows},
                                                                  {"shortcut", ByShortcut},
                                                                  {"Tab and Space", ByTabAndSpace}};
    return ways;
}

} // namespace orvel::testing
