// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Services.h"

#include "cli/ExitStatus.h"
#include "core/CodePage.h"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <ctime>

namespace orvel::cli {

namespace {

namespace chrono = std::chrono;

const char* ButtonsName(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return "OK";
    case Buttons::YesNo:
        return "YesNo";
    case Buttons::YesNoCancel:
        return "YesNoCancel";
    }
    return "";
}

const char* IconName(Icon icon) {
    switch (icon) {
    case Icon::None:
        return "none";
    case Icon::Critical:
        return "critical";
    case Icon::Question:
        return "question";
    case Icon::Information:
        return "information";
    case Icon::Warning:
        return "warning";
    }
    return "";
}

// CR LF and a lone CR become LF.
std::string WithPlainLineEnds(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isCr = text[i] == '\r';
        plain += isCr ? '\n' : text[i];
        if (isCr && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
        }
    }
    return plain;
}

template <class Number>
std::optional<Number> WholeNumber(std::string_view text) {
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end ? std::optional(number) : std::nullopt;
}

DateTime UtcTime(std::int64_t secondsSinceEpoch) {
    const chrono::sys_seconds moment{chrono::seconds(secondsSinceEpoch)};
    const auto midnight = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day date{midnight};
    const chrono::hh_mm_ss time{moment - midnight};
    return {int{date.year()},
            static_cast<int>(unsigned{date.month()}),
            static_cast<int>(unsigned{date.day()}),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

DateTime LocalTime() {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now); // NOLINT(concurrency-mt-unsafe): one thread
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

} // namespace

Reply MessageCollector::Show(const Message& message) {
    messages.push_back(message);
    return message.buttons == Buttons::Ok ? Reply::Ok : Reply::Yes;
}

DateTime CommandClock::Now() {
    if (fixed) {
        return *fixed;
    }
    const char* epoch = std::getenv("SOURCE_DATE_EPOCH"); // NOLINT(concurrency-mt-unsafe): one thread
    if (epoch == nullptr || *epoch == '\0') {
        return LocalTime();
    }
    // The last second of the year 9999: more digits than four would not fit the report's date.
    constexpr std::int64_t kLatest = 253402300799;
    const auto seconds = WholeNumber<std::int64_t>(epoch);
    if (!seconds || *seconds < 0 || *seconds > kLatest) {
        throw CommandError(kWrongUsage, "SOURCE_DATE_EPOCH", "must be a number of seconds since 1970");
    }
    return UtcTime(*seconds);
}

std::optional<DateTime> ParseDateTime(std::string_view text) {
    constexpr std::string_view kForm = "####-##-## ##:##:##";
    if (text.size() != kForm.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < kForm.size(); ++i) {
        const bool isDigit = text[i] >= '0' && text[i] <= '9';
        if (kForm[i] == '#' ? !isDigit : text[i] != kForm[i]) {
            return std::nullopt;
        }
    }
    const auto part = [text](std::size_t begin, std::size_t length) {
        return WholeNumber<int>(text.substr(begin, length)).value_or(0);
    };
    const DateTime moment{part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
    const chrono::year_month_day date{chrono::year(moment.year),
                                      chrono::month(static_cast<unsigned>(moment.month)),
                                      chrono::day(static_cast<unsigned>(moment.day))};
    const bool isTime = moment.hour < 24 && moment.minute < 60 && moment.second < 60;
    return date.ok() && moment.year >= 1 && isTime ? std::optional(moment) : std::nullopt;
}

std::string MessageBlock(const Message& message) {
    std::string text = ToUtf8(WithPlainLineEnds(message.text));
    if (!text.ends_with('\n')) {
        text += '\n';
    }
    return "[" + ToUtf8(message.title) + "]\n" + text + "\n";
}

Json MessagesJson(const std::vector<Message>& messages) {
    Json json = Json::array();
    for (const Message& message : messages) {
        json.push_back({{"title", ToUtf8(message.title)},
                        {"text", ToUtf8(message.text)},
                        {"buttons", ButtonsName(message.buttons)},
                        {"icon", IconName(message.icon)}});
    }
    return json;
}

} // namespace orvel::cli
