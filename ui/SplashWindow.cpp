// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SplashWindow.h"

#include "core/Version.h"
#include "ui/Logo.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace orvel::ui {

SplashWindow::SplashWindow(std::function<void()> onClose)
    : QDialog(nullptr,
              Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      Form(this), whenClosed(std::move(onClose)) {
    constexpr int kLogoSize = 128;
    constexpr int kMargin = 40;
    setObjectName("frmSplash");
    setWindowTitle(kProgramTitle);
    auto* logo = NewLogo(kLogoSize);
    QLabel* title = NewTitle();
    QLabel* version = NewLabel("lblVersion");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    for (QLabel* label : {logo, title, version}) {
        layout->addWidget(label, 0, Qt::AlignHCenter);
    }
    layout->setSizeConstraint(QLayout::SetFixedSize);
    logic.Form_Load();
}

void SplashWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    }
}

void SplashWindow::closeEvent(QCloseEvent* event) {
    whenClosed();
    event->accept();
}

void SplashWindow::mousePressEvent(QMouseEvent* /*event*/) {
    logic.imgLogo_Click();
}

} // namespace orvel::ui
