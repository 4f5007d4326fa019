// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "settings/frmSoilIntake.h"
#include "ui/Form.h"

#include <QDialog>

namespace orvel::ui {

class SoilIntakeDialog : public QDialog, private Form {
public:
    explicit SoilIntakeDialog(QWidget* parent);

    // The title bar and Escape.
    void reject() override;

private:
    QWidget* NewTable();
    void Unload() override { accept(); }

    frmSoilIntake logic{*this};
};

} // namespace orvel::ui
