// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Records.h"

namespace orvel {

CenterPivotTest NewCenterPivotTest() {
    CenterPivotTest test;
    test.SoilType = kPromptSoilType;
    test.SoilSlope = kPromptSoilSlope;
    test.CommonTillage = kPromptCommonTillage;
    test.SystemManufacturer = kPromptSystemManufacturer;
    test.TypeSprinkler = kPromptTypeSprinkler;
    test.OperatingTimes = kPromptOperatingTimes;
    return test;
}

SolidSetTest NewSolidSetTest() {
    SolidSetTest test;
    test.SoilType = kPromptSoilType;
    test.SoilSlope = kPromptSoilSlope;
    test.CommonTillage = kDefaultSolidSetTillage;
    test.SystemManufacturer = kPromptSprinklerManufacturer;
    test.OperatingTimes = kPromptOperatingTimes;
    return test;
}

} // namespace orvel
