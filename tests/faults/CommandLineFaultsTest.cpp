// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"
#include "core/RecordFiles.h"
#include "tests/faults/Saving.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/OrdinaryUser.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

namespace orvel::testing {

namespace {

namespace fs = std::filesystem;

// Calls with the folder of the inputs as program directory.
class CommandLineFaults : public LogicTest {
protected:
    CommandLineFaults() {
        for (const fs::path& copy : {Pivot(), AnotherPivot()}) {
            fs::copy_file(Example("pivot-1978.cpd"), copy);
        }
        PutContents(inputs / "pivot.json", R"({"ClientName": "Ann", "Gauges": [{"Volume": 12.5}]})");
        PutContents(inputs / "solid.json", R"({"ClientName": "Ann"})");
        Program().programDirectory = inputs.Path();
        SaveUserSettings(CompleteUserSettings());
        GiveToOrdinaryUser(inputs.Path());
    }
    ~CommandLineFaults() override { ::close(errors); }

    void ExpectSafeCall(Lines arguments, const Lines& outputs) {
        arguments.insert(arguments.end(), {"--program-dir", inputs.Path(), "--now", "2026-07-04 09:05:03"});
        const std::string ofOutput = "orvel-cli: " + folder.Path().native() + "/&";
        const std::string ofInput = "orvel-cli: " + inputs.Path().native() + "/&";
        Saving saving = {
            .folder = folder.Path(),
            .files = {},
            .save = [&] { status = cli::RunCommandLine(arguments); },
            .said = [this] { return Told(); },
            // A folder of the call that cannot be looked at makes it a wrong call.
            .failures = {{ofOutput, "status 3"},
                         {ofInput, "status 3"},
                         {ofInput, ofOutput, "status 3"},
                         {ofOutput, ofOutput, "status 3"},
                         {"orvel-cli: --output-dir: no such folder: " + folder.Path().native(), "status 2"},
                         {"orvel-cli: --program-dir: no such folder: " + inputs.Path().native(), "status 2"}},
            .prepare = [this] { BeginErrors(); },
            .isFlushed = arguments.at(0) == "build"};
        for (const std::string& output : outputs) {
            saving.files.push_back(OldOutput(output));
        }
        ExpectSafe(saving);
    }

    void ExpectSafeOutput(Lines arguments, const std::string& output = "out.txt") {
        arguments.insert(arguments.end(), {"-o", folder / output});
        ExpectSafeCall(arguments, {output});
    }

    // Tests about which the checks have nothing to say.
    [[nodiscard]] fs::path Pivot() const { return inputs / "one.cpd"; }
    [[nodiscard]] fs::path AnotherPivot() const { return inputs / "two.cpd"; }

    TemporaryFolder inputs;
    TemporaryFolder folder;

private:
    // All runs share the file.
    void BeginErrors() const {
        ASSERT_EQ(::ftruncate(errors, 0), 0);
        ASSERT_EQ(::lseek(errors, 0, SEEK_SET), 0);
        ASSERT_EQ(::dup2(errors, STDERR_FILENO), STDERR_FILENO);
    }

    // What stands on standard error, and the exit status.
    [[nodiscard]] Lines Told() const {
        Lines lines = {"status " + std::to_string(status)};
        std::string told = Contents("/dev/fd/" + std::to_string(errors));
        if (!told.empty()) {
            told.pop_back();
            lines.insert(lines.begin(), told);
        }
        return lines;
    }

    int errors = ::memfd_create("standard error", 0);
    int status = -1;
};

TEST_F(CommandLineFaults, Build) {
    ExpectSafeOutput({"build", inputs / "pivot.json"}, "built.cpd");
}

TEST_F(CommandLineFaults, BuildOfASolidSetTest) {
    ExpectSafeOutput({"build", inputs / "solid.json"}, "built.ssd");
}

TEST_F(CommandLineFaults, Report) {
    ExpectSafeOutput({"report", Pivot()});
}

TEST_F(CommandLineFaults, ExportOfSeveralFiles) {
    ExpectSafeCall({"export", Pivot(), AnotherPivot(), "--output-dir", folder.Path()},
                   {"one.txt", "two.txt"});
}

TEST_F(CommandLineFaults, Export) {
    ExpectSafeOutput({"export", Pivot()});
}

TEST_F(CommandLineFaults, Results) {
    ExpectSafeOutput({"results", Pivot(), "--json"});
}

} // namespace

} // namespace orvel::testing
