// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Json.h"
#include "core/Platform.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The platform services of a program without windows.
namespace orvel::cli {

// Keeps the boxes that the logic shows; each counts as answered with its first button.
class MessageCollector : public MessageBoxService {
public:
    Reply Show(const Message& message) override;

    [[nodiscard]] const std::vector<Message>& Messages() const { return messages; }
    void Clear() { messages.clear(); }

private:
    std::vector<Message> messages;
};

// There is nobody to hear it.
class SilentBeeper : public Beeper {
public:
    void Beep() override {}
};

// The time that was given, else SOURCE_DATE_EPOCH (UTC; an empty one counts as unset), else the local time.
class CommandClock : public Clock {
public:
    explicit CommandClock(const std::optional<DateTime>& given) : fixed(given) {}
    // Raises CommandError when SOURCE_DATE_EPOCH is no number of seconds.
    DateTime Now() override;

private:
    std::optional<DateTime> fixed;
};

// "YYYY-MM-DD HH:MM:SS"; nothing when it is no date and time of that form, or before the year 1.
[[nodiscard]] std::optional<DateTime> ParseDateTime(std::string_view text);

// A box as a block for a terminal: "[title]", its text with LF line ends, an empty line.
[[nodiscard]] std::string MessageBlock(const Message& message);
// Boxes as JSON, their texts exactly as the logic made them.
[[nodiscard]] Json MessagesJson(const std::vector<Message>& messages);

} // namespace orvel::cli
