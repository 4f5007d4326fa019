// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/PromptMnemonics.h"

#include <QAbstractButton>
#include <QApplication>
#include <QShortcutEvent>

namespace orvel::ui {

PromptMnemonics::PromptMnemonics() {
    qApp->installEventFilter(this);
}

bool PromptMnemonics::eventFilter(QObject* watched, QEvent* event) {
    auto* button = qobject_cast<QAbstractButton*>(watched);
    if (event->type() != QEvent::Shortcut || button == nullptr ||
        static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        return QObject::eventFilter(watched, event);
    }
    if (button->isCheckable() && (button->focusPolicy() & Qt::ClickFocus) != 0) {
        button->setFocus(Qt::ShortcutFocusReason);
    }
    button->click();
    return true;
}

} // namespace orvel::ui
