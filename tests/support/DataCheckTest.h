// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "tests/support/LogicTest.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::testing {

inline constexpr const char* kNoMeasurements = "You Have Not Entered Any Irrigation Measurements.\r\n";
inline constexpr const char* kFewMeasurements = "You Have Entered Less Than 3 Irrigation Measurements.\r\n";
inline constexpr const char* kNoClient = "You Should Enter the Client Name.\r\n";

inline std::string ZeroCatch(int cup) {
    return "No Value Was Entered For Gauge: " + std::to_string(cup) + "\r\n";
}

inline std::string HighCatch(int cup) {
    return "The Value For Gauge " + std::to_string(cup) + " May be High (>200% of Average).\r\n";
}

inline std::string LowCatch(int cup) {
    return "The Value For Gauge " + std::to_string(cup) + " May be Low (<50% of Average).\r\n";
}

// Tests of a kind's data check, over the fixture of the kind: it begins with a test that has no fault.
template <class KindTest, bool (*Check)()>
class DataCheckTest : public KindTest {
protected:
    DataCheckTest() { this->FillTest(); }

    // Runs the check, which must find exactly these errors and warnings, and keep the last box.
    void Expect(const std::string& errors, const std::string& warnings) {
        std::string lastText = "what was said before";
        Program().messageText = lastText;
        Program().messageReply = Reply::No;
        if (!errors.empty()) {
            lastText = "You Have Errors That Will Prevent Report Creation.\r\n\r\n" + errors +
                       "\r\n\r\nPlease Correct Entries.";
            this->messageBox.Expect({lastText, "Errors in Data", Buttons::Ok, Icon::Critical}, Reply::Ok);
        }
        if (!warnings.empty()) {
            lastText = "Potention Input Problems Were Found.\r\n\r\n" + warnings +
                       "\r\n\r\nThese May Not Be Errors, But Should Be Checked.";
            this->messageBox.Expect({lastText, "Possible Errors in Data", Buttons::Ok, Icon::Critical},
                                    Reply::Ok);
        }
        EXPECT_EQ(Check(), errors.empty());
        EXPECT_EQ(Program().messageText, lastText);
        EXPECT_EQ(Program().messageReply, errors.empty() && warnings.empty() ? Reply::No : Reply::Ok);
    }

    void ExpectErrors(const std::vector<float>& volumes, const std::string& errors) {
        this->SetVolumes(volumes);
        Expect(errors, "");
    }

    void ExpectWarnings(const std::vector<float>& volumes, const std::string& warnings) {
        this->SetVolumes(volumes);
        Expect("", warnings);
    }

    // The check ends before it shows anything.
    static void ExpectRaised(ErrorNumber number) {
        Program().messageText = "";
        ExpectRunTimeError(number, [] { (void)Check(); });
        EXPECT_EQ(Program().messageText, "");
    }

    void ExpectThreeMeasurementsWanted() {
        const std::string none = std::string(kNoMeasurements) + kFewMeasurements;
        ExpectErrors({10, 0, 0}, kFewMeasurements);
        ExpectErrors({10, 10, 0, 0, 10, 10}, kFewMeasurements);
        ExpectErrors({10, 10, 10}, "");
        ExpectErrors({}, none);
        ExpectErrors({0, 0, 10, 10, 10}, none);
    }

    void ExpectRemarksOnCatches() {
        ExpectWarnings({1, 0, 3, 0, 0}, ZeroCatch(2) + HighCatch(3));
        // Each of these lists averages 10 cc.
        ExpectWarnings({20, 5, 5, 10}, "");
        ExpectWarnings({20.5F, 5, 9.5F, 5}, HighCatch(1));
        ExpectWarnings({4.9F, 15.1F, 10, 10}, LowCatch(1));
        ExpectWarnings({10, 0, 20, 10, 10}, ZeroCatch(2));
        ExpectWarnings({0, 12, 0, 28, 4, 16}, ZeroCatch(1) + ZeroCatch(3) + HighCatch(4) + LowCatch(5));
        // What lies behind the list is neither counted nor remarked on.
        ExpectWarnings({10, 10, 10, 0, 0, 900, 1}, "");
        ExpectWarnings({-5, 15, 20}, LowCatch(1));
        // A gauge's number has no padding.
        std::vector<float> volumes(100, 10.0F);
        volumes.at(99) = 30;
        ExpectWarnings(volumes, HighCatch(100));
    }

    void ExpectSumAverageAndBoundsKeptAsSingles() {
        constexpr float kTwo21 = 2097152.0F;
        constexpr float kTwo24 = 16777216.0F;
        // Added behind 2^24 the two ones are lost, and half of the average is exactly 2^21, which is not low
        // ...
        ExpectWarnings({kTwo24, kTwo21, kTwo21, 1, 1}, HighCatch(1) + LowCatch(4) + LowCatch(5));
        // ... but added before it they count.
        ExpectWarnings({1, 1, kTwo24, kTwo21, kTwo21},
                       LowCatch(1) + LowCatch(2) + HighCatch(3) + LowCatch(4) + LowCatch(5));
        // The bounds themselves, and a hair outside of them.
        ExpectWarnings({0.5F, 0.25F, 0.125F, 0.125F}, "");
        ExpectWarnings({0.5F + 0x1p-24F, 0.25F, 0.125F, 0.125F - 0x1p-24F}, HighCatch(1) + LowCatch(4));
    }

    // An endless list is left to the caller, before any field is trimmed.
    void ExpectEndlessListRaises() {
        this->Test().ClientName = "  A. Client";
        for (const int readings : {299, 300}) {
            this->SetEqualVolumes(readings);
            ExpectRaised(ErrorNumber::SubscriptOutOfRange);
        }
        EXPECT_EQ(this->Test().ClientName.Whole().substr(0, 3), "  A") << "it counts before it trims";
        this->SetEqualVolumes(298);
        Expect("", "");
    }

    // One that is not counted is not looked at, nor is what only says where a cup stands.
    template <class Gauge>
    void ExpectVolumeThatIsNoNumberRaises(Single Gauge::*place) {
        constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        for (const float volume : {kNaN, kInfinity}) {
            this->SetVolumes({10, volume, 10});
            ExpectRaised(ErrorNumber::Overflow);
        }
        this->SetVolumes({10, 10, 10, 0, 0, kNaN});
        this->Test().Gauges[1].*place = kInfinity;
        Expect("", "");
    }
};

} // namespace orvel::testing
