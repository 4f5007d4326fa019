// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/RecoveryPromises.h"

#include "core/SafeFile.h"
#include "core/TestFile.h"
#include "tests/monkey/Windows.h"
#include "ui/Form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableView>
#include <algorithm>
#include <array>
#include <string_view>

namespace orvel::monkey {

namespace {

namespace fs = std::filesystem;

const QWidget* DataWindowShown() {
    for (const QWidget* window : ShownWindows()) {
        if (KindOf(*window) == WindowKind::CenterPivotData || KindOf(*window) == WindowKind::SolidSetData) {
            return window;
        }
    }
    return nullptr;
}

bool IsEntry(const QWidget& control) {
    const QString name = control.objectName();
    return std::ranges::any_of(std::array{"txtBox", "combo", "Combo", "chkBox", "optBtn"},
                               [&name](const char* prefix) { return name.startsWith(prefix); });
}

// What a user sees.
EntryState EntriesOf(const QWidget& window) {
    EntryState entries;
    for (const auto* control : window.findChildren<QWidget*>()) {
        const std::string name = control->objectName().toStdString();
        if (!IsEntry(*control)) {
            continue;
        }
        if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            entries.checks[name] = button->isChecked();
        } else {
            entries.texts[name] = ui::ControlText(window, name);
        }
    }
    const auto* table = window.findChild<QTableView*>("gridTest");
    const QAbstractItemModel& cells = *table->model();
    for (int row = 0; row < cells.rowCount(); ++row) {
        std::vector<std::string>& texts = entries.cells.emplace_back();
        for (int column = 1; column < cells.columnCount(); ++column) {
            texts.push_back(cells.index(row, column).data().toString().toStdString());
        }
    }
    const auto* editor = window.findChild<QLineEdit*>("txtEdit");
    if (!editor->isHidden()) {
        entries.edit = {table->currentIndex().row() + 1, table->currentIndex().column(),
                        editor->text().toStdString()};
    }
    return entries;
}

// The first entry that is not kept as it is shown, but for that of one control; empty for none.
std::string Missing(const EntryState& kept, const EntryState& shown, const std::string& underTheHands) {
    for (const auto& [name, text] : shown.texts) {
        if (const auto found = kept.texts.find(name);
            name != underTheHands && (found == kept.texts.end() || found->second != text)) {
            return name;
        }
    }
    for (const auto& [name, isChecked] : shown.checks) {
        if (const auto found = kept.checks.find(name);
            found == kept.checks.end() || found->second != isChecked) {
            return name;
        }
    }
    return kept.cells == shown.cells ? "" : "a cell";
}

} // namespace

void RecoveryPromises::FindHands(const QWidget& ofWindow) {
    const QWidget* control = ofWindow.focusWidget();
    if (qobject_cast<const QMenuBar*>(control) != nullptr) {
        // A menu gives the focus back.
        return;
    }
    if (control != nullptr && qobject_cast<const QComboBox*>(control->parentWidget()) != nullptr) {
        control = control->parentWidget();
    }
    underTheHands = control == nullptr ? "" : control->objectName().toStdString();
}

std::string RecoveryPromises::Broken(bool endsByError) {
    const QWidget* shownWindow = DataWindowShown();
    // Only what waits for the user has handled all that it was told.
    if (shownWindow == nullptr || (QApplication::activeModalWidget() != shownWindow && !endsByError)) {
        return {};
    }
    if (CurrentFile().empty()) {
        // From the report a data window can be opened without a test.
        return {};
    }
    const EntryState shown = EntriesOf(*shownWindow);
    const fs::path recovery = CurrentFile().native() + ".recovery";
    const bool hasRecovery = fs::exists(recovery);
    const fs::path& source = hasRecovery ? recovery : CurrentFile();
    std::error_code error;
    const auto time = fs::last_write_time(source, error);
    if (window != shownWindow || source != keptIn || time != keptAt) {
        window = shownWindow;
        keptIn = source;
        keptAt = time;
        if (hasRecovery) {
            const auto entries = ReadRecoveryText(ReadFile(recovery));
            if (!entries) {
                return "the recovery file can't be read";
            }
            kept = entries->state;
        } else {
            // Opened or saved just now, or back as it was then.
            if (window != savedIn || time != savedAt) {
                saved = shown;
                savedIn = window;
                savedAt = time;
            }
            kept = saved;
        }
    }
    if (endsByError && kept.edit != shown.edit) {
        return "the open editor would be lost";
    }
    FindHands(*shownWindow);
    const std::string missing = Missing(kept, shown, endsByError ? "" : underTheHands);
    return missing.empty() ? "" : missing + " would be lost: it is not in " + source.filename().native();
}

} // namespace orvel::monkey
