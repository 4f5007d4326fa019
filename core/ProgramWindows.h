// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace orvel {

// What the viewer can be asked to show.
inline constexpr std::string_view kViewHelp = "Help";
inline constexpr std::string_view kViewCenterPivotData = "CPData";
inline constexpr std::string_view kViewSolidSetData = "SSData";

// The way from one window to the others, and to routines on higher floors. It is implemented where the
// program is put together.
class ProgramWindows {
public:
    virtual ~ProgramWindows() = default;

    virtual void ShowSplash() = 0;
    virtual void UnloadSplash() = 0;
    // The first time it loads the window, too.
    virtual void ShowMain() = 0;

    // These return when the user has closed the window.
    virtual void ShowCenterPivotData() = 0;
    virtual void ShowSolidSetData() = 0;
    virtual void ShowUserData() = 0;
    virtual void ShowSoilIntake() = 0;
    virtual void ShowAbout() = 0;

    // These return at once. A report that is shown already is built anew.
    virtual void ShowReport() = 0;
    virtual void ShowViewer(std::string_view what) = 0;

    // The summary of the open test: it is calculated, then written line by line.
    virtual std::string BuildCenterPivotSummary() = 0;
    virtual std::string BuildSolidSetSummary() = 0;

    // Unloads every window but the main one.
    virtual void UnloadOthers() = 0;
    virtual void EndProgram() = 0;
};

} // namespace orvel
