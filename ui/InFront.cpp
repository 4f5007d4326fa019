// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/InFront.h"

#include <QApplication>
#include <QPointer>

namespace orvel::ui {

namespace {

bool BelongsTo(const QWidget* window, const QWidget* owner) {
    while (window != nullptr && window != owner) {
        window = window->parentWidget();
    }
    return window != nullptr;
}

QWidget* ActiveWindow() {
    // Between a dialog that has just gone and the next no window is active.
    static QPointer<QWidget> last;
    if (QWidget* active = QApplication::activeWindow()) {
        last = active;
    }
    return last != nullptr && last->isVisible() ? last : nullptr;
}

} // namespace

QWidget* WindowInFront() {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* active = ActiveWindow();
    if (modal != nullptr) {
        return BelongsTo(active, modal) ? active : modal;
    }
    if (active != nullptr) {
        return active;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

void BringToFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace orvel::ui
