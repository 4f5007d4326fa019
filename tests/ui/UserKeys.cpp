// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/UserKeys.h"

#include <QApplication>
#include <QRadioButton>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

namespace orvel::testing {

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWindow* window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr) << "no window has the keys";
    QTest::keyClick(window, key, modifiers);
}

bool PressMnemonic(const QString& caption, Qt::KeyboardModifiers modifiers) {
    const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
    if (mnemonic.isEmpty()) {
        return false;
    }
    PressKey(mnemonic[0].key(), modifiers);
    return true;
}

bool TabTo(const QWidget& control) {
    constexpr int kMostPresses = 100;
    const auto isThere = [&control] {
        const QWidget* now = QApplication::focusWidget();
        return now != nullptr &&
               (now == &control || now->focusProxy() == &control || control.focusProxy() == now ||
                (qobject_cast<const QRadioButton*>(&control) != nullptr &&
                 qobject_cast<const QRadioButton*>(now) != nullptr &&
                 now->parentWidget() == control.parentWidget()));
    };
    for (int press = 0; press < kMostPresses && !isThere(); ++press) {
        PressKey(Qt::Key_Tab);
    }
    return isThere();
}

} // namespace orvel::testing
