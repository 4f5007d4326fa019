// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <functional>

namespace orvel::ui {

// Sends each character typed into the box through a key filter of the logic, which returns 0 for one to be
// dropped. Keys without a character and shortcuts pass.
void FilterKeys(QLineEdit* box, int (*filter)(int key));

} // namespace orvel::ui
