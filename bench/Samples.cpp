// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"

#include "centerpivot/CenterPivot.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "solidset/SolidSet.h"
#include "tests/support/CompleteUserSettings.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>
#include <string>

namespace orvel::bench {

namespace {

namespace fs = std::filesystem;

const fs::path kExamples = ORVEL_EXAMPLES;

// Catches as a cylinder shows them: half a cc.
class Catches {
public:
    explicit Catches(unsigned seed) : dice(seed) {}

    float Next() {
        // Not a distribution of the standard library: those differ from one library to the next.
        constexpr unsigned kLeast = 100;
        constexpr unsigned kSpread = 121;
        return static_cast<float>(kLeast + dice() % kSpread) / 2;
    }

private:
    std::mt19937 dice;
};

} // namespace

CenterPivotTest PivotSample(int cups, unsigned seed) {
    constexpr int kSpacing = 20; // feet
    auto test = ReadTest<CenterPivotTest>(kExamples / "pivot-1978.cpd");
    Catches catches(seed);
    test.Gauges = {};
    for (int i = 1; i <= cups; ++i) {
        PivotGauge& gauge = test.Gauges[i];
        gauge.Sequence = static_cast<float>(i);
        gauge.Footage = static_cast<float>(i * kSpacing);
        gauge.Volume = catches.Next();
    }
    return test;
}

SolidSetTest SolidSample(int alongX, int alongY, unsigned seed) {
    auto test = ReadTest<SolidSetTest>(kExamples / "solid-set-triangle.ssd");
    Catches catches(seed);
    test.NumberX = std::to_string(alongX);
    test.NumberY = std::to_string(alongY);
    test.Gauges = {};
    const int cups = std::min(alongX * alongY, kMostCups);
    for (int i = 1; i <= cups; ++i) {
        SolidSetGauge& gauge = test.Gauges[i];
        gauge.Sequence = static_cast<float>(i);
        gauge.XAxis = static_cast<float>((i - 1) / alongY + 1);
        gauge.YAxis = static_cast<float>((i - 1) % alongY + 1);
        gauge.Volume = catches.Next();
    }
    return test;
}

void Open(const CenterPivotTest& test) {
    ResetCenterPivot();
    ProgramState& program = Program();
    program.testKind = kCenterPivot;
    program.centerPivotTest = test;
    program.centerPivotFile = "/tests/pivot.cpd";
}

void Open(const SolidSetTest& test) {
    ResetSolidSet();
    ProgramState& program = Program();
    program.testKind = kSolidSet;
    program.solidSetTest = test;
    program.solidSetFile = "/tests/solid.ssd";
}

RichDocument RichTextSample(std::size_t bytes) {
    CharacterFormat plain;
    plain.font = "Arial";
    plain.halfPoints = 20;
    CharacterFormat marked = plain;
    marked.isBold = true;
    marked.color = Color{192, 0, 0};
    Paragraph paragraph;
    paragraph.Append(U"Set out one cup every 20 feet, beginning at the first tower, and read each at once: ",
                     plain);
    paragraph.Append(U"a cup that stands for an hour loses water.", marked);
    paragraph.Append(U" Below 15 \u00B0C it may stand for two. Write the catch in cc.", plain);
    // What WriteRtf makes of the paragraph, with its control words.
    constexpr std::size_t kBytesOfParagraph = 250;
    RichDocument document;
    document.paragraphs.assign(std::max<std::size_t>(bytes / kBytesOfParagraph, 1), paragraph);
    return document;
}

Surroundings::Surroundings() : before(CurrentPlatform()) {
    Platform platform = before;
    platform.messageBox = this;
    platform.beeper = this;
    platform.clock = this;
    UsePlatform(platform);
    ResetProgram();
    FillDefaultSoilTable();
    Program().userSettings = testing::CompleteUserSettings();
}

Surroundings::~Surroundings() {
    UsePlatform(before);
}

} // namespace orvel::bench
