// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/entry/DataWindowTest.h"
#include "tests/faults/SmallDisk.h"
#include "tests/faults/Tracer.h"
#include "tests/support/OrdinaryUser.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <gtest/gtest.h>
#include <iostream>
#include <string>
#include <sys/stat.h>
#include <vector>

// The recovery file is written while the user types, whatever goes wrong then.
namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

using FaultKind = Fault::Kind;

const std::string kDamaged = "box [Restore Entries] The recovery file of this test can't be read. It is kept "
                             "under another name until the next save. (Ok)";

constexpr std::array kErrors = {ENOSPC, EIO, EACCES, EXDEV};

class RecoveryFaults : public DataWindowTest<frmCenterPivotData> {
protected:
    RecoveryFaults() {
        Main() = ReadTest<CenterPivotTest>(Example("pivot-1978.cpd"));
        view.logsCells = false;
        PutContents(File(), test);
    }

    // Types a reading that is not in the file yet; the text says whether the user was told of a failure.
    [[nodiscard]] TracedAction Keeping() {
        return {.prepare = [this] { PutCell(7, kVolume, "123"); },
                .act = [this] { window.KeepEntries(); },
                .report = [this] { return view.notices.empty() ? "kept" : "told"; }};
    }

    [[nodiscard]] fs::path RecoveryPath() const { return folder / "test.cpd.recovery"; }

    void SetUpFolder(bool hasOld) {
        for (const fs::path& each : {folder.Path(), user.Path()}) {
            for (const auto& entry : fs::directory_iterator(each)) {
                fs::remove_all(entry);
            }
        }
        PutContents(File(), test);
        if (isBlocked) {
            fs::create_directory(RecoveryPath());
        }
        if (hasOld) {
            RecoveryFile(File()).Write(old);
        }
        GiveToOrdinaryUser(folder.Path());
        GiveToOrdinaryUser(user.Path());
    }

    // What the recovery files hold: "old", "new" or "none".
    [[nodiscard]] std::string Found() const {
        const std::vector<std::string> contents = RecoveryFile(File()).Read();
        for (const std::string& content : contents) {
            const auto entries = ReadRecoveryText(content);
            if (entries && entries->state.cells[6][1] == "123") {
                return "new";
            }
        }
        return contents.empty() ? "none" : contents.front() == old ? "old" : "damaged";
    }

    // The files of both places.
    [[nodiscard]] std::vector<fs::path> Files() const {
        std::vector<fs::path> files;
        for (const fs::path& each : {folder.Path(), user.Path()}) {
            for (const auto& entry : fs::recursive_directory_iterator(each)) {
                if (entry.is_regular_file()) {
                    files.push_back(entry);
                }
            }
        }
        return files;
    }

    [[nodiscard]] std::ptrdiff_t Temporaries() const {
        return std::ranges::count_if(
            Files(), [](const fs::path& file) { return file.filename().native().starts_with(".orvel-"); });
    }

    // Nobody but the user reads what is being written.
    void ExpectPrivate() const {
        for (const fs::path& file : Files()) {
            struct stat status {};
            const bool isOurs = ::stat(file.c_str(), &status) == 0 && file != File();
            EXPECT_FALSE(isOurs && (status.st_mode & 077) != 0) << file;
        }
    }

    void Try(bool hasOld, const Fault& fault) {
        SetUpFolder(hasOld);
        const TracedRun run = RunTraced(Keeping(), fault);
        ++trials;
        EXPECT_EQ(Contents(File()), test) << "the test itself";
        const std::string found = Found();
        if (run.wasKilled) {
            EXPECT_TRUE(found == "new" || found == (hasOld ? "old" : "none")) << found;
        } else if (run.report == "kept") {
            EXPECT_EQ(found, "new");
            EXPECT_EQ(RecoveryFile(File()).Read().size(), 1U) << "an older one could be taken for it";
        } else {
            EXPECT_EQ(run.report, "told");
            EXPECT_EQ(fault.kind, FaultKind::Error);
            EXPECT_TRUE(Program().userDataFolder.empty() || isBlocked) << "there is another place";
            EXPECT_TRUE(found == "new" || found == (hasOld ? "old" : "none")) << found;
        }
        if (run.wasKilled || run.calls.at(fault.call) == "unlink") {
            EXPECT_LE(Temporaries(), 1);
            EXPECT_EQ(RunTraced(Keeping(), {}).report, "kept");
            EXPECT_EQ(Found(), "new");
        }
        EXPECT_EQ(Temporaries(), 0);
    }

    void TryAll(bool hasOld) {
        SetUpFolder(hasOld);
        const TracedRun whole = RunTraced(Keeping(), {}, [this] { ExpectPrivate(); });
        EXPECT_EQ(whole.report, "kept");
        EXPECT_EQ(Found(), "new");
        // What can't take its name was on the disk before.
        EXPECT_EQ(std::ranges::count(whole.calls, "fsync"), isBlocked ? 3 : 2) << "the file and its folder";
        for (std::size_t call = 0; call < whole.calls.size() && !HasFailure(); ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + ", " + whole.calls[call]);
            if (ORVEL_IS_SANITIZED) { // which makes a fork slow
                Try(hasOld,
                    {.kind = FaultKind::Error, .call = call, .error = kErrors.at(call % kErrors.size())});
                continue;
            }
            for (const int error : kErrors) {
                Try(hasOld, {.kind = FaultKind::Error, .call = call, .error = error});
            }
            if (CanBeShort(whole.calls[call])) {
                Try(hasOld, {.kind = FaultKind::Short, .call = call});
            }
            Try(hasOld, {.kind = FaultKind::KillBefore, .call = call});
            Try(hasOld, {.kind = FaultKind::KillAfter, .call = call});
        }
        std::cout << "recovery files written with a fault: " << trials << "\n";
    }

    const std::string test = "the test file";
    const std::string old = "the recovery file before";
    TemporaryFolder user;
    // Whether something lies in the way of the file beside the test.
    bool isBlocked = false;
    int trials = 0;
};

TEST_F(RecoveryFaults, BesideTheTest) {
    Load();
    TryAll(false);
    TryAll(true);
}

TEST_F(RecoveryFaults, InTheUsersFolderWhereItFailsBesideTheTest) {
    Program().userDataFolder = user.Path();
    Load();
    TryAll(true);
}

TEST_F(RecoveryFaults, InTheUsersFolder) {
    Program().userDataFolder = user.Path();
    isBlocked = true;
    Load();
    TryAll(false);
    TryAll(true);
}

TEST_F(RecoveryFaults, OnAFullDisk) {
    Load();
    const SmallDisk disk(folder.Path());
    std::string report;
    for (std::size_t blocks = 0; report != "kept"; ++blocks) {
        SCOPED_TRACE(blocks);
        SetUpFolder(true);
        disk.LeaveFree(blocks);
        report = RunTraced(Keeping(), {}).report;
        EXPECT_EQ(Contents(File()), test);
        EXPECT_EQ(Found(), report == "kept" ? "new" : "old");
        EXPECT_EQ(Temporaries(), 0);
        ASSERT_LT(blocks, 100U) << "there is room enough";
        EXPECT_TRUE(blocks > 0 || report == "told") << "the disk was not full";
    }
}

TEST_F(RecoveryFaults, WhatFailsWhileItIsOfferedCostsNothing) {
    const auto open = [this](const Fault& fault) {
        SetUpFolder(true);
        TracedRun run = RunTraced(
            {.prepare = [this] { Program().userDataFolder = user.Path(); },
             .act = [this] { window.Form_Load(); },
             .report = [this] { return surroundings.Said() == Lines{kDamaged} ? "told" : "nothing"; }},
            fault);
        EXPECT_TRUE(std::ranges::any_of(Files(), [this](const fs::path& file) {
            return Contents(file) == old && file.filename().native().starts_with("test.cpd.recovery");
        }));
        return run;
    };
    const TracedRun whole = open({});
    EXPECT_EQ(whole.report, "told");
    for (std::size_t call = 0; call < whole.calls.size(); ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + ", " + whole.calls[call]);
        for (const int error : kErrors) {
            const TracedRun run = open({.kind = FaultKind::Error, .call = call, .error = error});
            EXPECT_TRUE(run.report == "told" || whole.calls[call] != "read") << "it counts as damaged";
        }
    }
}

TEST_F(RecoveryFaults, WhatFailsWhileItIsRemovedCostsNothing) {
    Load();
    const auto save = [this](const Fault& fault) {
        SetUpFolder(true);
        return RunTraced({.prepare =
                              [this] {
                                  Program().userDataFolder = user.Path();
                                  PutCell(7, kVolume, "123");
                              },
                          .act = [this] { window.mnuFileSave_Click(); },
                          .report = [this] { return Said().empty() ? "saved" : "told"; }},
                         fault);
    };
    const TracedRun whole = save({});
    const auto last =
        static_cast<std::size_t>(std::ranges::find(whole.calls, "rename") - whole.calls.begin());
    ASSERT_LT(last, whole.calls.size());
    for (std::size_t call = last + 1; call < whole.calls.size(); ++call) {
        SCOPED_TRACE("call " + std::to_string(call) + ", " + whole.calls[call]);
        for (const int error : kErrors) {
            (void)save({.kind = FaultKind::Error, .call = call, .error = error});
            EXPECT_EQ(ReadTest<CenterPivotTest>(File()).Gauges[7].Volume, 123.0F);
        }
    }
}

} // namespace

} // namespace orvel::testing
