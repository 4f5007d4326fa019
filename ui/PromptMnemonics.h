// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace orvel::ui {

// For as long as it lives, the underlined letter of a button clicks it at once. The toolkit does so a moment
// later, when another window may have been opened in front of the button's: its click would reach behind a
// modal window. There must be a QApplication.
class PromptMnemonics : public QObject {
public:
    PromptMnemonics();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace orvel::ui
