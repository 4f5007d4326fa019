// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/SoilIntakeDialog.h"

#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>

namespace orvel {

namespace {

using testing::Contents;
using testing::Lines;

class SoilIntakeDialog : public testing::WidgetTest {
protected:
    SoilIntakeDialog() {
        Program().programDirectory = folder.Path();
        LoadSoilTable();
        dialog = std::make_unique<ui::SoilIntakeDialog>(nullptr);
        ShowActive(*dialog);
    }

    QLineEdit& Box(const std::string& name) { return Find<QLineEdit>(*dialog, name); }
    void Retype(QLineEdit& box, const char* text) {
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    testing::TemporaryFolder folder;
    std::unique_ptr<ui::SoilIntakeDialog> dialog;
};

TEST_F(SoilIntakeDialog, ShowsTheTableUnderItsLabels) {
    EXPECT_EQ(dialog->windowTitle(), "Soil Intake Rates");
    Lines labels;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        labels.push_back(label->text().toStdString());
    }
    EXPECT_EQ(labels, (Lines{"Soil Description", "Intake Rates", "Minimum", "Maximum"}));
    const auto* minimum = dialog->findChildren<QLabel*>().at(2);
    const auto* maximum = dialog->findChildren<QLabel*>().at(3);
    EXPECT_LT(minimum->x(), Box("txtBoxMax1").x());
    EXPECT_GE(maximum->geometry().right(), Box("txtBoxMax1").x());
    EXPECT_EQ(Box("txtBoxSoil1").text(), "Sand");
    EXPECT_EQ(Box("txtBoxMin6").text(), "0.75");
    EXPECT_EQ(Box("txtBoxMax6").text(), "1.25");
    EXPECT_EQ(Find<QPushButton>(*dialog, "cmdBtnSave").text().remove('&'), "Save");
    EXPECT_EQ(Find<QPushButton>(*dialog, "cmdBtnCancel").text().remove('&'), "Cancel");
}

TEST_F(SoilIntakeDialog, PastedLinesBecomeOne) {
    QLineEdit& soil = Box("txtBoxSoil1");
    PasteOver(soil, "Fine\r\nSand\n");
    EXPECT_EQ(soil.text(), "Fine Sand ");
}

TEST_F(SoilIntakeDialog, CanBeUsedByKeyboardAndScreenReader) {
    ExpectReachable(*dialog);
    Lines order;
    for (const char* row : {"1", "2", "3", "4", "5", "6", "7"}) {
        for (const char* box : {"txtBoxSoil", "txtBoxMin", "txtBoxMax"}) {
            order.push_back(std::string(box) + row);
        }
    }
    order.insert(order.end(), {"cmdBtnSave", "cmdBtnCancel"});
    EXPECT_EQ(TabOrder(*dialog), order);
    EXPECT_EQ(Box("txtBoxSoil2").accessibleName(), "Soil Description, row 2");
    EXPECT_EQ(Box("txtBoxMin3").accessibleName(), "Minimum, row 3");
    EXPECT_EQ(Box("txtBoxMax7").accessibleName(), "Maximum, row 7");
}

TEST_F(SoilIntakeDialog, ARateBoxTakesDigitsAndPointsOnly) {
    QLineEdit& box = Box("txtBoxMin1");
    beeper.Expect(4);
    Retype(box, "1.a-.5 ,");
    EXPECT_EQ(box.text(), "1..5");
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "1..");
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), "..");
}

TEST_F(SoilIntakeDialog, EveryRateBoxDropsLetters) {
    for (const char* row : {"1", "2", "3", "4", "5", "6", "7"}) {
        for (const char* name : {"txtBoxMin", "txtBoxMax"}) {
            QLineEdit& box = Box(std::string(name) + row);
            const QString before = box.text();
            beeper.Expect(4);
            QTest::keyClick(&box, Qt::Key_X, Qt::AltModifier);
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(QChar(0xAD)), Qt::NoModifier);
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(QChar(0xE000)), Qt::NoModifier);
            QTest::keyClicks(&box, "e");
            EXPECT_EQ(box.text(), before) << box.objectName().toStdString();
        }
    }
}

TEST_F(SoilIntakeDialog, ShortcutsPassTheKeyFilter) {
    QLineEdit& box = Box("txtBoxMax2");
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "5.00");
    QLineEdit& other = Box("txtBoxMax3");
    other.selectAll();
    QTest::keyClick(&other, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(other.text(), "5.00");
}

TEST_F(SoilIntakeDialog, ALongNameIsCutWhileItIsTyped) {
    QLineEdit& box = Box("txtBoxSoil1");
    Retype(box, "12345678901234567890");
    EXPECT_EQ(surroundings.Said(), Lines{});
    QTest::keyClicks(&box, "1");
    EXPECT_EQ(surroundings.Said(), (Lines{"box [Input Error] Maximim Characters in this field is 20 (Ok)"}));
    EXPECT_EQ(box.text(), "12345678901234567890");
}

TEST_F(SoilIntakeDialog, ANameCutInItsMiddleLeavesTheCursorThere) {
    QLineEdit& box = Box("txtBoxSoil1");
    Retype(box, "12345678901234567890");
    box.setCursorPosition(3);
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "123x4567890123456789");
    EXPECT_EQ(box.cursorPosition(), 4);
    EXPECT_EQ(surroundings.Said().size(), 1U);
}

TEST_F(SoilIntakeDialog, SavesTheTable) {
    Retype(Box("txtBoxSoil7"), "Peat");
    Retype(Box("txtBoxMax7"), "3.25");
    QTest::mouseClick(&Find<QPushButton>(*dialog, "cmdBtnSave"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Program().soilIntakeTable[7].MaxIntake, 3.25F);
    EXPECT_EQ(Contents(folder / "soil.dat").substr(6 * 28, 5), "Peat ");
}

TEST_F(SoilIntakeDialog, CancelEscapeAndTitleBarLeaveFileAndTable) {
    const std::string before = Contents(folder / "soil.dat");
    for (int way = 0; way < 3; ++way) {
        ShowActive(*dialog);
        Retype(Box("txtBoxSoil7"), "Peat");
        if (way == 0) {
            QTest::mouseClick(&Find<QPushButton>(*dialog, "cmdBtnCancel"), Qt::LeftButton);
        } else if (way == 1) {
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
        } else {
            dialog->close();
        }
        EXPECT_FALSE(dialog->isVisible()) << way;
    }
    EXPECT_EQ(Contents(folder / "soil.dat"), before);
    EXPECT_EQ(Program().soilIntakeTable[7].SoilName.Trimmed(), "Clay");
}

} // namespace

} // namespace orvel
