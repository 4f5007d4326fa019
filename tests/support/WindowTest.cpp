// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/support/WindowTest.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <sstream>

namespace orvel::testing {

namespace {

std::string Name(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return "Ok";
    case Buttons::YesNo:
        return "YesNo";
    default:
        return "YesNoCancel";
    }
}

std::string Name(Icon icon) {
    switch (icon) {
    case Icon::None:
        return "";
    case Icon::Critical:
        return ", Critical";
    case Icon::Question:
        return ", Question";
    case Icon::Information:
        return ", Information";
    default:
        return ", Warning";
    }
}

} // namespace

Surroundings::~Surroundings() {
    for (const std::string& line : log) {
        ADD_FAILURE() << "not expected: " << line;
    }
    EXPECT_TRUE(replies.empty()) << "a planned reply was not fetched";
    EXPECT_TRUE(paths.empty()) << "a planned path was not fetched";
}

std::string Surroundings::Line(const Message& message) {
    std::string text = message.text;
    std::ranges::replace(text, '\r', '|');
    return "box [" + message.title + "] " + text + " (" + Name(message.buttons) + Name(message.icon) + ")";
}

std::string Surroundings::Line(const std::string& kind, const FileDialog& dialog) {
    std::ostringstream line;
    line << kind << " [" << dialog.title << "] " << dialog.filter << "; " << dialog.defaultExtension << "; 0x"
         << std::hex << dialog.flags << "; " << dialog.initialFolder.string();
    return line.str();
}

Reply Surroundings::Show(const Message& message) {
    Note(Line(message));
    if (message.buttons == Buttons::Ok) {
        return Reply::Ok;
    }
    if (replies.empty()) {
        ADD_FAILURE() << "unplanned question: " << Line(message);
        return Reply::None;
    }
    const Reply reply = replies.front();
    replies.pop_front();
    return reply;
}

std::filesystem::path Surroundings::Open(const FileDialog& dialog) {
    Note(Line("open", dialog));
    return NextPath();
}

std::filesystem::path Surroundings::Save(const FileDialog& dialog) {
    Note(Line("save", dialog));
    return NextPath();
}

std::filesystem::path Surroundings::Browse(const std::string& title) {
    Note("browse [" + title + "]");
    return NextPath();
}

bool Surroundings::ProcessEvents() {
    ADD_FAILURE() << "no window handles the user's keys in the midst of an event";
    return true;
}

std::string Surroundings::BuildCenterPivotSummary() {
    Note("center-pivot summary");
    if (summaryError) {
        Raise(*summaryError);
    }
    return "pivot\r\n";
}

std::string Surroundings::BuildSolidSetSummary() {
    Note("solid-set summary");
    return "solid\r\n";
}

std::filesystem::path Surroundings::NextPath() {
    if (paths.empty()) {
        ADD_FAILURE() << "unplanned dialog";
        return {};
    }
    std::filesystem::path path = paths.front();
    paths.pop_front();
    return path;
}

std::string FakeForm::Text(std::string_view control) const {
    const auto found = texts.find(control);
    if (found == texts.end()) {
        ADD_FAILURE() << "no control " << control;
        return {};
    }
    return found->second;
}

void FakeForm::SetText(std::string_view control, const std::string& text) {
    texts[std::string{control}] = text;
}

WindowTest::WindowTest() {
    UsePlatform({.messageBox = &surroundings,
                 .beeper = &beeper,
                 .clock = &clock,
                 .fileDialogs = &surroundings,
                 .folderBrowser = &surroundings,
                 .keySender = &surroundings,
                 .eventPump = &surroundings});
}

} // namespace orvel::testing
