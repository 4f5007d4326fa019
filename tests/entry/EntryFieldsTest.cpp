// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryFields.h"

#include "tests/entry/DataWindowTest.h"

#include <array>
#include <cstddef>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <string_view>

namespace orvel {

namespace {

using testing::ExpectRunTimeError;
using testing::FakeDataView;
using testing::Lines;

// A record of texts of 5 and 3 characters, a flag and a text of 4 that no rule looks after.
constexpr std::array<Field, 5> kRecord = {{
    {"Owner", 0, 5, FieldKind::Text},
    {"Crop", 5, 3, FieldKind::Text},
    {"IsWet", 8, 2, FieldKind::Flag},
    {"Depth", 10, 4, FieldKind::Text},
    {"Rate", 14, 4, FieldKind::Single},
}};
// Behind the end of the form stands what is not in it.
constexpr std::array<EntryField, 5> kEntries = {{
    {"txtBoxOwner", EntryRule::Length, "comboCrop"},
    {"comboCrop", EntryRule::Length},
    {"chkBoxIsWet"},
    {"txtBoxDepth", EntryRule::Numeric},
    {"optBtnOther", EntryRule::Length},
}};
constexpr std::span kForm = std::span(kEntries).first<4>();

class EntryFields : public testing::WindowTest {
protected:
    EntryFields() {
        Put(" Ann x  \xFF\xFF 1  rate");
        for (const char* control : {"txtBoxOwner", "comboCrop", "txtBoxDepth"}) {
            view.Add(control);
        }
        view.onChange = [this](std::string_view control) { form.CheckLength(control); };
    }

    void Put(std::string_view bytes) {
        std::ranges::transform(bytes, record.begin(), [](char c) { return static_cast<std::byte>(c); });
    }

    [[nodiscard]] std::string Bytes() const { return TextOf(record); }

    std::array<std::byte, 18> record{};
    FakeDataView view{surroundings};
    EntryForm form{view, kForm, kRecord};
};

TEST_F(EntryFields, AFieldIsNamedAsItsControlWithoutThePrefix) {
    EXPECT_EQ(FieldName("txtBoxClientName"), "ClientName");
    EXPECT_EQ(FieldName("comboSoilType"), "SoilType");
    EXPECT_EQ(FieldName("ComboTypeSprinkler"), "TypeSprinkler");
    EXPECT_EQ(FieldName("chkBoxHasEndGun"), "HasEndGun");
    EXPECT_EQ(FieldName("labelFile"), "");
    EXPECT_EQ(FieldName("mytxtBoxName"), "");
}

TEST_F(EntryFields, OnlyTextsAndFlagsOfTheRecordCanBeEdited) {
    constexpr std::array<EntryField, 2> kNumber = {{{"txtBoxOwner"}, {"txtBoxRate"}}};
    constexpr std::array<EntryField, 2> kForeign = {{{"txtBoxOwner"}, {"txtBoxNothing"}}};
    constexpr bool isFormInRecord = AreInRecord(kForm, kRecord);
    constexpr bool isNumberInRecord = AreInRecord(kNumber, kRecord);
    constexpr bool isForeignInRecord = AreInRecord(kForeign, kRecord);
    EXPECT_TRUE(isFormInRecord);
    EXPECT_FALSE(isNumberInRecord);
    EXPECT_FALSE(isForeignInRecord);
}

TEST_F(EntryFields, LoadingShowsTextsWithoutBlanksAndFlagsAsTheyAre) {
    form.Load(record);
    EXPECT_EQ(view.Text("txtBoxOwner"), "Ann");
    EXPECT_EQ(view.Text("comboCrop"), "x");
    EXPECT_EQ(view.Text("txtBoxDepth"), "1");
    EXPECT_EQ(view.checks.at("chkBoxIsWet"), true);
    EXPECT_EQ(view.Texts().size(), 3U);
    Put(std::string_view("Ann x   \0\0 1  rate", 18));
    form.Load(record);
    EXPECT_EQ(view.checks.at("chkBoxIsWet"), false);
    Put(std::string_view("Ann x   \5\0 1  rate", 18));
    form.Load(record);
    EXPECT_EQ(view.checks.at("chkBoxIsWet"), true) << "a foreign flag";
}

TEST_F(EntryFields, StoringTrimsCutsAndPads) {
    form.Load(record);
    view.Put("txtBoxOwner", "  a b ");
    view.Put("comboCrop", "  barley");
    view.Put("txtBoxDepth", "");
    view.checks["chkBoxIsWet"] = false;
    form.Store(record);
    EXPECT_EQ(Bytes(), std::string("a b  bar\0\0    rate", 18));
    view.checks["chkBoxIsWet"] = true;
    form.Store(record);
    EXPECT_EQ(Bytes(), "a b  bar\xFF\xFF    rate");
}

TEST_F(EntryFields, AGreyedCheckBoxLeavesItsFlag) {
    Put(std::string_view("Ann  x  \5\0 1  rate", 18));
    form.Load(record);
    view.checks["chkBoxIsWet"] = std::nullopt;
    form.Store(record);
    EXPECT_EQ(Bytes(), std::string("Ann  x  \5\0001   rate", 18));
}

TEST_F(EntryFields, OneTextCanBeStoredAlone) {
    form.Load(record);
    view.Put("txtBoxOwner", "Bo");
    view.Put("comboCrop", "y");
    form.StoreText("comboCrop", record);
    EXPECT_EQ(Bytes(), " Ann y  \xFF\xFF 1  rate");
}

TEST_F(EntryFields, ATextLongerThanItsFieldIsCutWithAMessage) {
    form.Load(record);
    view.SetText("comboCrop", "rye");
    EXPECT_EQ(Said(), Lines{});
    view.SetText("comboCrop", "oats");
    EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 3 (Ok)"}));
    EXPECT_EQ(view.Text("comboCrop"), "oat");
    view.SetText("txtBoxDepth", "123456789");
    EXPECT_EQ(Said(), Lines{});
    EXPECT_EQ(view.Text("txtBoxDepth"), "123456789") << "numbers are cut when they are stored";
    form.CheckLength("chkBoxIsWet");
    form.CheckLength("optBtnOther");
    EXPECT_EQ(Said(), Lines{});
}

TEST_F(EntryFields, ATextThatFitsIsNotSetAgain) {
    form.Load(record);
    view.logsControls = true;
    form.CheckLength("txtBoxOwner");
    EXPECT_EQ(Said(), Lines{}) << "the caret stays where it is";
}

TEST_F(EntryFields, ABoxCanLookAfterAnotherOneToo) {
    form.Load(record);
    view.Put("comboCrop", "oats");
    view.SetText("txtBoxOwner", "Bo");
    EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 3 (Ok)"}));
    EXPECT_EQ(view.Text("comboCrop"), "oat");
    view.Put("txtBoxOwner", "abcdefg");
    view.SetText("comboCrop", "x");
    EXPECT_EQ(Said(), Lines{}) << "not the other way round";
    view.Put("comboCrop", "oats");
    form.CheckLength("txtBoxOwner");
    EXPECT_EQ(Said(), (Lines{"box [Input Error] Maximim Characters in this field is 5 (Ok)",
                             "box [Input Error] Maximim Characters in this field is 3 (Ok)"}))
        << "its own first";
    EXPECT_EQ(view.Text("txtBoxOwner"), "abcde");
}

TEST_F(EntryFields, AControlThatEditsNoFieldIsAnError) {
    form.Load(record);
    ExpectRunTimeError(ErrorNumber::InvalidProcedureCall, [this] { form.StoreText("txtBoxNone", record); });
}

} // namespace

} // namespace orvel
