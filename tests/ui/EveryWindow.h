// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "tests/support/OpenedExamples.h"
#include "tests/ui/WidgetTest.h"

#include <filesystem>
#include <functional>
#include <string>

namespace orvel::testing {

// Tests that look at every window of the program as it opens, with a test in it where it shows one.
class EveryWindow : public WidgetTest, public OpenedExamples {
protected:
    using Look = std::function<void(QWidget& window, const std::string& where)>;

    EveryWindow();

    // Fails where the screen is not the one that the environment promises in ORVEL_SCREEN (1024x600).
    void SetUp() override;

    // Opens one window after the other, each on its own, and looks at it: at each page of those that have
    // pages, and at the cell editor; at a short box and at one that scrolls.
    void ForEach(const Look& look);

    // The program directory.
    [[nodiscard]] std::filesystem::path Folder() const { return folder.Path(); }

private:
    // What the user has not changed yet.
    class NothingKept : public SettingsStore {
    public:
        std::string Get(const std::string& /*section*/, const std::string& /*key*/,
                        const std::string& fallback) override {
            return fallback;
        }
        void Save(const std::string& /*section*/, const std::string& /*key*/,
                  const std::string& /*value*/) override {}
    };

    template <class Dialog>
    void LookAtPages(const char* kind, const char* example, const Look& look);
    static void LookAtBoxes(const Look& look);
    static void LookAt(QWidget& window, const Look& look);

    TemporaryFolder folder;
    NothingKept store;
};

} // namespace orvel::testing
