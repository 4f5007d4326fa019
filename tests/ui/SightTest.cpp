// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/EveryWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <unordered_map>

// Every window on screens of any size and in themes of any colour. These tests are run once more on a small
// screen and on fine ones (tests/ui/CMakeLists.txt).
namespace orvel::testing {

namespace {

class Sight : public EveryWindow {};

// --- Room ----------------------------------------------------------------------------------------------

std::string Named(const QWidget& control) {
    return std::string(control.metaObject()->className()) + " " + control.objectName().toStdString();
}

// The visible children of that kind.
template <class Control>
std::vector<Control*> Shown(const QWidget& window) {
    std::vector<Control*> shown;
    for (Control* control : window.findChildren<Control*>()) {
        if (control->isVisible()) {
            shown.push_back(control);
        }
    }
    return shown;
}

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

// --- Reach ---------------------------------------------------------------------------------------------

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

// --- Colours -------------------------------------------------------------------------------------------

// As the guidelines for accessible content define it (WCAG 2): from 1 to 21.
double Luminance(QRgb color) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

double Contrast(QRgb one, QRgb other) {
    const auto [dark, light] = std::minmax(Luminance(one), Luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

// A window as it is on the screen.
class Picture {
public:
    explicit Picture(QWidget& ofWindow) : window(ofWindow), image(window.grab().toImage()) {}

    // Whether the control's part is not scrolled away.
    [[nodiscard]] static bool Has(const QWidget& control, const QRect& part) {
        bool isSeen = true;
        for (const QWidget* around = &control; isSeen && !around->isWindow();) {
            around = around->parentWidget();
            isSeen = around->rect().contains(QRect(control.mapTo(around, part.topLeft()), part.size()));
        }
        return isSeen;
    }

    // Between what there is most of in the control's part and what stands out most from it.
    [[nodiscard]] double ContrastIn(const QWidget& control, const QRect& part) const {
        const std::unordered_map<QRgb, int> colors = ColorsIn(control, part);
        const QRgb background = MostFrequent(colors);
        double most = 1;
        for (const auto& [color, count] : colors) {
            most = std::max(most, Contrast(color, background));
        }
        return most;
    }

    [[nodiscard]] QRgb BackgroundIn(const QWidget& control, const QRect& part) const {
        return MostFrequent(ColorsIn(control, part));
    }

private:
    static QRgb MostFrequent(const std::unordered_map<QRgb, int>& colors) {
        return std::ranges::max_element(colors, {}, [](const auto& each) { return each.second; })->first;
    }

    [[nodiscard]] std::unordered_map<QRgb, int> ColorsIn(const QWidget& control, const QRect& part) const {
        const double scale = image.devicePixelRatio();
        const QRect seen = part & control.visibleRegion().boundingRect();
        const QPoint corner = control.mapTo(&window, seen.topLeft());
        std::unordered_map<QRgb, int> colors;
        for (int y = qCeil(corner.y() * scale); y < qFloor((corner.y() + seen.height()) * scale); ++y) {
            for (int x = qCeil(corner.x() * scale); x < qFloor((corner.x() + seen.width()) * scale); ++x) {
                ++colors[image.pixel(x, y)];
            }
        }
        return colors;
    }

    QWidget& window;
    QImage image;
};

constexpr double kForText = 4.5;
constexpr double kForPictures = 3;

// The part of a button that has its text.
QRect TextPart(const QAbstractButton& button) {
    constexpr int kBorder = 4;
    QStyleOptionButton option;
    option.initFrom(&button);
    if (qobject_cast<const QCheckBox*>(&button) != nullptr) {
        return button.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    }
    if (qobject_cast<const QRadioButton*>(&button) != nullptr) {
        return button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    }
    return button.rect().adjusted(kBorder, kBorder, -kBorder, -kBorder);
}

QRect TitlePart(const QGroupBox& frame) {
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    option.subControls = QStyle::SC_All;
    return frame.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &frame);
}

// Expects of a part that is seen that it has a text or picture that stands out.
void ExpectContrast(const Picture& picture, const QWidget& control, const QRect& part, double least,
                    const std::string& what) {
    if (Picture::Has(control, part)) {
        EXPECT_GE(picture.ContrastIn(control, part), least) << what;
    }
}

void ExpectLegibleCaptions(const QWidget& window, const Picture& picture, const std::string& where) {
    constexpr int kBorder = 6;
    for (const QLabel* label : Shown<QLabel>(window)) {
        if (label->pixmap().isNull() && !label->text().trimmed().isEmpty()) {
            // Of a text that scrolls, what is seen.
            const QRect part =
                label->height() > window.height() ? label->visibleRegion().boundingRect() : label->rect();
            ExpectContrast(picture, *label, part, kForText, where + ": label " + label->text().toStdString());
        }
    }
    for (const QAbstractButton* button : Shown<QAbstractButton>(window)) {
        const bool isPicture = !button->icon().isNull();
        if (isPicture || !button->text().isEmpty()) {
            ExpectContrast(picture, *button, TextPart(*button), isPicture ? kForPictures : kForText,
                           where + ": button " + button->text().toStdString());
        }
    }
    for (const QGroupBox* frame : Shown<QGroupBox>(window)) {
        ExpectContrast(picture, *frame, TitlePart(*frame), kForText,
                       where + ": frame " + frame->title().toStdString());
    }
    for (const QTabBar* tabs : Shown<QTabBar>(window)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            ExpectContrast(picture, *tabs, tabs->tabRect(tab).adjusted(kBorder, kBorder, -kBorder, -kBorder),
                           kForText, where + ": tab " + tabs->tabText(tab).toStdString());
        }
    }
    for (const QMenuBar* menus : Shown<QMenuBar>(window)) {
        for (QAction* menu : menus->actions()) {
            ExpectContrast(picture, *menus, menus->actionGeometry(menu), kForText,
                           where + ": menu " + menu->text().toStdString());
        }
    }
}

void ExpectLegibleTables(const QWidget& window, const Picture& picture, const std::string& where) {
    const auto inside = [](const QRect& part) { return part.adjusted(2, 2, -2, -2); };
    for (const QTableView* table : Shown<QTableView>(window)) {
        const QHeaderView& header = *table->horizontalHeader();
        for (int column = 0; column < header.count(); ++column) {
            const QRect section(header.sectionViewportPosition(column), 0, header.sectionSize(column),
                                header.height());
            ExpectContrast(picture, *header.viewport(), inside(section), kForText,
                           where + ": header " + std::to_string(column));
            // Not the selected one, whose colours are the theme's.
            const QModelIndex cell = table->model()->index(1, column);
            ExpectContrast(picture, *table->viewport(), inside(table->visualRect(cell)), kForText,
                           where + ": cell " + std::to_string(column));
        }
    }
}

void ExpectLegibleMarks(const QTextEdit& paper, const std::string& where) {
    // The colours are given: pure red on white is just below what text should have, and the green star of the
    // tested setting is explained by the line below it.
    constexpr double kForMarks = 3.99;
    const QRgb sheet = paper.palette().color(QPalette::Base).rgb();
    for (QTextBlock line = paper.document()->begin(); line.isValid(); line = line.next()) {
        for (auto each = line.begin(); !each.atEnd(); ++each) {
            const QTextCharFormat format = each.fragment().charFormat();
            const QColor mark = format.foreground().color();
            if (format.hasProperty(QTextFormat::ForegroundBrush) && mark != QColor(0, 255, 0)) {
                EXPECT_GE(Contrast(mark.rgb(), sheet), kForMarks)
                    << where << ": " << line.text().toStdString();
            }
        }
    }
}

void ExpectLegibleEntries(const QWidget& window, const Picture& picture, const std::string& where) {
    constexpr int kBorder = 4;
    for (const QLineEdit* box : Shown<QLineEdit>(window)) {
        // The colours of a selection are the theme's.
        if (!box->text().trimmed().isEmpty() && !box->hasSelectedText()) {
            ExpectContrast(picture, *box, box->rect().adjusted(kBorder, kBorder, -kBorder, -kBorder),
                           kForText, where + ": " + Named(*box));
        }
        if (box->objectName() == "txtEdit") {
            EXPECT_EQ(box->palette().color(QPalette::Base), box->palette().color(QPalette::Light)) << where;
            const auto& cells = *window.findChild<QTableView*>()->viewport();
            const QRect frame(0, 0, 2, box->height());
            EXPECT_GE(Contrast(picture.BackgroundIn(*box, frame), picture.BackgroundIn(cells, cells.rect())),
                      kForPictures)
                << where << ": the frame of the cell editor";
        }
    }
    for (const QPlainTextEdit* box : Shown<QPlainTextEdit>(window)) {
        if (!box->toPlainText().isEmpty()) {
            ExpectContrast(picture, *box->viewport(), box->viewport()->rect(), kForText,
                           where + ": " + Named(*box));
        }
    }
    for (const QTextEdit* paper : Shown<QTextEdit>(window)) {
        const QWidget& sheet = *paper->viewport();
        EXPECT_EQ(picture.BackgroundIn(sheet, sheet.rect()), QColor(Qt::white).rgb()) << where;
        ExpectContrast(picture, sheet, sheet.rect(), kForText, where);
        EXPECT_EQ(paper->palette().color(QPalette::Text), QColor(Qt::black)) << where;
        ExpectLegibleMarks(*paper, where);
    }
}

void ExpectLegible(QWidget& window, const std::string& where) {
    QApplication::processEvents();
    const Picture picture(window);
    ExpectLegibleCaptions(window, picture, where);
    ExpectLegibleTables(window, picture, where);
    ExpectLegibleEntries(window, picture, where);
}

// The desktop's theme is dark as long as it lives.
class DarkTheme {
public:
    DarkTheme() {
        const QColor window(53, 53, 53);
        QPalette dark(window, window);
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        dark.setColor(QPalette::AlternateBase, window);
        dark.setColor(QPalette::Text, Qt::white);
        dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
        dark.setColor(QPalette::HighlightedText, Qt::black);
        QApplication::setPalette(dark);
        QApplication::processEvents();
    }
    ~DarkTheme() {
        QApplication::setPalette(QPalette());
        QApplication::processEvents();
    }
    DarkTheme(const DarkTheme&) = delete;
    DarkTheme& operator=(const DarkTheme&) = delete;
};

TEST_F(Sight, EveryTextStandsOut) {
    ForEach(ExpectLegible);
}

TEST_F(Sight, EveryTextStandsOutInADarkTheme) {
    const DarkTheme dark;
    ForEach(ExpectLegible);
}

TEST_F(Sight, EveryTextStandsOutWhenTheThemeTurnsDarkUnderAnOpenWindow) {
    ForEach([](QWidget& window, const std::string& where) {
        const DarkTheme dark;
        ExpectLegible(window, where + ", now dark");
    });
}

TEST_F(Sight, EveryTextStandsOutWhenTheThemeTurnsLightUnderAnOpenWindow) {
    auto dark = std::make_unique<DarkTheme>();
    ForEach([&dark](QWidget& window, const std::string& where) {
        dark.reset();
        ExpectLegible(window, where + ", now light");
        dark = std::make_unique<DarkTheme>();
    });
}

} // namespace

} // namespace orvel::testing
