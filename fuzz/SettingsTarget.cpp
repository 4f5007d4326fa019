// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/Fuzz.h"
#include "fuzz/RecordFile.h"

#include "cli/Services.h"
#include "core/EntryRules.h"
#include "core/NumberText.h"
#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/Text.h"
#include "core/UserSettingsCheck.h"
#include "settings/frmSoilIntake.h"
#include "settings/frmUserData.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

// The settings that the program keeps. An input is both user.usr and soil.dat.
namespace orvel::fuzz {

namespace {

using testing::Contents;
using testing::PutContents;

// A window that shows what it is given.
class PlainView : public FormView {
public:
    [[nodiscard]] std::string Text(std::string_view control) const override {
        return texts.at(std::string{control});
    }

    void SetText(std::string_view control, const std::string& text) override {
        texts[std::string{control}] = text;
    }

    void Unload() override { isUnloaded = true; }

    [[nodiscard]] bool IsUnloaded() const { return isUnloaded; }

private:
    std::map<std::string, std::string> texts;
    bool isUnloaded = false;
};

// Every question is answered with No, so that incomplete settings are saved as well.
class AnswersNo : public cli::MessageCollector {
public:
    Reply Show(const Message& message) override {
        (void)MessageCollector::Show(message);
        return message.buttons == Buttons::Ok ? Reply::Ok : Reply::No;
    }
};

void TryUserSettings(const std::filesystem::path& file, std::string_view input, const AnswersNo& boxes) {
    PutContents(file, input);
    LoadUserSettings();
    const std::string record = RecordOf(input, kUserSettingsFields);
    Require(BytesOf(Program().userSettings) == record, "user.usr is read as it stands");
    Require(Contents(file) == SavedOver(input, record), "user.usr is written back as it was read");

    const bool isComplete = CheckUserSettings();
    Require(boxes.Messages().size() == (isComplete ? 0 : 1), "what is missing is told in one box");
    (void)DefaultFolder();
    Require(IsOnlyTrimmed(record, BytesOf(Program().userSettings), kUserSettingsFields),
            "only the default folder is touched, and only trimmed");

    PlainView view;
    frmUserData window(view);
    const std::string shown = BytesOf(Program().userSettings);
    window.Form_Load();
    window.cmdBtnSave_Click();
    Require(view.IsUnloaded(), "the settings can be saved");
    Require(Program().userSettings.SettingsComplete.IsSet() == isComplete, "the file says if it is complete");
    constexpr std::size_t kTexts = kUserSettingsFields.back().offset;
    Require(Contents(file) == SavedOver(input, BytesOf(Program().userSettings)), "the settings are saved");
    Require(Contents(file).substr(0, kTexts) == shown.substr(0, kTexts), "the window saves what it shows");
}

// A rate that the window shows and reads back.
float ShownRate(float rate) {
    const std::string text = RateText(rate);
    return text.empty() ? 0.0F : ToSingle(text);
}

void TrySoilTable(const std::filesystem::path& file, std::string_view input) {
    PutContents(file, input);
    LoadSoilTable();
    const SoilIntakeTable read = Program().soilIntakeTable;
    std::string records;
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        constexpr std::size_t kWidth = sizeof(SoilIntakeRow);
        const std::string_view rest = input.substr(std::min(input.size(), (row - 1) * kWidth));
        const std::string record = RecordOf(rest, kSoilIntakeFields);
        Require(BytesOf(read[row]) == record, "a row of soil.dat is read as it stands");
        records += record;
    }
    Require(Contents(file) == input, "soil.dat is only read");

    PlainView view;
    frmSoilIntake window(view);
    window.Form_Load();
    window.cmdBtnSave_Click();
    Require(view.IsUnloaded(), "the soils can be saved");
    const SoilIntakeTable saved = ReadSoilTable(Program().programDirectory);
    for (std::size_t row = 1; row <= kSoilRows; ++row) {
        Require(saved[row].SoilName.Trimmed() == read[row].SoilName.Trimmed(), "a soil keeps its name");
        Require(saved[row].MinIntake == ShownRate(read[row].MinIntake) &&
                    saved[row].MaxIntake == ShownRate(read[row].MaxIntake),
                "a soil keeps the rates that are shown");
    }
    Require(Contents(file).substr(records.size()) == SavedOver(input, records).substr(records.size()),
            "what lay behind the rows stays");
}

} // namespace

bool Try(std::string_view input) {
    static const testing::TemporaryFolder folder;
    ResetProgram();
    Program().programDirectory = folder.Path();
    AnswersNo boxes;
    cli::SilentBeeper beeper;
    UsePlatform({.messageBox = &boxes, .beeper = &beeper});
    TryUserSettings(folder / "user.usr", input, boxes);
    TrySoilTable(folder / "soil.dat", input);
    return true;
}

} // namespace orvel::fuzz
