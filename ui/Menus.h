// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QMenuBar>
#include <functional>
#include <vector>

namespace orvel::ui {

struct MenuItem {
    const char* name = nullptr; // of the action; none is a separator
    const char* caption = nullptr;
    QKeySequence shortcut;
    std::function<void()> event;
};

void AddMenu(QMenuBar& bar, const char* name, const char* caption, const std::vector<MenuItem>& items);

} // namespace orvel::ui
