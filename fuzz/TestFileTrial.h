// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Services.h"
#include "cli/TestKinds.h"
#include "core/RecordLayout.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "report/ColorRuns.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvel::fuzz {

// What the trial of a test file must know about its kind.
struct TestFileKindTried {
    const char* name;      // of the kind, as the program spells it
    const char* countName; // of the number of cups among the results
    std::span<const Field> fields;
    std::string (*record)();                // the bytes of the program's record
    std::optional<int> (*countCups)();      // in it, nothing where the list has no end
    std::vector<ErrorNumber> checkErrors;   // that the data checks can raise
    std::vector<ErrorNumber> reportErrors;  // that a report can raise
    std::vector<ErrorNumber> summaryErrors; // that the summary can raise
    // Look at what was made while the results stand.
    void (*tryGraphs)(std::string_view report);
    void (*trySummary)(const std::string& summary);
};

// The cups in a list by their definition: those before the first two entries in a row that are zero.
template <class Gauge>
std::optional<int> CupsBeforeTwoZeros(const MeasurementList<Gauge>& gauges) {
    for (int i = 1; i < MeasurementList<Gauge>::kLast; ++i) {
        if (gauges[i].Volume == 0.0F && gauges[i + 1].Volume == 0.0F) {
            return i - 1;
        }
    }
    return std::nullopt;
}

// Runs everything that the program does with a test file, each part as a fresh run would.
class TestFileTrial {
public:
    TestFileTrial(const TestFileKindTried& kindTried, std::string_view content);
    ~TestFileTrial();
    TestFileTrial(const TestFileTrial&) = delete;
    TestFileTrial& operator=(const TestFileTrial&) = delete;

    void Run();

private:
    void StartAnew();
    void TryFile();
    void TryDump();
    void TryListing();
    void TryChecks();
    void TryResults();
    void TryReport();
    void TrySummary();

    const TestFileKindTried& tried;
    const cli::TestKind& kind;
    std::string_view file;
    std::filesystem::path path;
    std::string record; // what the file should read as
    cli::MessageCollector boxes;
    cli::SilentBeeper beeper;
    cli::CommandClock clock;
};

// Requires every run to lie in the text, within one line, behind the one before it.
void RequireRunsInText(const ColorRunTable& runs, std::string_view text);

} // namespace orvel::fuzz
