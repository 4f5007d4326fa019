// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Logo.h"

#include "ui/Form.h"

#include <QGuiApplication>
#include <QVariant>

// The linker leaves out the resources of a static library that nobody names. The macro wants no namespace
// around it.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void NameResources() {
    Q_INIT_RESOURCE(orvel);
}

namespace orvel::ui {

QIcon SharedIcon(const QString& file) {
    NameResources();
    const QByteArray name = "icon of " + file.toUtf8();
    QVariant icon = qApp->property(name);
    if (!icon.isValid()) {
        icon = QIcon(file);
        qApp->setProperty(name, icon);
    }
    return icon.value<QIcon>();
}

QIcon ProgramIcon() {
    return SharedIcon(":/orvel.svg");
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
