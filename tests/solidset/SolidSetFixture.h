// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "solidset/SolidSet.h"
#include "tests/support/CatchCanCases.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::testing {

// Tests of the solid-set floor: the program and its solid-set results stand at program start.
class SolidTest : public LogicTest {
protected:
    SolidTest() { ResetSolidSet(); }

    ~SolidTest() override { ResetSolidSet(); }

    static SolidSetTest& Test() { return Program().solidSetTest; }

    // Entries 1, 2, ... of the measurement list, three to a column of the grid; what it held is gone.
    static void SetVolumes(const std::vector<float>& volumes) {
        Test().Gauges = {};
        for (std::size_t i = 0; i < volumes.size(); ++i) {
            SolidSetGauge& gauge = Test().Gauges[static_cast<int>(i) + 1];
            gauge.Sequence = static_cast<float>(i + 1);
            gauge.XAxis = static_cast<float>(i / kCupsOfAColumn + 1);
            gauge.YAxis = static_cast<float>(i % kCupsOfAColumn + 1);
            gauge.Volume = volumes[i];
        }
    }

    static void SetEqualVolumes(int count) {
        SetVolumes(std::vector<float>(static_cast<std::size_t>(count), 100.0F));
    }

    // Every entry plausible: four by three cups that caught 100 cc on average, nothing for the checks to
    // complain of.
    static void FillTest() {
        SolidSetTest& test = Test();
        test.ClientName = "Marsh Hollow Nursery";
        test.DateofTest = "06/12/1997";
        test.OperatorName = "D. Okafor";
        test.ClientAddress = "48 Sawmill Lane";
        test.ClientCity = "Marsh Hollow";
        test.ClientCounty = "Sample";
        test.ClientZip = "00000";
        test.ClientState = "XX";
        test.ClientPhone = "555-0139";
        test.EMail = "yard@nursery.example";
        test.FarmName = "River Block";
        test.FieldName = "Block 7";
        test.SoilType = "Sandy Loam";
        test.SoilSlope = "0-1 Percent";
        test.Crops = "Container stock";
        test.CommonTillage = "No Till";
        test.FieldComments = "Level.";
        test.SystemManufacturer = "Nelson";
        test.SprinklerAge = "4 years";
        test.SystemComments = "All turn.";
        test.EstFlowRate = "12";
        test.MeasuredFlowRate = "11.5";
        test.EstimatedPressure = "50";
        test.MeasuredPressure = "48";
        test.NumberX = "4";
        test.NumberY = "3";
        test.ObservedLeaks = true;
        test.OperatingTimes = "Nighttime Only";
        test.GuageDiameter = "10";
        test.TotalAcres = "2.5";
        test.OtherComments = "Repeat.";
        test.Layout = "T";
        test.SprinklerSpacing = "80 by 80 ft";
        test.Duration = "60";
        SetVolumes({80, 100, 120, 100, 90, 110, 95, 105, 100, 100, 85, 115});
    }

private:
    static constexpr std::size_t kCupsOfAColumn = 3;
};

// Tests of the calculation and of what it leaves when it ends early.
class SolidCalculationTest : public SolidTest {
protected:
    static SolidSetResults& Results() { return SolidResults(); }

    static float Depth(std::size_t cup) { return Results().SolidSetDepths.at(cup); }

    static void LeaveEarlierResults() {
        Results().SolidSetCupCount = 7;
        Results().SolidSetDepths.fill(kEarlier);
        LeaveEarlier(Results(), kSingles);
    }

    static void ExpectComputed(std::size_t count) { ExpectNew(Results(), kSingles, count); }

    void CalculateWith(int number, const std::string& description) {
        messageBox.Expect(GenerationErrorMessage(number, description));
        CalculateSolidSet();
    }

    static constexpr std::array kSingles = {
        &SolidSetResults::SolidSetMaximumDepth,
        &SolidSetResults::SolidSetAverageDepth,
        &SolidSetResults::SolidSetCU,
        &SolidSetResults::SolidSetDU,
        &SolidSetResults::SolidSetApplicationRate,
    };
};

// A field of the record, for tables of cases about blank or faulty entries of 20 characters.
using SolidNumberField = FixedText<20> SolidSetTest::*;

} // namespace orvel::testing
