// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvel {

// The commands of the windows' Edit menus: each is a key to the control that has the focus.
void SendUndo();
void SendCut();
void SendCopy();
void SendPaste();

} // namespace orvel
