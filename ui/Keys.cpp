// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Keys.h"

#include "ui/TextEdge.h"

namespace orvel::ui {

int TypedCharacter(const QKeyEvent& event) {
    const bool isShortcut = (event.modifiers() & Qt::ControlModifier) != 0;
    const QString text = event.text();
    return isShortcut || text.isEmpty() ? kNoCharacterTyped
                                        : static_cast<unsigned char>(FromQt(text).front());
}

bool HasCommandModifier(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

} // namespace orvel::ui
