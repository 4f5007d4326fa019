// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/EveryWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>
#include <QTextBlock>
#include <QTextEdit>
#include <algorithm>
#include <cmath>
#include <gtest/gtest-spi.h>
#include <memory>
#include <unordered_map>

// What every window shows stands out from its background, in light themes and dark ones.
namespace orvel::testing {

namespace {

class Theme : public EveryWindow {};

// As the guidelines for accessible content define it (WCAG 2): from 1 to 21.
double Luminance(QRgb color) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(color)) + 0.7152 * part(qGreen(color)) + 0.0722 * part(qBlue(color));
}

double Contrast(QRgb one, QRgb other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
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

// The desktop's theme as long as it lives.
class DesktopTheme {
public:
    explicit DesktopTheme(const QPalette& palette) {
        QApplication::setPalette(palette);
        QApplication::processEvents();
    }
    ~DesktopTheme() {
        QApplication::setPalette(QPalette());
        QApplication::processEvents();
    }
    DesktopTheme(const DesktopTheme&) = delete;
    DesktopTheme& operator=(const DesktopTheme&) = delete;
};

QPalette Dark() {
    const QColor window(53, 53, 53);
    QPalette dark(window, window);
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::AlternateBase, window);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::black);
    return dark;
}

// Texts of the colour of their background.
QPalette Illegible() {
    const QColor window(220, 220, 220);
    QPalette palette(window, window);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::Base}) {
        palette.setColor(role, window);
    }
    return palette;
}

TEST_F(Theme, EveryTextStandsOut) {
    ForEach(ExpectLegible);
}

TEST_F(Theme, WhereATextDoesNotStandOutItIsFound) {
    using Reporter = ::testing::ScopedFakeTestPartResultReporter;
    const DesktopTheme theme(Illegible());
    ForEach([](QWidget& window, const std::string& where) {
        ::testing::TestPartResultArray found;
        {
            const Reporter reporter(Reporter::INTERCEPT_ONLY_CURRENT_THREAD, &found);
            ExpectLegible(window, where);
        }
        EXPECT_GT(found.size(), 0) << where;
    });
}

TEST_F(Theme, EveryTextStandsOutInADarkTheme) {
    const DesktopTheme dark(Dark());
    ForEach(ExpectLegible);
}

TEST_F(Theme, EveryTextStandsOutWhenTheThemeTurnsDarkUnderAnOpenWindow) {
    ForEach([](QWidget& window, const std::string& where) {
        const DesktopTheme dark(Dark());
        ExpectLegible(window, where + ", now dark");
    });
}

TEST_F(Theme, EveryTextStandsOutWhenTheThemeTurnsLightUnderAnOpenWindow) {
    auto dark = std::make_unique<DesktopTheme>(Dark());
    ForEach([&dark](QWidget& window, const std::string& where) {
        dark.reset();
        ExpectLegible(window, where + ", now light");
        dark = std::make_unique<DesktopTheme>(Dark());
    });
}

} // namespace

} // namespace orvel::testing
