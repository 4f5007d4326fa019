// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What the program's logic asks of the machine it runs on. Floor 4 implements these services for a desktop
// or for a terminal; tests put fakes in their place.
namespace orvel {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Critical, Question, Information, Warning };
enum class Reply { None, Ok, Yes, No, Cancel };

// A modal box. The text keeps the CR and CR LF that the logic put into it; it is never markup.
struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

class MessageBoxService {
public:
    virtual ~MessageBoxService() = default;
    // Shows the box and returns the button that closed it.
    virtual Reply Show(const Message& message) = 0;
};

class Beeper {
public:
    virtual ~Beeper() = default;
    virtual void Beep() = 0;
};

// A local date and time of day.
struct DateTime {
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0;   // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() = 0;
};

// The services in force. All must be set before any routine that uses them is called; the caller of
// UsePlatform keeps the objects alive.
struct Platform {
    MessageBoxService* messageBox = nullptr;
    Beeper* beeper = nullptr;
    Clock* clock = nullptr;
};

[[nodiscard]] const Platform& CurrentPlatform();
void UsePlatform(const Platform& platform);

} // namespace orvel
