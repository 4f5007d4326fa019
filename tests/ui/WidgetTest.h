// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/WindowTest.h"

#include <QLineEdit>
#include <QMenu>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::testing {

// Tests of real windows: shown, active, used by key and mouse events.
class WidgetTest : public WindowTest {
protected:
    static void ShowActive(QWidget& window);

    // A control by its object name; fails the test when there is none.
    template <class Control>
    static Control& Find(const QWidget& window, const std::string& name) {
        auto* control = window.findChild<Control*>(QString::fromStdString(name));
        if (control == nullptr) {
            throw std::runtime_error("no control " + name);
        }
        return *control;
    }

    // Pastes the text in place of the box's own.
    static void PasteOver(QLineEdit& box, const QString& text);

    // The captions of a menu, without the underlined letter, and behind each its shortcut; "-" is a
    // separator.
    static Lines Items(const QMenu& menu);

    // The object names of the controls that Tab goes through, from the first one to the last.
    static std::vector<std::string> TabOrder(QWidget& window);

    // Runs the application until it ends; its status, or a failure's when it does not for long.
    static int RunToItsEnd();

    // Fails for two mnemonics that are the same, for a control that takes the focus without a name for screen
    // readers, and for two with the same name.
    static void ExpectReachable(const QWidget& window);
};

// Runs an action that shows a modal window, and the handler on that window as soon as it is there.
void WhileModal(const std::function<void()>& action, const std::function<void(QWidget& window)>& handler);

} // namespace orvel::testing
