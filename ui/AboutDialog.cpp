// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/AboutDialog.h"

#include "ui/Logo.h"
#include "ui/UncaughtError.h"

#include <QGridLayout>
#include <QPushButton>

namespace orvel::ui {

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent), Form(this) {
    constexpr int kLogoSize = 96;
    setObjectName("frmAbout");
    setWindowTitle("About ORVEL");

    auto* okButton = new QPushButton("OK");
    okButton->setObjectName("cmdOK");
    okButton->setDefault(true);
    connect(okButton, &QPushButton::clicked, this, [this] { Run([this] { logic.cmdOK_Click(); }); });

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setHorizontalSpacing(24);
    layout->addWidget(NewLogo(kLogoSize), 0, 0, 5, 1, Qt::AlignTop);
    layout->addWidget(NewTitle(), 0, 1);
    layout->addWidget(NewLabel("lblVersion"), 1, 1);
    layout->addWidget(NewLabel("lblDescription"), 2, 1);
    layout->addWidget(NewLabel("lblLicence"), 3, 1);
    layout->setRowMinimumHeight(4, 16);
    layout->addWidget(okButton, 5, 1, Qt::AlignRight);
    logic.Form_Load();
}

} // namespace orvel::ui
