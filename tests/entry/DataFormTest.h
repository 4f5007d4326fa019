// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/entry/DataWindowTest.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orvel::testing {

// Tests of the controls of a data window and the fields behind them.
template <class Window>
class DataFormTest : public DataWindowTest<Window> {
protected:
    using Base = DataWindowTest<Window>;

    // A text of that length in which every cut shows.
    static std::string TextOfLength(std::size_t length) {
        std::string text;
        while (text.size() < length) {
            text += std::to_string(text.size()) + ";";
        }
        return text.substr(0, length);
    }

    // The lists in the order in which opening the window fills them.
    Lines FilledLists() {
        this->view.logsControls = true;
        Lines lists;
        for (const std::string& line : this->SaidButCells([this] { this->window.Form_Load(); })) {
            if (line.starts_with("list ")) {
                lists.push_back(line.substr(5));
            }
        }
        this->view.logsControls = false;
        return lists;
    }

    using Limits = std::map<std::string, std::size_t>;

    // Those of the boxes that both kinds have, but for the other comments.
    static Limits SharedLimits() {
        return {{"txtBoxClientName", 35},     {"txtBoxFarmName", 35},        {"txtBoxOperatorName", 35},
                {"txtBoxClientAddress", 35},  {"txtBoxClientCity", 35},      {"txtBoxClientCounty", 35},
                {"txtBoxFieldName", 35},      {"txtBoxEMail", 35},           {"txtBoxClientState", 30},
                {"txtBoxClientZip", 30},      {"txtBoxClientPhone", 30},     {"txtBoxCrops", 75},
                {"txtBoxFieldComments", 500}, {"txtBoxSystemComments", 500}, {"txtBoxSprinklerAge", 25},
                {"txtBoxDateofTest", 15}};
    }

    // Expects exactly those boxes to look after their own length while the user types.
    void ExpectLimits(const Limits& limits) {
        FakeDataView& view = this->view;
        for (const auto& [control, limit] : limits) {
            const std::string longest = TextOfLength(limit);
            view.SetText(control, longest);
            EXPECT_EQ(this->Said(), Lines{}) << control;
            view.SetText(control, longest + "x");
            EXPECT_EQ(this->Said(), (Lines{"box [Input Error] Maximim Characters in this field is " +
                                           std::to_string(limit) + " (Ok)"}))
                << control;
            EXPECT_EQ(view.Text(control), longest) << control;
        }
        const std::string endless = TextOfLength(4000);
        for (const auto& [control, text] : view.Texts()) {
            if (!limits.contains(control)) {
                view.SetText(control, endless);
                EXPECT_EQ(view.Text(control), endless) << control;
            }
        }
        EXPECT_EQ(this->Said(), Lines{});
    }

    // Expects exactly those boxes to have the numeric key filter.
    void ExpectNumberBoxes(const std::set<std::string>& expected) {
        std::set<std::string> filtered;
        for (const EntryField& entry : this->window.Entries()) {
            if (entry.rule == EntryRule::Numeric) {
                filtered.emplace(entry.control);
            }
        }
        EXPECT_EQ(filtered, expected);
    }

    // Expects those combo boxes, a text box for each other text of the record but those, a check box for each
    // flag, and no other control.
    void ExpectControls(std::set<std::string> combos, std::set<std::string> withoutTextBox) {
        std::set<std::string> expected = combos;
        for (const std::string& combo : combos) {
            withoutTextBox.insert(combo.substr(5));
        }
        for (const Field& field : Base::Kind::kFields) {
            const std::string name{field.name};
            if (field.kind == FieldKind::Flag) {
                expected.insert("chkBox" + name);
            } else if (field.kind == FieldKind::Text && !withoutTextBox.contains(name)) {
                expected.insert("txtBox" + name);
            }
        }
        std::set<std::string> controls;
        for (const EntryField& entry : this->window.Entries()) {
            controls.emplace(entry.control);
        }
        EXPECT_EQ(controls, expected);
        EXPECT_EQ(controls.size(), this->window.Entries().size());
    }

    // Expects every text of the record to be shown trimmed in its control, and every text of a control to be
    // stored trimmed, cut and padded in its field. The texts begin with a digit, as the soil type has to.
    void ExpectTextsShownAndStored() {
        std::map<std::string, std::string> fields; // of the controls
        for (const EntryField& entry : this->window.Entries()) {
            const std::string name{FieldName(entry.control)};
            if (Base::FieldNamed(name).kind == FieldKind::Text) {
                Base::SetField(this->Main(), name, "  9" + std::to_string(fields.size()));
                fields[std::string{entry.control}] = name;
            }
        }
        this->Load();
        std::size_t number = 0;
        for (const EntryField& entry : this->window.Entries()) {
            if (fields.contains(std::string{entry.control})) {
                EXPECT_EQ(this->view.Text(entry.control), "9" + std::to_string(number++)) << entry.control;
            }
        }
        for (const auto& [control, name] : fields) {
            this->view.Put(control, "  8" + name + "  ");
        }
        (void)this->SaidButCells([this] { this->window.mnuFileSave_Click(); });
        for (const auto& [control, name] : fields) {
            std::string stored = "8" + name;
            stored.resize(Base::FieldNamed(name).width, ' ');
            EXPECT_EQ(Base::WholeField(this->Saved(), name), stored) << control;
        }
    }
};

} // namespace orvel::testing
