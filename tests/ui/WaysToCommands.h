// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QWidget>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orvel::testing {

// What the user can have done: a menu's item, or a button.
struct Invoked {
    QAction* action = nullptr;
    QAbstractButton* button = nullptr;
    QMenu* menu = nullptr; // that the action is in; none: it is in the tool bar
};

// Those of the window by their names; of message boxes by their captions.
std::map<std::string, Invoked> CommandsOf(const QWidget& window);

// Each presses its keys, and says whether the command can be invoked so.
using Way = bool (*)(const QWidget& window, const Invoked& command);

// With their names: the letters that captions underline, the arrows in menus, shortcuts, Tab and Space.
const std::vector<std::pair<const char*, Way>>& Ways();

} // namespace orvel::testing
