// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/TestKinds.h"

#include "centerpivot/CenterPivotChecks.h"
#include "centerpivot/CenterPivotListing.h"
#include "centerpivot/CenterPivotSummary.h"
#include "cli/ExitStatus.h"
#include "cli/RecordJson.h"
#include "cli/ResultsOutput.h"
#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/RecordLayout.h"
#include "solidset/SolidSetChecks.h"
#include "solidset/SolidSetListing.h"
#include "solidset/SolidSetSummary.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orvel::cli {

namespace {

void LoadCenterPivot(const std::filesystem::path& file) {
    ProgramState& program = Program();
    program.centerPivotTest = ReadTest<CenterPivotTest>(file);
    program.centerPivotFile = file;
    program.testKind = kCenterPivot;
}

void LoadSolidSet(const std::filesystem::path& file) {
    ProgramState& program = Program();
    program.solidSetTest = ReadTest<SolidSetTest>(file);
    program.solidSetFile = file;
    program.testKind = kSolidSet;
}

template <class Test>
Json DumpFile(const std::filesystem::path& file) {
    return DumpTest(ReadTest<Test>(file));
}

template <class Test, Test (*MakeNew)()>
std::string BuildRecord(const Json& json) {
    Test test = MakeNew();
    BuildTest(json, test);
    const auto bytes = AsBytes(test);
    std::string record(bytes.size(), '\0');
    std::memcpy(record.data(), bytes.data(), bytes.size());
    return record;
}

constexpr std::array<TestKind, 2> kKinds = {{
    {kCenterPivot, "cpd", LoadCenterPivot, CheckCenterPivotData, CenterPivotResultsJson,
     CenterPivotResultsListing, &ReportBuilder::BuildCenterPivotReport, BuildCenterPivotSummary,
     CenterPivotListingText, DumpFile<CenterPivotTest>, BuildRecord<CenterPivotTest, NewCenterPivotTest>},
    {kSolidSet, "ssd", LoadSolidSet, SolidSetDataCheck, SolidSetResultsJson, SolidSetResultsListing,
     &ReportBuilder::BuildSolidSetReport, BuildSolidSetSummary, SolidSetListingText, DumpFile<SolidSetTest>,
     BuildRecord<SolidSetTest, NewSolidSetTest>},
}};

} // namespace

const TestKind& KindOf(const std::filesystem::path& file, const std::string& namedKind) {
    const auto* kind = std::ranges::find_if(kKinds, [&](const TestKind& each) {
        return namedKind.empty() ? HasExtension(file, each.extension) : namedKind == each.name;
    });
    if (kind == kKinds.end()) {
        throw CommandError(kWrongUsage, PathUtf8(file),
                           "neither .cpd nor .ssd; --kind says which kind of test it is");
    }
    return *kind;
}

bool HasKnownExtension(const std::filesystem::path& file) {
    return std::ranges::any_of(kKinds,
                               [&file](const TestKind& kind) { return HasExtension(file, kind.extension); });
}

} // namespace orvel::cli
