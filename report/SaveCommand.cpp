// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/SaveCommand.h"

#include "core/Platform.h"
#include "core/RunTimeError.h"
#include "core/TestFile.h"

namespace orvel {

void RunSaveCommand(const std::string& title, const std::string& filter,
                    const std::function<void(const std::filesystem::path&)>& write) {
    // kept: "rtf" whatever is saved.
    const std::filesystem::path path = CurrentPlatform().fileDialogs->Save({.title = title,
                                                                            .filter = filter,
                                                                            .defaultExtension = "rtf",
                                                                            .initialFolder = {},
                                                                            .flags = kSaveDialogFlags});
    if (path.empty()) {
        return;
    }
    try {
        write(path);
    } catch (const RunTimeError&) {
        // Trapped, whatever failed.
        ShowFileSaveError();
    }
}

} // namespace orvel
