// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/UserDataDialog.h"

#include "ui/OnScreen.h"
#include "ui/ScrollingArea.h"
#include "ui/UncaughtError.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <array>

namespace orvel::ui {

namespace {

// In the order of frmUserData::kTextBoxes.
constexpr std::array<const char*, frmUserData::kTextBoxes.size()> kLabels = {
    "&Name:",      "C&ompany or Title:", "&Address:",           "City, State, &Zip:",
    "&Telephone:", "&E-Mail:",           "&Default Directory:",
};

} // namespace

UserDataDialog::UserDataDialog(QWidget* parent) : QDialog(parent), Form(this) {
    constexpr int kBoxWidth = 380;
    setObjectName("frmUserData");
    setWindowTitle("User Settings");

    auto* browse = new QPushButton("&Browse...");
    browse->setObjectName("cmdBtnBrowse");
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [this] { Run([this] { logic.cmdBtnBrowse_Click(); }); });

    auto* area = new QWidget;
    auto* fields = new QFormLayout(area);
    fields->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        const QString label = kLabels.at(i);
        QLineEdit* box =
            NewTextBox(std::string{frmUserData::kTextBoxes.at(i).control}, QString(label).remove('&'));
        box->setMinimumWidth(kBoxWidth);
        if (i + 1 < kLabels.size()) {
            fields->addRow(label, box);
            continue;
        }
        auto* row = new QHBoxLayout;
        row->addWidget(box);
        row->addWidget(browse);
        auto* buddy = new QLabel(label);
        buddy->setBuddy(box);
        fields->addRow(buddy, row);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new ScrollingArea(area), 1);
    layout->addLayout(NewSaveAndCancel(*this, [this] { logic.cmdBtnSave_Click(); }));
    logic.Form_Load();
    SizeToContent(*this);
}

void UserDataDialog::reject() {
    Run([this] { logic.cmdBtnCancel_Click(); });
}

} // namespace orvel::ui
