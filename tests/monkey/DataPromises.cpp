// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/DataPromises.h"

#include "core/CodePage.h"
#include "tests/monkey/Windows.h"
#include "ui/Form.h"

#include <QApplication>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTableView>
#include <algorithm>
#include <array>
#include <string_view>

namespace orvel::monkey {

namespace {

struct Limit {
    const char* control;
    std::size_t characters;
};

constexpr std::array<Limit, 17> kLimits = {{
    {"txtBoxClientName", 35},
    {"txtBoxFarmName", 35},
    {"txtBoxOperatorName", 35},
    {"txtBoxClientAddress", 35},
    {"txtBoxClientCity", 35},
    {"txtBoxClientCounty", 35},
    {"txtBoxFieldName", 35},
    {"txtBoxEMail", 35},
    {"txtBoxClientState", 30},
    {"txtBoxClientZip", 30},
    {"txtBoxClientPhone", 30},
    {"txtBoxCrops", 75},
    {"txtBoxFieldComments", 500},
    {"txtBoxSystemComments", 500},
    {"txtBoxSystemAge", 25},
    {"txtBoxSprinklerAge", 25},
    {"txtBoxDateofTest", 15},
}};
constexpr std::size_t kOtherCommentsOfPivot = 2000;
constexpr std::size_t kOtherCommentsOfSolidSet = 3000;

constexpr std::array<std::string_view, 19> kNumberBoxes = {
    "txtBoxDistanceToTower",
    "txtBoxEstFlowRate",
    "txtBoxMeasuredFlowRate",
    "txtBoxEstimatedPressure",
    "txtBoxMeasuredPressure",
    "txtBoxEndGunArc",
    "txtBoxPercentTimer",
    "txtBoxGuageDiameter",
    "txtBoxRadLastSprinkler",
    "txtBoxDistanceToFirstGuage",
    "txtBoxGuageSpacing",
    "txtBoxEndGunAcres",
    "txtBoxTravelSpeedFeet",
    "txtBoxTravelSpeedMinutes",
    "txtBoxTravelSpeedSeconds",
    "txtBoxLengthOverhang",
    "txtBoxEndGunRadius",
    "txtBoxDuration",
    "txtEdit",
};

struct List {
    const char* control;
    int entriesOfPivot;
    int entriesOfSolidSet;
};

constexpr std::array<List, 6> kLists = {{
    {"comboSoilType", 7, 8},
    {"comboSoilSlope", 5, 5},
    {"ComboCommonTillage", 5, 4},
    {"ComboSystemManufacturer", 7, 7},
    {"ComboOperatingTimes", 5, 5},
    {"ComboTypeSprinkler", 7, 0},
}};

bool IsPivot(const QWidget& window) {
    return KindOf(window) == WindowKind::CenterPivotData;
}

std::string BrokenByLimit(const QWidget& window, const Limit& limit) {
    if (window.findChild<QWidget*>(limit.control) == nullptr) {
        return {};
    }
    const std::size_t length = FromUtf8(ui::ControlText(window, limit.control)).size();
    return length <= limit.characters ? ""
                                      : limit.control + (" has " + std::to_string(length)) + " characters";
}

std::string BrokenByTexts(const QWidget& window) {
    const std::size_t otherComments = IsPivot(window) ? kOtherCommentsOfPivot : kOtherCommentsOfSolidSet;
    std::string broken = BrokenByLimit(window, {"txtBoxOtherComments", otherComments});
    for (auto limit = kLimits.begin(); limit != kLimits.end() && broken.empty(); ++limit) {
        broken = BrokenByLimit(window, *limit);
    }
    return broken;
}

std::string BrokenByLists(const QWidget& window) {
    for (const List& list : kLists) {
        const int entries = IsPivot(window) ? list.entriesOfPivot : list.entriesOfSolidSet;
        const auto* combo = window.findChild<QComboBox*>(list.control);
        if ((combo == nullptr ? 0 : combo->count()) != entries) {
            return list.control + std::string(" has other entries than it was filled with");
        }
    }
    return {};
}

std::string BrokenByCells(const QTableView& table, int columns) {
    constexpr int kRows = 300;
    static const QRegularExpression volume(R"(-?\d*|\.)");
    static const QRegularExpression whole(QRegularExpression::anchoredPattern(volume.pattern()));
    const QAbstractItemModel& cells = *table.model();
    if (cells.rowCount() != kRows || cells.columnCount() != columns) {
        return "the grid has other rows or columns than it should";
    }
    for (int row = 0; row < kRows; ++row) {
        const auto text = [&](int column) { return cells.index(row, column).data().toString(); };
        if (text(0) != QString::number(row + 1)) {
            return "row " + std::to_string(row + 1) + " has another number";
        }
        if (!whole.match(text(columns - 1)).hasMatch()) {
            return "the volume of row " + std::to_string(row + 1) + " is " + text(columns - 1).toStdString();
        }
    }
    return {};
}

std::string BrokenByEditor(const QTableView& table, const QLineEdit& editor) {
    if (!editor.isVisible()) {
        return QApplication::focusWidget() == &editor ? "the editor is hidden and has the focus" : "";
    }
    const QModelIndex cell = table.currentIndex();
    if (cell.column() != table.model()->columnCount() - 1) {
        return "the editor is open beside the volumes";
    }
    static const QRegularExpression number(QRegularExpression::anchoredPattern(R"(-?\d*\.?\d*)"));
    if (!number.match(editor.text()).hasMatch()) {
        return "the editor has " + editor.text().toStdString();
    }
    QRect area = table.visualRect(cell);
    area.moveTopLeft(table.viewport()->mapTo(table.parentWidget(), area.topLeft()));
    return editor.geometry() == area ? "" : "the editor is not over its cell";
}

} // namespace

bool IsNumberBox(const QLineEdit& box) {
    const std::string name = box.objectName().toStdString();
    return std::ranges::find(kNumberBoxes, name) != kNumberBoxes.end() || name.starts_with("txtBoxMin") ||
           name.starts_with("txtBoxMax") ||
           (name == "txtBoxTotalAcres" && KindOf(*box.window()) == WindowKind::CenterPivotData);
}

std::string BrokenByDataWindow(const QWidget& window) {
    if (QApplication::activeModalWidget() != &window) {
        // An action of it still waits for an answer.
        return {};
    }
    constexpr int kColumnsOfPivot = 3;
    constexpr int kColumnsOfSolidSet = 4;
    const auto& table = *window.findChild<QTableView*>("gridTest");
    for (const std::string& broken :
         {BrokenByTexts(window), BrokenByLists(window),
          BrokenByCells(table, IsPivot(window) ? kColumnsOfPivot : kColumnsOfSolidSet),
          BrokenByEditor(table, *window.findChild<QLineEdit*>("txtEdit"))}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    return {};
}

std::string BrokenBySoils(const QWidget& window) {
    constexpr std::size_t kWidthOfName = 20;
    constexpr int kSoils = 7;
    if (QApplication::activeModalWidget() != &window) {
        return {};
    }
    for (int row = 1; row <= kSoils; ++row) {
        const std::string name = "txtBoxSoil" + std::to_string(row);
        std::string broken = BrokenByLimit(window, {name.c_str(), kWidthOfName});
        if (!broken.empty()) {
            return broken;
        }
    }
    return {};
}

} // namespace orvel::monkey
