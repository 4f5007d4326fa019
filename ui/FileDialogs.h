// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"

namespace orvel::ui {

// The toolkit's own dialogs, whatever the desktop offers: so the flags mean the same everywhere.
class QtFileDialogs : public FileDialogService {
public:
    std::filesystem::path Open(const FileDialog& dialog) override;
    std::filesystem::path Save(const FileDialog& dialog) override;
};

} // namespace orvel::ui
