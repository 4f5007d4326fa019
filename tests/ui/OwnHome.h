// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace orvel::testing {

// An empty home while it lives, so that nobody sees, or changes, what belongs to the user who runs this, nor
// finds a printer; and no window on the screen, unless the environment asks for one. To be made before the
// application.
class OwnHome {
public:
    OwnHome() {
        qputenv("HOME", home.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
        qputenv("CUPS_SERVER", home.filePath("no-printers").toLocal8Bit());
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    }

private:
    QTemporaryDir home;
};

} // namespace orvel::testing
