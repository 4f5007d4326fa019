// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "settings/frmUserData.h"
#include "ui/Form.h"

#include <QDialog>

namespace orvel::ui {

class UserDataDialog : public QDialog, private Form {
public:
    explicit UserDataDialog(QWidget* parent);

    // The title bar and Escape.
    void reject() override;

private:
    void Unload() override { accept(); }

    frmUserData logic{*this};
};

} // namespace orvel::ui
