// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"

#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orvel::testing {

inline std::ostream& operator<<(std::ostream& stream, const Message& message) {
    return stream << "[" << message.title << "] " << message.text;
}

// A strict message box: every box must be planned, in order, and every planned box must come.
class FakeMessageBox : public MessageBoxService {
public:
    ~FakeMessageBox() override {
        for (const Planned& planned : plan) {
            ADD_FAILURE() << "planned message never came: [" << planned.message.title << "] "
                          << planned.message.text;
        }
    }

    void Expect(const Message& message, Reply reply = Reply::Ok) { plan.push_back({message, reply}); }

    Reply Show(const Message& message) override {
        if (plan.empty()) {
            ADD_FAILURE() << "unplanned message: [" << message.title << "] " << message.text;
            return Reply::None;
        }
        const Planned planned = plan.front();
        plan.pop_front();
        EXPECT_EQ(message.text, planned.message.text);
        EXPECT_EQ(message.title, planned.message.title);
        EXPECT_EQ(message.buttons, planned.message.buttons);
        EXPECT_EQ(message.icon, planned.message.icon);
        return planned.reply;
    }

private:
    struct Planned {
        Message message;
        Reply reply;
    };

    std::deque<Planned> plan;
};

// A strict beeper: it must sound exactly as often as planned.
class FakeBeeper : public Beeper {
public:
    ~FakeBeeper() override { EXPECT_EQ(beeps, expectedBeeps) << "beeps"; }

    void Expect(int count) { expectedBeeps += count; }

    void Beep() override { ++beeps; }

private:
    int beeps = 0;
    int expectedBeeps = 0;
};

// A clock that stands at the time it was set to.
class FakeClock : public Clock {
public:
    DateTime now{2026, 7, 4, 9, 5, 3};

    DateTime Now() override { return now; }
};

} // namespace orvel::testing
