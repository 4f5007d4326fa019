// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/EditCommands.h"

#include "core/Platform.h"

namespace orvel {

void SendUndo() {
    CurrentPlatform().keySender->SendCtrl('Z');
}

void SendCut() {
    CurrentPlatform().keySender->SendCtrl('X');
}

void SendCopy() {
    CurrentPlatform().keySender->SendCtrl('C');
}

void SendPaste() {
    CurrentPlatform().keySender->SendCtrl('V');
}

} // namespace orvel
