// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/frmSplash.h"
#include "ui/Form.h"

#include <QDialog>
#include <functional>

namespace orvel::ui {

// Shown while the program starts, above no other window. Its title bar and Escape close it, which calls
// `onClose`.
class SplashWindow : public QDialog, private Form {
public:
    explicit SplashWindow(std::function<void()> onClose);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void Unload() override { hide(); }

    frmSplash logic{*this};
    std::function<void()> whenClosed;
};

} // namespace orvel::ui
