// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SoilIntakeDialog.h"

#include "core/Records.h"
#include "ui/NumericKeyFilter.h"
#include "ui/OnScreen.h"
#include "ui/ScrollingArea.h"
#include "ui/UncaughtError.h"

#include <QGridLayout>

namespace orvel::ui {

namespace {

QLineEdit* NewRateBox(const std::string& name, const QString& accessibleName) {
    constexpr int kWidth = 90;
    QLineEdit* box = NewTextBox(name, accessibleName);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(kWidth);
    FilterKeys(box, frmSoilIntake::RateBox_KeyPress);
    return box;
}

} // namespace

SoilIntakeDialog::SoilIntakeDialog(QWidget* parent) : QDialog(parent), Form(this) {
    setObjectName("frmSoilIntake");
    setWindowTitle("Soil Intake Rates");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new ScrollingArea(NewTable()), 1);
    layout->addLayout(NewSaveAndCancel(*this, [this] { logic.cmdBtnSave_Click(); }));
    logic.Form_Load();
    SizeToContent(*this);
}

void SoilIntakeDialog::reject() {
    Run([this] { logic.cmdBtnCancel_Click(); });
}

QWidget* SoilIntakeDialog::NewTable() {
    constexpr int kNameWidth = 200;
    auto* area = new QWidget;
    auto* table = new QGridLayout(area);
    table->setContentsMargins(0, 0, 0, 0);
    table->addWidget(new QLabel("Soil Description"), 0, 0, 2, 1, Qt::AlignBottom);
    table->addWidget(new QLabel("Intake Rates"), 0, 1, 1, 2, Qt::AlignHCenter);
    table->addWidget(new QLabel("Minimum"), 1, 1, Qt::AlignRight);
    table->addWidget(new QLabel("Maximum"), 1, 2, Qt::AlignRight);
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        const int line = static_cast<int>(row) + 1;
        const QString which = QString(", row %1").arg(row);
        QLineEdit* name = NewTextBox(frmSoilIntake::SoilBox(row), "Soil Description" + which);
        name->setMinimumWidth(kNameWidth);
        connect(name, &QLineEdit::textChanged, this,
                [this, row] { Run([this, row] { logic.txtBoxSoil_Change(row); }); });
        table->addWidget(name, line, 0);
        table->addWidget(NewRateBox(frmSoilIntake::MinBox(row), "Minimum" + which), line, 1);
        table->addWidget(NewRateBox(frmSoilIntake::MaxBox(row), "Maximum" + which), line, 2);
    }
    table->setRowStretch(table->rowCount(), 1);
    return area;
}

} // namespace orvel::ui
