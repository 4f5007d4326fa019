// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/FormView.h"
#include "core/Platform.h"
#include "core/ProgramWindows.h"
#include "tests/support/LogicTest.h"

#include <deque>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace orvel::testing {

using Lines = std::vector<std::string>;

// The line of the box that a failed save shows.
inline constexpr const char* kFileSaveError =
    "box [File Save Error] Error in saving file. Please check drives and disk space. (Ok, Critical)";

// The surroundings of a window's logic. What the logic does to them stands in one log, in order; what they
// answer is planned before. They are strict: an answer that was not planned, or not fetched, and a line that
// the test did not take fail it.
class Surroundings : public MessageBoxService,
                     public FileDialogService,
                     public FolderBrowser,
                     public KeySender,
                     public EventPump,
                     public ProgramWindows {
public:
    ~Surroundings() override;

    std::deque<Reply> replies;
    std::deque<std::filesystem::path> paths; // of file dialogs and the folder browser; empty: cancelled

    // What calculating a summary raises.
    std::optional<ErrorNumber> summaryError;

    void Note(const std::string& line) { log.push_back(line); }
    // The log since the last call.
    Lines Said() { return std::exchange(log, {}); }

    // A box as its line in the log: "box [title] text (YesNo)"; CR shows as "|".
    static std::string Line(const Message& message);
    // A dialog as its line: "save [title] filter; ext; 0x2806; folder".
    static std::string Line(const std::string& kind, const FileDialog& dialog);

    Reply Show(const Message& message) override;
    std::filesystem::path Open(const FileDialog& dialog) override;
    std::filesystem::path Save(const FileDialog& dialog) override;
    std::filesystem::path Browse(const std::string& title) override;
    void SendCtrl(char letter) override { Note(std::string("Ctrl+") + letter); }
    bool ProcessEvents() override;
    void ProcessAllButInput() override { Note("events"); }

    void ShowSplash() override { Note("show frmSplash"); }
    void UnloadSplash() override { Note("unload frmSplash"); }
    void ShowMain() override { Note("show frmMain"); }
    void ShowCenterPivotData() override { Note("show frmCenterPivotData"); }
    void ShowSolidSetData() override { Note("show frmSolidSetData"); }
    void ShowUserData() override { Note("show frmUserData"); }
    void ShowSoilIntake() override { Note("show frmSoilIntake"); }
    void ShowAbout() override { Note("show frmAbout"); }
    void ShowReport() override { Note("show frmReport"); }
    void ShowViewer(std::string_view what) override { Note("view " + std::string{what}); }
    std::string BuildCenterPivotSummary() override;
    std::string BuildSolidSetSummary() override;
    void UnloadOthers() override { Note("unload others"); }
    void EndProgram() override { Note("end"); }

private:
    std::filesystem::path NextPath();

    Lines log;
};

// A form that keeps the texts of its controls.
class FakeForm : public FormView {
public:
    explicit FakeForm(Surroundings& ofTest) : surroundings(ofTest) {}

    std::map<std::string, std::string, std::less<>> texts;

    [[nodiscard]] std::string Text(std::string_view control) const override;
    void SetText(std::string_view control, const std::string& text) override;
    void Unload() override { surroundings.Note("unload"); }

private:
    Surroundings& surroundings;
};

// Tests of a window's logic: the program at its start, the surroundings in place of the platform's services.
class WindowTest : public LogicTest {
protected:
    WindowTest();

    // What the window did since the last call.
    Lines Said() { return surroundings.Said(); }

    Surroundings surroundings;
};

// Tests of the logic of a window that is a form.
template <class Window>
class FormTest : public WindowTest {
protected:
    void Type(const char* control, const std::string& text) { form.texts.at(control) = text; }

    FakeForm form{surroundings};
    Window window{form};
};

} // namespace orvel::testing
