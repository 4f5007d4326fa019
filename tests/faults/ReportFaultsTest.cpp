// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/frmShowRTF.h"
#include "tests/faults/Saving.h"
#include "tests/report/FrmReportFixture.h"

#include <gtest/gtest.h>
#include <utility>

namespace orvel::testing {

namespace {

// A command of a window asks for the name of the file.
Saving SavingOf(const TemporaryFolder& folder, Surroundings& surroundings, std::function<void()> command) {
    const SavedFile file = OldOutput("report");
    return {.folder = folder.Path(),
            .files = {file},
            .save = std::move(command),
            .said = [&surroundings] { return surroundings.Said(); },
            .failures = {{kFileSaveError}},
            .prepare = [&surroundings, path = folder / file.name] { surroundings.paths = {path}; }};
}

class ReportFaults : public FrmReport {};

TEST_F(ReportFaults, SaveAsRichText) {
    LoadPivot();
    ExpectSafe(SavingOf(folder, surroundings, [this] { window.mnuFileSaveAs_Click(); }));
}

TEST_F(ReportFaults, SaveAsHtml) {
    LoadPivot();
    ExpectSafe(SavingOf(folder, surroundings, [this] { window.mnuSaveHTML_Click(); }));
}

class ViewerFaults : public PrintingTest, private frmShowRTF::View {
protected:
    TemporaryFolder folder;
    frmShowRTF window{*this};

private:
    RichTextBox& TextBox() override { return box; }
    void SetCaption(const std::string& caption) override { surroundings.Note(caption); }
    void Show() override { surroundings.Note("show"); }
    void Unload() override { surroundings.Note("unload"); }
};

TEST_F(ViewerFaults, Save) {
    box.SetText("How to set out cups");
    ExpectSafe(SavingOf(folder, surroundings, [this] { window.cmdBtnSave_Click(); }));
}

} // namespace

} // namespace orvel::testing
