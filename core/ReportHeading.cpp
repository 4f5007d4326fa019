// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ReportHeading.h"

#include "core/FileNames.h"
#include "core/Platform.h"
#include "core/ProgramState.h"
#include "core/Text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace orvel {

namespace {

constexpr std::size_t kLabelColumns = 14;
constexpr std::size_t kClientColumns = 35;

using Lines = std::vector<std::string>;

std::string LabelledLine(std::string_view label, std::string_view value) {
    return PadText(label, kLabelColumns, 'R', ' ').append(value).append(kCrLf);
}

std::string DateTimeText(const DateTime& moment) {
    std::array<char, 80> text{};
    const int length = std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", moment.year,
                                     moment.month, moment.day, moment.hour, moment.minute, moment.second);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string JoinFilled(std::initializer_list<std::string_view> parts) {
    std::string joined;
    for (const std::string_view part : parts) {
        if (!part.empty()) {
            joined.append(joined.empty() ? "" : ", ").append(part);
        }
    }
    return joined;
}

// Adds a line when its value is filled in.
void AddFilled(Lines& lines, std::string_view before, std::string_view value, std::string_view behind = {}) {
    if (!value.empty()) {
        lines.push_back(std::string{before}.append(value).append(behind));
    }
}

Lines ClientLines(const HeadingFields& fields) {
    Lines lines{"Test Conducted For:"};
    AddFilled(lines, "", fields.clientName);
    AddFilled(lines, "", fields.farmName);
    AddFilled(lines, "", fields.operatorName);
    AddFilled(lines, "", fields.address);
    AddFilled(lines, "", JoinFilled({fields.city, fields.state, fields.zip}));
    AddFilled(lines, "", fields.county, " County");
    AddFilled(lines, "", fields.phone);
    AddFilled(lines, "E-Mail: ", fields.eMail);
    return lines;
}

Lines TesterLines(const UserSettings& settings) {
    Lines lines{"For Further Information Contact:"};
    AddFilled(lines, "", settings.Name.Trimmed());
    AddFilled(lines, "", settings.Company.Trimmed());
    AddFilled(lines, "", settings.Address.Trimmed());
    AddFilled(lines, "", settings.CityStateZip.Trimmed());
    AddFilled(lines, "", settings.Phone.Trimmed());
    AddFilled(lines, "E-Mail: ", settings.EMail.Trimmed());
    return lines;
}

std::string SideBySide(const Lines& left, const Lines& right) {
    std::string text;
    for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
        const std::string row = PadText(i < left.size() ? left[i] : "", kClientColumns, 'R', ' ') +
                                (i < right.size() ? right[i] : "");
        text.append(row).append(kCrLf);
    }
    return text;
}

} // namespace

std::string ReportHeadingText(const HeadingFields& fields) {
    std::string text = PadText(fields.title, kReportColumns, 'C', ' ').append(kCrLf);
    text += RuleLine();
    text += LabelledLine("Date of Test: ", fields.dateOfTest);
    text += LabelledLine("File Name:", FileNameText(fields.file));
    text += LabelledLine("Report Date:  ", DateTimeText(CurrentPlatform().clock->Now()));
    text += RuleLine();
    text += SideBySide(ClientLines(fields), TesterLines(Program().userSettings));
    text += RuleLine();
    return text;
}

} // namespace orvel
