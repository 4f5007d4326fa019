// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Logo.h"

#include "ui/Form.h"

#include <QGuiApplication>

namespace orvel::ui {

QIcon ProgramIcon() {
    return QIcon(":/orvel.svg");
}

QLabel* NewLogo(int size) {
    QLabel* logo = NewLabel("imgLogo");
    logo->setPixmap(ProgramIcon().pixmap(QSize(size, size), qGuiApp->devicePixelRatio()));
    logo->setAccessibleName("Logo");
    return logo;
}

QLabel* NewTitle() {
    constexpr int kTimesLarger = 2;
    QLabel* title = NewLabel("lblTitle");
    QFont font = title->font();
    font.setPointSize(font.pointSize() * kTimesLarger);
    font.setBold(true);
    title->setFont(font);
    return title;
}

} // namespace orvel::ui
