// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/EveryWindow.h"
#include "tests/ui/UserKeys.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/QtPlatform.h"
#include "ui/SolidSetDataDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <set>

// Everything that is entered, by keys alone.
namespace orvel::testing {

namespace {

class EntryKeys : public EveryWindow {};

TEST_F(EntryKeys, ScrollsTheTextOfALongBox) {
    std::string text;
    for (int line = 0; line < 300; ++line) {
        text += "one more line\r\n";
    }
    WhileModal(
        [&] {
            ui::QtMessageBox().Show({text, "Data Warnings"});
        },
        [](QWidget& box) {
            ShowActive(box);
            auto& area = *box.findChild<QScrollArea*>();
            EXPECT_TRUE(TabTo(area));
            PressKey(Qt::Key_PageDown);
            EXPECT_GT(area.verticalScrollBar()->value(), 0);
            EXPECT_TRUE(TabTo(*box.findChild<QPushButton*>()));
            PressKey(Qt::Key_Space);
        });
}

// Does with the control that has the keys what it is for; whether that came of it.
bool UseEntry(QWidget& control) {
    if (auto* box = qobject_cast<QLineEdit*>(&control)) {
        PressKey(Qt::Key_End);
        const QString before = box->text();
        PressKey(Qt::Key_Backspace);
        PressKey(Qt::Key_7);
        return box->text() == before.left(before.size() - 1) + '7';
    }
    if (auto* box = qobject_cast<QPlainTextEdit*>(&control)) {
        const QString before = box->toPlainText();
        PressKey(Qt::Key_Home);
        PressKey(Qt::Key_7);
        return box->toPlainText() == '7' + before;
    }
    if (auto* list = qobject_cast<QComboBox*>(&control)) {
        const int before = list->currentIndex();
        PressKey(before == list->count() - 1 ? Qt::Key_Up : Qt::Key_Down);
        return list->currentIndex() != before;
    }
    if (auto* button = qobject_cast<QCheckBox*>(&control)) {
        const bool before = button->isChecked();
        PressKey(Qt::Key_Space);
        return button->isChecked() != before;
    }
    if (auto* option = qobject_cast<QRadioButton*>(&control)) {
        for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Right}) {
            if (!option->hasFocus()) {
                PressKey(arrow);
            }
        }
        PressKey(Qt::Key_Space);
        return option->isChecked();
    }
    if (auto* table = qobject_cast<QTableView*>(&control)) {
        const int before = table->currentIndex().row();
        PressKey(Qt::Key_Down);
        PressKey(Qt::Key_7);
        return table->currentIndex().row() == before + 1 &&
               QApplication::focusWidget()->objectName() == "txtEdit";
    }
    if (auto* text = qobject_cast<QTextEdit*>(&control)) {
        PressKey(Qt::Key_A, Qt::ControlModifier);
        return text->textCursor().hasSelection();
    }
    if (qobject_cast<QTabBar*>(&control) != nullptr || qobject_cast<QPushButton*>(&control) != nullptr ||
        qobject_cast<QToolButton*>(&control) != nullptr || qobject_cast<QScrollArea*>(&control) != nullptr) {
        return true; // tested elsewhere
    }
    ADD_FAILURE() << "what are the keys of a " << control.metaObject()->className() << "?";
    return false;
}

TEST_F(EntryKeys, EntersIntoEveryControlOfEveryWindow) {
    std::set<std::string> kinds;
    ForEach([&kinds](QWidget& window, const std::string& where) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const bool isOwn = control->isVisible() && control->isEnabled() &&
                               control->focusProxy() == nullptr &&
                               (control->focusPolicy() & Qt::TabFocus) != 0;
            const bool isOption = qobject_cast<QRadioButton*>(control) != nullptr && control->isVisible();
            // The editor of a list is a part of it, that of the grid comes with it.
            const bool isPart = qobject_cast<QComboBox*>(control->parentWidget()) != nullptr ||
                                control->objectName() == "txtEdit";
            if ((isOwn || isOption) && !isPart) {
                const std::string what = where + ": " + control->metaObject()->className() + " " +
                                         control->objectName().toStdString();
                EXPECT_TRUE(TabTo(*control)) << what;
                EXPECT_TRUE(UseEntry(*control)) << what;
                kinds.insert(control->metaObject()->className());
            }
        }
    });
    EXPECT_EQ(kinds, (std::set<std::string>{"QCheckBox", "QComboBox", "QLineEdit", "QPlainTextEdit",
                                            "QPushButton", "QRadioButton", "QScrollArea", "QTabBar",
                                            "QTableView", "QTextEdit", "QToolButton"}));
}

TEST_F(EntryKeys, TurnsToEveryPageByLetterAndInTurn) {
    const auto expectPages = [](QWidget& window) {
        ShowActive(window);
        auto& pages = Find<QTabWidget>(window, "tabPages");
        for (int page = pages.count() - 1; page >= 0; --page) {
            EXPECT_TRUE(PressMnemonic(pages.tabText(page), Qt::AltModifier));
            EXPECT_EQ(pages.currentIndex(), page);
        }
        for (int page = 1; page <= pages.count(); ++page) {
            PressKey(Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(pages.currentIndex(), page % pages.count());
        }
        PressKey(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(pages.currentIndex(), pages.count() - 1);
        EXPECT_TRUE(TabTo(*pages.tabBar()));
        PressKey(Qt::Key_Left);
        EXPECT_EQ(pages.currentIndex(), pages.count() - 2);
    };
    OpenCopy(kCenterPivot, "pivot-1978.cpd");
    ui::CenterPivotDataDialog pivot(nullptr, surroundings);
    expectPages(pivot);
    pivot.hide();
    OpenCopy(kSolidSet, "solid-set-1997.ssd");
    ui::SolidSetDataDialog solid(nullptr, surroundings);
    expectPages(solid);
}

TEST_F(EntryKeys, EditsTheMeasurements) {
    OpenCopy(kCenterPivot, "pivot-1978.cpd");
    ui::CenterPivotDataDialog pivot(nullptr, surroundings);
    ShowActive(pivot);
    const auto& table = Find<QTableView>(pivot, "gridTest");
    const auto cell = [&table](int row) {
        return table.model()->index(row - 1, 2).data().toString().toStdString();
    };
    EXPECT_TRUE(PressMnemonic("&Test Data", Qt::AltModifier));
    EXPECT_TRUE(TabTo(table));
    PressKey(Qt::Key_7);
    PressKey(Qt::Key_Return);
    EXPECT_EQ(cell(1), "07");
    PressKey(Qt::Key_8);
    PressKey(Qt::Key_Escape);
    EXPECT_EQ(cell(1), "07");
    const auto change = [this](Qt::Key key) {
        surroundings.replies = {Reply::Yes};
        PressKey(Qt::Key_Space);
        PressKey(key);
        EXPECT_TRUE(surroundings.replies.empty()) << key << " asks nothing";
        surroundings.replies.clear();
    };
    change(Qt::Key_Insert);
    EXPECT_EQ(cell(2), "07");
    change(Qt::Key_F10);
    EXPECT_EQ(cell(3), "07");
    change(Qt::Key_Delete);
    EXPECT_EQ(cell(2), "07");
    // It leaves the end of the table current.
    while (table.currentIndex().row() > 0) {
        PressKey(Qt::Key_PageUp);
    }
    change(Qt::Key_F9);
    EXPECT_EQ(cell(1), "07");
    Said();
}

} // namespace

} // namespace orvel::testing
