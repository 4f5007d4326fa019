// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Menus.h"

#include <QAction>
#include <QMenu>

namespace orvel::ui {

void AddMenu(QMenuBar& bar, const char* name, const char* caption, const std::vector<MenuItem>& items) {
    QMenu* menu = bar.addMenu(caption);
    menu->setObjectName(name);
    for (const MenuItem& item : items) {
        if (item.name == nullptr) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(item.caption, item.shortcut);
        action->setObjectName(item.name);
        // The desktop's own ideas of where an entry belongs are not asked.
        action->setMenuRole(QAction::NoRole);
        QObject::connect(action, &QAction::triggered, &bar, item.event);
    }
}

} // namespace orvel::ui
