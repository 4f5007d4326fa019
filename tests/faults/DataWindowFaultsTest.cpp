// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/entry/DataWindowTest.h"
#include "tests/faults/Saving.h"

#include <gtest/gtest.h>

namespace orvel::testing {

namespace {

// An open data window with a reading that is not in the file yet.
template <class Window>
class DataWindowFaults : public DataWindowTest<Window> {
protected:
    using Base = DataWindowTest<Window>;

    [[nodiscard]] Saving SavingOf(void (Window::*command)()) {
        Base::Main() = ReadTest<typename Base::Record>(Example(kExample));
        this->Load();
        this->PutCell(7, Base::kVolume, "123");
        this->view.logsCells = false;
        const SavedFile file = OldRecord(Base::Kind::kFileName, sizeof(typename Base::Record));
        return {.folder = this->folder.Path(),
                .files = {file},
                .save = [this, command] { (this->window.*command)(); },
                .said = [this] { return this->Said(); },
                .failures = {{kFileSaveError}},
                .prepare = [this] { this->surroundings.paths = {this->File()}; }};
    }

private:
    static constexpr const char* kExample =
        std::is_same_v<Window, frmCenterPivotData> ? "pivot-1978.cpd" : "solid-set-1997.ssd";
};

using CenterPivotDataFaults = DataWindowFaults<frmCenterPivotData>;
using SolidSetDataFaults = DataWindowFaults<frmSolidSetData>;

TEST_F(CenterPivotDataFaults, Save) {
    ExpectSafe(SavingOf(&frmCenterPivotData::mnuFileSave_Click));
}

TEST_F(CenterPivotDataFaults, SaveAs) {
    ExpectSafe(SavingOf(&frmCenterPivotData::mnuFileSaveAs_Click));
}

TEST_F(SolidSetDataFaults, Save) {
    ExpectSafe(SavingOf(&frmSolidSetData::mnuFileSave_Click));
}

} // namespace

} // namespace orvel::testing
