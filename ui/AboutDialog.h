// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/frmAbout.h"
#include "ui/Form.h"

#include <QDialog>

namespace orvel::ui {

class AboutDialog : public QDialog, private Form {
public:
    explicit AboutDialog(QWidget* parent);

private:
    void Unload() override { accept(); }

    frmAbout logic{*this};
};

} // namespace orvel::ui
