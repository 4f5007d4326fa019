// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryState.h"

#include <gtest/gtest.h>
#include <string>

namespace orvel {

namespace {

RecoveredEntries SomeEntries() {
    RecoveredEntries entries;
    entries.testKind = "centerPivot";
    entries.written = "2026-07-04 09:05:03";
    entries.state.texts = {{"txtBoxClientName", "A. Grower"}, {"txtBoxCrops", ""}};
    entries.state.checks = {{"chkBoxHasEndGun", true}, {"chkBoxObservedLeaks", false}};
    entries.state.cells.assign(300, {"", ""});
    entries.state.cells[0] = {"10", "07"};
    entries.state.cells[299] = {"7475", "."};
    entries.state.edit = CellEdit{300, 2, "1"};
    return entries;
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t place = text.find(what);
    EXPECT_NE(place, std::string::npos) << what;
    return text.replace(place, what.size(), by);
}

TEST(EntryState, ARecoveryFileIsReadableJson) {
    const std::string text = RecoveryText(SomeEntries());
    EXPECT_TRUE(text.starts_with("{\n \"orvel recovery\": 1,\n \"kind\": \"centerPivot\",\n"
                                 " \"written\": \"2026-07-04 09:05:03\",\n \"texts\": {\n"
                                 "  \"txtBoxClientName\": \"A. Grower\",\n"))
        << text;
    EXPECT_TRUE(
        text.ends_with("\n \"edit\": {\n  \"row\": 300,\n  \"column\": 2,\n  \"text\": \"1\"\n }\n}\n"));
}

TEST(EntryState, WhatIsWrittenIsReadBack) {
    RecoveredEntries entries = SomeEntries();
    EXPECT_EQ(ReadRecoveryText(RecoveryText(entries)), entries);
    entries.state.edit.reset();
    EXPECT_EQ(ReadRecoveryText(RecoveryText(entries)), entries);
    const std::string odd("\0\1\"\\/\r\n\t\x7F", 9);
    entries.state.texts["txtBoxOtherComments"] = odd + "\u00B0\u2603\U0001F33D" + std::string(100000, 'x');
    entries.state.cells[7][1] = odd;
    EXPECT_EQ(ReadRecoveryText(RecoveryText(entries)), entries);
}

TEST(EntryState, ATextThatIsNoUnicodeCostsOnlyItsOddBytes) {
    RecoveredEntries entries = SomeEntries();
    entries.state.texts["txtBoxCrops"] = "Corn\xFF";
    const auto read = ReadRecoveryText(RecoveryText(entries));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->state.texts.at("txtBoxCrops"), "Corn\uFFFD");
    EXPECT_EQ(read->state.texts.at("txtBoxClientName"), "A. Grower");
}

TEST(EntryState, HalfAFileIsNone) {
    const std::string whole = RecoveryText(SomeEntries());
    for (std::size_t length = 0; length + 1 < whole.size(); length += 7) {
        EXPECT_FALSE(ReadRecoveryText(whole.substr(0, length))) << length;
    }
    EXPECT_TRUE(ReadRecoveryText(whole.substr(0, whole.size() - 1))) << "the last line end";
}

TEST(EntryState, AnotherFileIsNone) {
    const std::string whole = RecoveryText(SomeEntries());
    for (const auto& [what, by] : std::initializer_list<std::pair<const char*, const char*>>{
             {"orvel recovery", "some recovery"},
             {"\"orvel recovery\": 1", "\"orvel recovery\": 2"},
             {"\"orvel recovery\": 1", "\"orvel recovery\": {}"},
             {"\"centerPivot\"", "7"},
             {"\"2026-07-04 09:05:03\"", "null"},
             {"\"written\"", "\"when\""},
             {"\"A. Grower\"", "[]"},
             {": true", ": \"yes\""},
             {"\"chkBoxHasEndGun\"", "chkBoxHasEndGun"},
             {"\"07\"", "7"},
             {"\"07\"", "\"07\", \"08\""},
             {"\"row\": 300", "\"row\": 301"},
             {"\"row\": 300", "\"row\": 0"},
             {"\"row\": 300", "\"row\": \"3\""},
             {"\"column\": 2", "\"column\": 0"},
             {"\"column\": 2", "\"column\": 3"},
             {"\"column\": 2", "\"column\": -1"},
             {"\"edit\"", "\"edited\""},
             {"\"text\": \"1\"", "\"text\": null"}}) {
        EXPECT_FALSE(ReadRecoveryText(Replaced(whole, what, by))) << what << " -> " << by;
    }
    for (const char* text : {"", "{}", "[]", "null", "1", "\"orvel recovery\"", "{\"orvel recovery\": 1}"}) {
        EXPECT_FALSE(ReadRecoveryText(text)) << text;
    }
}

TEST(EntryState, ATableOfAnotherSizeIsNone) {
    RecoveredEntries entries = SomeEntries();
    entries.state.cells.pop_back();
    entries.state.edit.reset();
    EXPECT_FALSE(ReadRecoveryText(RecoveryText(entries)));
    entries.state.cells.assign(301, {"", ""});
    EXPECT_FALSE(ReadRecoveryText(RecoveryText(entries)));
    entries.state.cells.assign(300, {});
    EXPECT_FALSE(ReadRecoveryText(RecoveryText(entries)));
    entries.state.cells.assign(300, {"", "", ""});
    EXPECT_TRUE(ReadRecoveryText(RecoveryText(entries))) << "solid set";
}

TEST(EntryState, DeepNestingIsNone) {
    EXPECT_FALSE(ReadRecoveryText(std::string(1000000, '[')));
    EXPECT_FALSE(ReadRecoveryText(std::string(100000, '[') + std::string(100000, ']')));
}

} // namespace

} // namespace orvel
