// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>
#include <QWidget>
#include <Qt>

// Keys as the user presses them: they go to the window that has the keys, and never to a control that the
// test has picked.
namespace orvel::testing {

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// With the modifiers the letter that the caption underlines; whether there is one.
bool PressMnemonic(const QString& caption, Qt::KeyboardModifiers modifiers);

// Whether Tab leads to the control; to an option button if it leads to one of its group.
bool TabTo(const QWidget& control);

} // namespace orvel::testing
