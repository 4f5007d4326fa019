// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/RecordFiles.h"
#include "core/frmMain.h"
#include "tests/faults/Saving.h"

#include <gtest/gtest.h>
#include <utility>

namespace orvel::testing {

namespace {

class MainWindowFaults : public WindowTest, private frmMain::View {
protected:
    MainWindowFaults() {
        Program().programDirectory = folder.Path();
        Program().centerPivotTest = ReadTest<CenterPivotTest>(Example("pivot-1978.cpd"));
        Program().solidSetTest = ReadTest<SolidSetTest>(Example("solid-set-1997.ssd"));
    }

    // The open test is written to that file, which its dialog gives where the command has one.
    [[nodiscard]] Saving SavingOf(const SavedFile& file, void (frmMain::*command)()) {
        return {.folder = folder.Path(),
                .files = {file},
                .save = [this, command] { (window.*command)(); },
                .said = [this] { return Said(); },
                .failures = {{kFileSaveError}},
                .prepare = [this, path = folder / file.name] { surroundings.paths = {path}; }};
    }

    void ChooseSolidSet() { window.OptBtnSolidSet_Click(); }

    TemporaryFolder folder;
    frmMain window{*this, surroundings};
    const SavedFile pivot = OldRecord("old.cpd", sizeof(CenterPivotTest));
    const SavedFile solid = OldRecord("old.ssd", sizeof(SolidSetTest));
    const SavedFile summary = OldOutput("old.txt");

private:
    void CheckOptBtnCenterPivot() override { surroundings.Note("check OptBtnCenterPivot"); }
    void CheckOptBtnSolidSet() override { surroundings.Note("check OptBtnSolidSet"); }
    void SetStatusText(const std::string& text) override { surroundings.Note("status " + text); }
};

TEST_F(MainWindowFaults, Save) {
    Program().centerPivotFile = folder / pivot.name;
    ExpectSafe(SavingOf(pivot, &frmMain::mnuFileSave_Click));
}

TEST_F(MainWindowFaults, SaveAsOfACenterPivotTest) {
    ExpectSafe(SavingOf(pivot, &frmMain::mnuFileSaveAs_Click));
}

TEST_F(MainWindowFaults, SaveAsOfASolidSetTest) {
    ChooseSolidSet();
    ExpectSafe(SavingOf(solid, &frmMain::mnuFileSaveAs_Click));
}

TEST_F(MainWindowFaults, NewCenterPivotTest) {
    ExpectSafe(SavingOf(pivot, &frmMain::mnuFileNew_Click));
}

TEST_F(MainWindowFaults, NewSolidSetTest) {
    ChooseSolidSet();
    ExpectSafe(SavingOf(solid, &frmMain::mnuFileNew_Click));
}

TEST_F(MainWindowFaults, ExportSummaryOfACenterPivotTest) {
    Program().centerPivotFile = Example("pivot-1978.cpd");
    ExpectSafe(SavingOf(summary, &frmMain::mnuExportSummary_Click));
}

TEST_F(MainWindowFaults, ExportSummaryOfASolidSetTest) {
    ChooseSolidSet();
    Program().solidSetFile = Example("solid-set-1997.ssd");
    ExpectSafe(SavingOf(summary, &frmMain::mnuExportSummary_Click));
}

TEST_F(MainWindowFaults, StartUp) {
    const std::string box =
        "box [ORVEL] The program can't keep its settings in " + folder.Path().native() + ": cannot ";
    SavedFile settings = OldRecord("user.usr", sizeof(UserSettings));
    SavedFile soils = OldRecord("soil.dat", kSoilRows * sizeof(SoilIntakeRow));
    settings.isUnchanged = true;
    soils.isUnchanged = true;
    ExpectSafe({.folder = folder.Path(),
                .files = {settings, soils},
                .save = [this] { window.Form_Load(); },
                .said = [this] { return Said(); },
                .failures = {{box, "run-time error %"}}});
}

} // namespace

} // namespace orvel::testing
