// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace orvel::monkey {

// The windows that a run must have visited, each under the name that reports call it by.
enum class WindowKind {
    Splash,
    Main,
    CenterPivotData,
    SolidSetData,
    UserData,
    SoilIntake,
    Report,
    Viewer,
    About,
    OpenDialog,
    SaveDialog,
    FolderBrowser,
    PrintDialog,
    Box,
    Menu,
    List,
    Other, // the toolkit's own, which no run needs to see
};

inline constexpr std::array<const char*, 17> kKindNames = {
    "frmSplash",     "frmMain",        "frmCenterPivotData", "frmSolidSetData", "frmUserData",
    "frmSoilIntake", "frmReport",      "frmShowRTF",         "frmAbout",        "open dialog",
    "save dialog",   "folder browser", "print dialog",       "message box",     "menu",
    "list",          "others",
};

inline constexpr std::size_t kKinds = kKindNames.size();

// A text that lives in shared memory; cut where it is too long.
template <std::size_t N>
class SharedText {
public:
    SharedText& operator=(std::string_view text) {
        length = std::min(text.size(), N);
        std::copy_n(text.begin(), length, characters.begin());
        return *this;
    }

    [[nodiscard]] std::string_view Get() const { return {characters.data(), length}; }

private:
    std::array<char, N> characters{};
    std::size_t length = 0;
};

// How far the run has come: lies in memory that outlives the session that writes it, however that ends.
struct Progress {
    int steps = 0;
    std::array<int, kKinds> visits{};
    // Whether the session has told the user of the run-time error that ends it.
    bool hasToldError = false;
    // What is wrong; empty for nothing.
    SharedText<4000> finding;

    void Note(std::string_view action) { actions.at(noted++ % actions.size()) = action; }

    // Calls with each of the last actions, the oldest one first.
    template <class Callback>
    void ForEachLastAction(Callback callback) const {
        for (std::size_t i = noted - std::min(noted, actions.size()); i < noted; ++i) {
            callback(actions.at(i % actions.size()).Get());
        }
    }

private:
    std::array<SharedText<200>, 20> actions;
    std::size_t noted = 0;
};

} // namespace orvel::monkey
