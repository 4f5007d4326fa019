// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/RichText.h"
#include "report/RtfReader.h"

#include <gtest/gtest.h>

namespace orvel {

namespace {

// The system joins a letter and the point behind it.
TEST(HebrewOnPosix, ALetterAndItsPointAreOneCharacter) {
    EXPECT_TRUE(PlainText(ReadRtf("{\\rtf1\\ansi\\ansicpg1255\\'f9\\'d1}")) == U"\uFB2A");
}

} // namespace

} // namespace orvel
