// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/StartUp.h"

#include "core/Version.h"
#include "core/frmAbout.h"
#include "core/frmSplash.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace orvel {

namespace {

using testing::Lines;

// Each time the events are handled, a second passes. After `mostRounds` the program is to end.
class PassingTime : public Clock, public EventPump {
public:
    int second = 0;
    int rounds = 0;
    int mostRounds = 200;

    DateTime Now() override { return {2026, 11, 21, 15, 4, second % 60}; }

    bool ProcessEvents() override {
        ++second;
        ++rounds;
        return rounds < mostRounds;
    }

    void ProcessAllButInput() override { ADD_FAILURE() << "the splash window must be closable meanwhile"; }
};

class StartingUp : public testing::WindowTest {
protected:
    StartingUp() {
        UsePlatform({.messageBox = &surroundings, .beeper = &beeper, .clock = &time, .eventPump = &time});
    }

    // The rounds that a pause takes which begins at that second; 200 when it never ends.
    int RoundsOfPause(int n, int second) {
        time.second = second;
        time.rounds = 0;
        const bool goesOn = Pause(n);
        EXPECT_EQ(goesOn, time.rounds < time.mostRounds);
        return time.rounds;
    }

    PassingTime time;
};

TEST_F(StartingUp, TheClockTextIsTheTwelveHourFormWithSeconds) {
    EXPECT_EQ(ClockText({2026, 1, 1, 15, 4, 5}), "3:04:05 PM");
    EXPECT_EQ(ClockText({2026, 1, 1, 0, 0, 9}), "12:00:09 AM");
    EXPECT_EQ(ClockText({2026, 1, 1, 12, 30, 59}), "12:30:59 PM");
    EXPECT_EQ(ClockText({2026, 1, 1, 11, 59, 0}), "11:59:00 AM");
}

TEST_F(StartingUp, APauseEndsWhenTheSecondsHaveReachedItsTarget) {
    EXPECT_EQ(RoundsOfPause(2, 0), 2);
    EXPECT_EQ(RoundsOfPause(2, 30), 2);
    EXPECT_EQ(RoundsOfPause(2, 57), 2);
    EXPECT_EQ(RoundsOfPause(5, 50), 5);
}

TEST_F(StartingUp, APauseWhoseTargetIsSixtyNeverEnds) {
    EXPECT_EQ(RoundsOfPause(2, 58), 200);
    EXPECT_EQ(RoundsOfPause(10, 50), 200);
}

TEST_F(StartingUp, APauseAcrossTheMinuteAimsTwiceAsFar) {
    // From 59 the target is 59 + 2 * 2 - 60; the second after 59 is 0.
    EXPECT_EQ(RoundsOfPause(2, 59), 4);
    // From 55 it is 15, which 56 has passed.
    EXPECT_EQ(RoundsOfPause(10, 55), 1);
}

TEST_F(StartingUp, ShowsTheMainWindowBeforeTheSplashWindowGoes) {
    EXPECT_TRUE(StartUp(surroundings));
    EXPECT_EQ(surroundings.Said(), (Lines{"show frmSplash", "show frmMain", "unload frmSplash"}));
}

TEST_F(StartingUp, AProgramThatEndsMeanwhileShowsNoMainWindow) {
    time.second = 58;
    EXPECT_FALSE(StartUp(surroundings));
    EXPECT_EQ(surroundings.Said(), (Lines{"show frmSplash"}));
}

TEST_F(StartingUp, SplashAndAboutShowTheVersion) {
    EXPECT_TRUE(std::regex_match(VersionText(), std::regex(R"(Version \d+\.\d+\.\d+)")));
    testing::FakeForm splash(surroundings);
    frmSplash(splash).Form_Load();
    EXPECT_EQ(splash.texts.at("lblVersion"), VersionText());

    testing::FakeForm about(surroundings);
    frmAbout window(about);
    window.Form_Load();
    EXPECT_EQ(about.texts.at("lblTitle"), "ORVEL");
    EXPECT_EQ(about.texts.at("lblVersion"), VersionText());
    window.cmdOK_Click();
    EXPECT_EQ(surroundings.Said(), (Lines{"unload"}));
}

} // namespace

} // namespace orvel
