// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/EveryWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <set>

// Every window has room for what it shows. These tests are run once more on a small screen and on fine ones
// (tests/ui/CMakeLists.txt).
namespace orvel::testing {

namespace {

class Sight : public EveryWindow {};

// Of a text that is shortened where it has no room, and whole in its tip.
bool IsShortened(const QLabel& label) {
    return label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

void ExpectRoom(int room, int needed, const std::string& what) {
    EXPECT_GE(room, needed) << what;
}

void ExpectRoomForLabels(const QWidget& window, const std::string& where) {
    for (const QLabel* label : Shown<QLabel>(window)) {
        const std::string what = where + ": label \"" + label->text().toStdString() + "\"";
        const bool isWrapped = label->wordWrap();
        ExpectRoom(label->height(),
                   isWrapped ? label->heightForWidth(label->width()) : label->sizeHint().height(), what);
        if (!IsShortened(*label) && !isWrapped) {
            ExpectRoom(label->width(), label->sizeHint().width(), what);
        }
    }
}

void ExpectRoomForButtons(const QWidget& window, const std::string& where) {
    for (const QAbstractButton* button : Shown<QAbstractButton>(window)) {
        if (qobject_cast<QTabBar*>(button->parentWidget()) != nullptr) {
            continue; // it scrolls the tabs
        }
        const std::string what = where + ": button \"" + button->text().toStdString() + "\"";
        EXPECT_NE(button->objectName(), "qt_toolbar_ext_button") << where << ": hides tools";
        ExpectRoom(button->width(), button->sizeHint().width(), what);
        ExpectRoom(button->height(), button->sizeHint().height(), what);
    }
}

void ExpectRoomForTitles(const QWidget& window, const std::string& where) {
    for (const QGroupBox* frame : Shown<QGroupBox>(window)) {
        ExpectRoom(frame->width(), frame->fontMetrics().horizontalAdvance(frame->title()),
                   where + ": frame " + frame->title().toStdString());
    }
    for (const QTabBar* tabs : Shown<QTabBar>(window)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            const QString text = tabs->tabText(tab).remove('&');
            ExpectRoom(tabs->tabRect(tab).width(), tabs->fontMetrics().horizontalAdvance(text),
                       where + ": tab " + text.toStdString());
        }
    }
    for (const QMenuBar* menus : Shown<QMenuBar>(window)) {
        for (QAction* menu : menus->actions()) {
            const QRect place = menus->actionGeometry(menu);
            const QString text = menu->text().remove('&');
            EXPECT_TRUE(menus->rect().contains(place)) << where << ": menu " << text.toStdString();
            ExpectRoom(place.width(), menus->fontMetrics().horizontalAdvance(text),
                       where + ": menu " + text.toStdString());
        }
    }
}

void ExpectRoomInTables(const QWidget& window, const std::string& where) {
    for (const QTableView* table : Shown<QTableView>(window)) {
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            const std::string what = where + ": column " + std::to_string(column);
            const QString header = table->model()->headerData(column, Qt::Horizontal).toString();
            ExpectRoom(table->columnWidth(column),
                       table->horizontalHeader()->fontMetrics().horizontalAdvance(header), what);
            for (int row = 0; row < table->model()->rowCount(); ++row) {
                const QString text = table->model()->index(row, column).data().toString();
                ExpectRoom(table->columnWidth(column), table->fontMetrics().horizontalAdvance(text), what);
            }
        }
    }
}

void ExpectRoomForChoices(const QWidget& window, const std::string& where) {
    for (const QComboBox* list : Shown<QComboBox>(window)) {
        for (int entry = 0; entry < list->count(); ++entry) {
            ExpectRoom(list->lineEdit()->width(),
                       list->fontMetrics().horizontalAdvance(list->itemText(entry)),
                       where + ": entry " + list->itemText(entry).toStdString());
        }
    }
}

TEST_F(Sight, EveryTextHasItsRoom) {
    ForEach([](QWidget& window, const std::string& where) {
        ExpectRoomForLabels(window, where);
        ExpectRoomForButtons(window, where);
        ExpectRoomForTitles(window, where);
        ExpectRoomInTables(window, where);
        ExpectRoomForChoices(window, where);
    });
}

TEST_F(Sight, EveryWindowOpensOnItsScreenFrameIncluded) {
    ForEach([](QWidget& window, const std::string& where) {
        // Where no window manager draws a frame, there must be room for one.
        constexpr int kLeastBorder = 4;
        constexpr int kLeastTitle = 30;
        const QRect screen = window.screen()->availableGeometry();
        EXPECT_TRUE(screen.contains(window.frameGeometry())) << where;
        EXPECT_LE(window.width() + 2 * kLeastBorder, screen.width()) << where;
        EXPECT_LE(window.height() + kLeastBorder + kLeastTitle, screen.height()) << where;
    });
}

TEST_F(Sight, NothingScrollsWhereTheScreenHasTheRoom) {
    ForEach([](QWidget& window, const std::string& where) {
        for (const QScrollArea* area : Shown<QScrollArea>(window)) {
            if (qobject_cast<QMessageBox*>(&window) != nullptr) {
                continue; // it leaves the user something of the window that it is about
            }
            const QSize beside = window.size() - area->viewport()->size();
            const QSize content = area->widget()->minimumSizeHint();
            const QSize whole = content + beside;
            const QSize room = window.screen()->availableSize() - QSize(10, 40);
            if (whole.width() <= room.width() && whole.height() <= room.height()) {
                EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << where;
                EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << where;
            }
        }
    });
}

const QScrollArea* AreaAround(const QWidget& control) {
    for (const QWidget* each = control.parentWidget(); each != nullptr; each = each->parentWidget()) {
        if (const auto* area = qobject_cast<const QScrollArea*>(each)) {
            return area;
        }
    }
    return nullptr;
}

// What the user must see of a control that has the keys: all of it, but of one that is larger than the area
// that it scrolls in, and of a table, the place where the keys go.
QRect PlaceOfKeys(const QWidget& control) {
    if (const auto* table = qobject_cast<const QTableView*>(&control)) {
        return table->visualRect(table->currentIndex()).translated(table->viewport()->pos());
    }
    const QScrollArea* area = AreaAround(control);
    if (area == nullptr ||
        (control.width() <= area->viewport()->width() && control.height() <= area->viewport()->height())) {
        return control.rect();
    }
    return control.inputMethodQuery(Qt::ImCursorRectangle).toRect();
}

void ExpectInSight(const QWidget& control, const std::string& where) {
    const QRect place = PlaceOfKeys(control);
    for (const QWidget* around = &control; !around->isWindow();) {
        around = around->parentWidget();
        const QRect seen(control.mapTo(around, place.topLeft()), place.size());
        EXPECT_TRUE(around->rect().contains(seen))
            << where << ": " << Named(control) << " in " << Named(*around) << " at " << seen.x() << ", "
            << seen.y() << ", " << seen.width() << " x " << seen.height();
    }
}

TEST_F(Sight, TabBringsEveryControlIntoSight) {
    ForEach([](QWidget& window, const std::string& where) {
        constexpr std::size_t kMostPresses = 100;
        std::set<std::string> visited;
        const QWidget* first = nullptr;
        for (std::size_t presses = 0; QApplication::focusWidget() != nullptr; ++presses) {
            ASSERT_LT(presses, kMostPresses) << where << ": Tab does not come round";
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QApplication::processEvents();
            const QWidget* now = QApplication::focusWidget();
            if (now == first) {
                break;
            }
            ExpectInSight(*now, where);
            visited.insert(now->objectName().toStdString());
            first = first == nullptr ? now : first;
        }
        for (const std::string& name : TabOrder(window)) {
            EXPECT_TRUE(visited.contains(name)) << where << ": " << name;
        }
        if (auto* grid = window.findChild<QTableView*>(); grid != nullptr && grid->isVisible()) {
            grid->setFocus();
            const int begin = grid->currentIndex().row();
            for (int row = begin; row < begin + 40; ++row) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
                QApplication::processEvents();
                EXPECT_EQ(grid->currentIndex().row(), row + 1) << where;
                ExpectInSight(*grid, where);
            }
        }
    });
}

TEST_F(Sight, ButtonsOfAWindowAreInItOrScroll) {
    ForEach([](QWidget& window, const std::string& where) {
        for (const QAbstractButton* button : Shown<QAbstractButton>(window)) {
            if (AreaAround(*button) == nullptr) {
                EXPECT_TRUE(
                    window.rect().contains(QRect(button->mapTo(&window, QPoint(0, 0)), button->size())))
                    << where << ": " << button->text().toStdString();
            }
        }
    });
}

} // namespace

} // namespace orvel::testing
