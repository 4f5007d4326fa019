// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "centerpivot/CenterPivot.h"
#include "core/ProgramState.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::testing {

// Tests of the center-pivot floor: the program and its pivot results stand at program start.
class PivotTest : public LogicTest {
protected:
    PivotTest() { ResetCenterPivot(); }

    ~PivotTest() override { ResetCenterPivot(); }

    static CenterPivotTest& Test() { return Program().centerPivotTest; }

    static CupDepth& Row(int row) { return CupDepths()[static_cast<std::size_t>(row)]; }

    // Entries 1, 2, ... of the measurement list; what it held is gone.
    static void SetCups(const std::vector<float>& volumes, const std::vector<float>& distances) {
        Test().Gauges = {};
        for (std::size_t i = 0; i < volumes.size(); ++i) {
            PivotGauge& gauge = Test().Gauges[static_cast<int>(i) + 1];
            gauge.Sequence = static_cast<float>(i + 1);
            gauge.Volume = volumes[i];
            gauge.Footage = distances.at(i);
        }
    }

    // The same, the first cup standing 30 feet from the pivot and the others 20 feet apart.
    static void SetVolumes(const std::vector<float>& volumes) {
        std::vector<float> distances;
        for (std::size_t i = 0; i < volumes.size(); ++i) {
            distances.push_back(30.0F + 20.0F * static_cast<float>(i));
        }
        SetCups(volumes, distances);
    }

    static void SetEqualVolumes(int count) {
        SetVolumes(std::vector<float>(static_cast<std::size_t>(count), 100.0F));
    }

    // Every entry plausible: eight cups, nothing for the checks to complain of.
    static void FillTest() {
        CenterPivotTest& test = Test();
        test.ClientName = "Alder Creek Farms";
        test.DateofTest = "08/15/1978";
        test.FarmName = "Home Place";
        test.OperatorName = "R. Lindqvist";
        test.ClientAddress = "1200 County Road 14";
        test.ClientCity = "Alder Creek";
        test.ClientCounty = "Sample";
        test.ClientZip = "00000";
        test.ClientState = "XX";
        test.ClientPhone = "555-0114";
        test.EMail = "office@farm.example";
        test.FarmNameCopy = "Home Place (copy)";
        test.FieldName = "North quarter";
        test.SoilType = "4 - Loam";
        test.SoilSlope = "1-3 Percent";
        test.Crops = "Corn-Alfalfa";
        test.CommonTillage = "No Till";
        test.FieldComments = "Stubble.";
        test.SystemComments = "Serviced.";
        test.SystemManufacturer = "Reinke";
        test.TypeSprinkler = "LEPA";
        test.SystemAge = "6 years";
        test.SprinklerAge = "2 years";
        test.DistanceToTower = "1380";
        test.EstFlowRate = "900";
        test.MeasuredFlowRate = "1000";
        test.EstimatedPressure = "45";
        test.MeasuredPressure = "42";
        test.HasEndGun = true;
        test.EndGunShutoff = false;
        test.EndGunArc = "180";
        test.ObservedLeaks = true;
        test.OperatingTimes = "Daytime Only";
        test.PercentTimer = "40";
        test.GuageDiameter = "10";
        test.DistanceToFirstGuage = "30";
        test.TravelSpeedFeet = "36";
        test.TravelSpeedMinutes = "10";
        test.TravelSpeedSeconds = "0";
        test.GuageSpacing = "20";
        test.TotalAcres = "150";
        test.EndGunAcres = "6";
        test.OtherComments = "Repeat.";
        test.LengthOverhang = "40";
        test.EndGunRadius = "30";
        test.RadLastSprinkler = "35";
        SetVolumes({80, 100, 120, 100, 90, 110, 95, 105});
    }
};

// A field of the record, for tables of cases about blank or faulty entries of 20 characters.
using NumberField = FixedText<20> CenterPivotTest::*;

} // namespace orvel::testing
