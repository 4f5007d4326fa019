// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RecordFiles.h"
#include "core/TestFile.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <filesystem>
#include <memory>
#include <string>

namespace orvel::testing {

// Tests of a data window on a copy of an example.
class DataDialogTest : public WidgetTest {
protected:
    template <class Dialog>
    void Open(const char* kind, const char* example) {
        Program().programDirectory = folder.Path();
        LoadSoilTable();
        Program().testKind = kind;
        file = folder / example;
        std::filesystem::copy_file(Example(example), file);
        OpenTestFile(file);
        dialog = std::make_unique<Dialog>(nullptr, surroundings);
        ShowActive(*dialog);
    }

    template <class Control>
    Control& Get(const char* name) {
        return Find<Control>(*dialog, name);
    }

    QLineEdit& Box(const char* name) { return Get<QLineEdit>(name); }
    QTabWidget& Pages() { return Get<QTabWidget>("tabPages"); }
    QTableView& Table() { return Get<QTableView>("gridTest"); }
    QLineEdit& Editor() { return Box("txtEdit"); }
    void Click(const char* name) { QTest::mouseClick(&Get<QAbstractButton>(name), Qt::LeftButton); }

    // What the menu's items say, without underlined letters.
    Lines Items(const char* menu) {
        Lines items;
        for (const QAction* action : Get<QMenu>(menu).actions()) {
            items.push_back(action->text().remove('&').toStdString() + " = " +
                            action->objectName().toStdString());
        }
        return items;
    }

    // The captions of a page: labels, frames, buttons with a caption, in the order of their making.
    Lines Captions(int page) {
        Lines captions;
        for (const QObject* each : Pages().widget(page)->findChildren<QObject*>()) {
            if (const auto* label = qobject_cast<const QLabel*>(each)) {
                captions.push_back(label->text().toStdString());
            } else if (const auto* frame = qobject_cast<const QGroupBox*>(each)) {
                captions.push_back("[" + frame->title().toStdString() + "]");
            } else if (const auto* button = qobject_cast<const QAbstractButton*>(each);
                       button != nullptr && !button->text().isEmpty()) {
                captions.push_back("<" + button->text().remove('&').toStdString() + ">");
            }
        }
        std::ranges::sort(captions);
        return captions;
    }

    // Expects the pages that both kinds have, but for the label of the acres.
    void ExpectSharedPages(const std::string& acres) {
        Lines pages;
        for (int page = 0; page < Pages().count(); ++page) {
            pages.push_back(Pages().tabText(page).remove('&').toStdString());
        }
        EXPECT_EQ(pages, (Lines{"Client Information", "Field Information", "System Information", "Test Data",
                                "Comments"}));
        EXPECT_EQ(Captions(0), (Lines{"Address:", "City:", "Client Name:", "County:", "E-Mail:", "Farm Name:",
                                      "Farm Operator:", "Phone:", "State:", "Zip Code:"}));
        EXPECT_EQ(Captions(1),
                  (Lines{"Comments:", "Common Tillage:", acres, "Example: Corn-Cotton-Peanuts-Tobacco",
                         "Field Name or Identifier:", "Predominate Crops:", "Soil Slope:", "Soil Type:"}));
        EXPECT_EQ(Captions(4), (Lines{"Comments / Recomendations:"}));
    }

    // Expects their order, and that every page can be used by keyboard and screen reader.
    void ExpectSharedOrder() {
        EXPECT_EQ(TabOrderOfPage(0),
                  (Lines{"txtBoxClientName", "txtBoxFarmName", "txtBoxOperatorName", "txtBoxClientPhone",
                         "txtBoxEMail", "txtBoxClientAddress", "txtBoxClientCity", "txtBoxClientCounty",
                         "txtBoxClientState", "txtBoxClientZip"}));
        EXPECT_EQ(TabOrderOfPage(1),
                  (Lines{"txtBoxFieldName", "txtBoxTotalAcres", "txtBoxCrops", "comboSoilType",
                         "comboSoilSlope", "ComboCommonTillage", "txtBoxFieldComments"}));
        EXPECT_EQ(TabOrderOfPage(4), (Lines{"txtBoxOtherComments"}));
        for (int page = 0; page < Pages().count(); ++page) {
            Pages().setCurrentIndex(page);
            ExpectReachable(*dialog);
        }
    }

    // Laptops in the field show no more than 600 lines.
    void ExpectSmall() {
        EXPECT_LE(dialog->width(), 1000);
        EXPECT_LE(dialog->height(), 540);
        EXPECT_LE(dialog->minimumSizeHint().height(), 540);
    }

    // The controls of each page that Tab goes through, without those below the pages.
    Lines TabOrderOfPage(int page) {
        Pages().setCurrentIndex(page);
        Lines order = TabOrder(*dialog);
        std::erase_if(order, [](const std::string& name) {
            return name.starts_with("qt_tabwidget") ||
                   (name.starts_with("cmdBtn") && name != "cmdBtnAutoFill");
        });
        return order;
    }

    TemporaryFolder folder;
    std::filesystem::path file;
    std::unique_ptr<QDialog> dialog;
};

} // namespace orvel::testing
