// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "tests/support/OpenedExamples.h"
#include "tests/ui/WidgetTest.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

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

    // Opens a copy of the example in a folder of its own, so that what was typed before is not offered.
    std::filesystem::path OpenCopy(const char* kind, const char* example);

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
    int copies = 0;
};

// To be told by.
inline std::string Named(const QWidget& control) {
    return std::string(control.metaObject()->className()) + " " + control.objectName().toStdString();
}

// The visible children of that kind.
template <class Control>
std::vector<Control*> Shown(const QWidget& window) {
    std::vector<Control*> shown;
    for (Control* control : window.findChildren<Control*>()) {
        if (control->isVisible()) {
            shown.push_back(control);
        }
    }
    return shown;
}

} // namespace orvel::testing
