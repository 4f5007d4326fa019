// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/RecordLayout.h"
#include "entry/frmCenterPivotData.h"
#include "entry/frmSolidSetData.h"
#include "tests/support/TestFiles.h"
#include "tests/support/WindowTest.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvel::testing {

// The view of a data window. Like a toolkit's, a text box that is set says that it has changed, and the grid
// says so when it gets the focus. What happens to the grid and its editor stands in the surroundings' log.
class FakeDataView : public DataView {
public:
    explicit FakeDataView(Surroundings& ofTest) : surroundings(ofTest), form(ofTest) {}

    FakeDataView(const FakeDataView&) = delete;
    FakeDataView& operator=(const FakeDataView&) = delete;

    std::map<std::string, std::vector<std::string>> lists;
    std::map<std::string, std::optional<bool>, std::less<>> checks; // nothing: greyed
    // Events, where a test wants them.
    std::function<void(std::string_view)> onChange;
    std::function<void()> onGridFocus;
    std::function<void()> onShowWholeCell;
    std::function<void()> onShowCurrentCell;
    std::function<void()> onHideEditor;
    // Whether cells, and whether controls that are set, stand in the log.
    bool logsCells = true;
    bool logsControls = false;
    int cellWidth = 90;
    std::string editor = "as it was";
    // What a control shows that the code page lacks.
    std::map<std::string, std::string, std::less<>> typedTexts;
    int postedKeeps = 0;
    Lines notices;

    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& Texts() const { return form.texts; }

    // A text box or a list, empty as it was designed.
    void Add(std::string_view control) { form.texts[std::string{control}] = ""; }

    // What stands in a control, by hand of a program: no event comes.
    void Put(const std::string& control, const std::string& text) { form.texts.at(control) = text; }

    [[nodiscard]] std::string Text(std::string_view control) const override { return form.Text(control); }

    void SetText(std::string_view control, const std::string& text) override;
    void Unload() override { form.Unload(); }

    void SetList(std::string_view control, const std::vector<std::string>& entries) override;
    [[nodiscard]] std::optional<bool> IsChecked(std::string_view control) const override;
    void SetChecked(std::string_view control, bool isChecked) override;
    [[nodiscard]] std::string TypedText(std::string_view control) const override;
    void SetTypedText(std::string_view control, const std::string& text) override;
    void PostKeepEntries() override { ++postedKeeps; }
    void ShowNotice(const std::string& text) override { notices.push_back(text); }
    void ShowGridPage() override { surroundings.Note("page of the grid"); }

    void ShowCell(int row, int column) override;
    void ShowCurrentCell(int row, int column) override;
    void ShowWholeCell(int row, int column) override;

    [[nodiscard]] Area GridArea() const override { return {1000, 2000, 400, 300}; }
    [[nodiscard]] Area CellArea(int row, int column) const override {
        return {100 * column + scrolled, 20 * row + 1, cellWidth + column, 20};
    }
    [[nodiscard]] int ColumnWidth(int column) const override { return 80 + column; }
    [[nodiscard]] int HeaderHeight() const override { return 25; }
    [[nodiscard]] int RowHeight() const override { return 18; }
    void FocusGrid() override;

    [[nodiscard]] std::string EditorText() const override { return editor; }

    void SetEditorText(const std::string& text) override;
    void SelectEditorText(std::size_t start, std::size_t length) override;
    void MoveEditor(const Area& area) override;
    void ShowEditor() override { surroundings.Note("show editor"); }
    void HideEditor() override;
    void FocusEditor() override { surroundings.Note("focus txtEdit"); }

private:
    void NoteCell(const char* what, int row, int column);

    Surroundings& surroundings;
    FakeForm form;
    int scrolled = 0;
};

// What the tests know of the kind of a data window.
template <class Window>
struct KindOf;

template <>
struct KindOf<frmCenterPivotData> {
    using Record = CenterPivotTest;
    static constexpr auto kRecord = &ProgramState::centerPivotTest;
    static constexpr auto kFile = &ProgramState::centerPivotFile;
    static constexpr const char* kName = kCenterPivot;
    static constexpr const char* kFileName = "test.cpd";
    static constexpr const auto& kFields = kCenterPivotFields;
    static constexpr int kColumns = 3;
    static constexpr int kVolume = 2;
    static constexpr const char* kSeven = "07"; // a committed "7"
};

template <>
struct KindOf<frmSolidSetData> {
    using Record = SolidSetTest;
    static constexpr auto kRecord = &ProgramState::solidSetTest;
    static constexpr auto kFile = &ProgramState::solidSetFile;
    static constexpr const char* kName = kSolidSet;
    static constexpr const char* kFileName = "test.ssd";
    static constexpr const auto& kFields = kSolidSetFields;
    static constexpr int kColumns = 4;
    static constexpr int kVolume = 3;
    static constexpr const char* kSeven = "7";
};

// Tests of a data window's logic. The open test is blank, its file is not written yet, and the soil table is
// that of a new installation.
template <class Window>
class DataWindowTest : public WindowTest {
protected:
    using Kind = KindOf<Window>;
    using Record = typename Kind::Record;
    static constexpr int kVolume = Kind::kVolume;

    DataWindowTest() {
        Program().testKind = Kind::kName;
        Program().*Kind::kFile = File();
        Program().programDirectory = folder.Path();
        FillDefaultSoilTable();
        for (const EntryField& entry : window.Entries()) {
            if (!entry.control.starts_with("chkBox")) {
                view.Add(entry.control);
            }
        }
        view.onChange = [this](std::string_view control) { window.TextBox_Change(control); };
        view.onGridFocus = [this] { window.Grid().gridTest_GotFocus(); };
    }

    static Record& Main() { return Program().*Kind::kRecord; }

    [[nodiscard]] std::filesystem::path File() const { return folder / Kind::kFileName; }

    // What the file holds.
    [[nodiscard]] Record Saved() const { return ReadTest<Record>(File()); }

    MeasurementGrid& Grid() { return window.Grid(); }

    // Opens the window, which says nothing.
    void Load() {
        view.logsCells = false;
        window.Form_Load();
        view.logsCells = true;
        EXPECT_EQ(Said(), Lines{});
    }

    // What the grid is told about, other than the cells that change.
    template <class Action>
    Lines SaidButCells(Action action) {
        view.logsCells = false;
        action();
        view.logsCells = true;
        return Said();
    }

    void Save() {
        EXPECT_EQ(SaidButCells([this] { window.mnuFileSave_Click(); }), Lines{});
    }

    // Puts the numbers of the rows into a column, with an offset.
    void NumberCells(int column, int offset) {
        view.logsCells = false;
        for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
            Grid().SetCell(row, column, std::to_string(row + offset));
        }
        view.logsCells = true;
    }

    // A cell's text, by hand of a program.
    void PutCell(int row, int column, const std::string& text) {
        view.logsCells = false;
        Grid().SetCell(row, column, text);
        view.logsCells = true;
    }

    void Go(int row, int column) {
        Grid().MakeCurrent(row, column);
        (void)Said();
    }

    // Opens the editor on a volume and types that text into it.
    void Edit(int row, const std::string& text) {
        Go(row, kVolume);
        Grid().BeginEdit(' ');
        view.editor = text;
        (void)Said();
    }

    [[nodiscard]] std::string Volume(int row) { return Grid().Cell(row, kVolume); }

    // The volumes of all rows from that one on.
    Lines VolumesFrom(int first) {
        Lines texts;
        for (int row = first; row <= MeasurementGrid::kLastRow; ++row) {
            texts.push_back(Volume(row));
        }
        return texts;
    }

    // The volume column's line in the log: "what row,column".
    static std::string Line(const std::string& what, int row, int column = kVolume) {
        return what + " " + std::to_string(row) + "," + std::to_string(column);
    }

    static const Field& FieldNamed(std::string_view name) {
        const auto found = std::ranges::find(Kind::kFields, name, &Field::name);
        EXPECT_NE(found, Kind::kFields.end()) << name;
        return *found;
    }

    // A text field of a record, padding included.
    static std::string WholeField(const Record& record, std::string_view name) {
        return TextOf(FieldBytes(record, FieldNamed(name)));
    }

    static void SetField(Record& record, std::string_view name, std::string_view text) {
        PutText(FieldBytes(record, FieldNamed(name)), text);
    }

    // Expects a record to be, byte for byte, another one.
    static void ExpectSameRecord(const Record& actual, const Record& expected) {
        for (const Field& field : Kind::kFields) {
            EXPECT_TRUE(std::ranges::equal(FieldBytes(actual, field), FieldBytes(expected, field)))
                << field.name;
        }
    }

    TemporaryFolder folder;
    FakeDataView view{surroundings};
    Window window{view, surroundings};
};

} // namespace orvel::testing
