// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/UserDataDialog.h"

#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "tests/support/CompleteUserSettings.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTest>
#include <map>

namespace orvel {

namespace {

using testing::Contents;
using testing::Lines;

class UserDataDialog : public testing::WidgetTest {
protected:
    UserDataDialog() {
        Program().programDirectory = folder.Path();
        Program().userSettings = testing::CompleteUserSettings();
        SaveUserSettings(Program().userSettings);
    }

    testing::TemporaryFolder folder;
};

TEST_F(UserDataDialog, NamesItsControlsInReadingOrder) {
    ui::UserDataDialog dialog(nullptr);
    EXPECT_EQ(dialog.windowTitle(), "User Settings");
    ShowActive(dialog);
    ExpectReachable(dialog);
    EXPECT_EQ(TabOrder(dialog),
              (Lines{"txtBoxName", "txtBoxCompany", "txtBoxAddress", "txtBoxCityStateZip", "txtBoxPhone",
                     "txtBoxEMail", "txtBoxDefaultDirectory", "cmdBtnBrowse", "cmdBtnSave", "cmdBtnCancel"}));
    std::map<std::string, std::string> labels; // by the control's name
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        ASSERT_NE(label->buddy(), nullptr);
        labels[label->buddy()->objectName().toStdString()] = label->text().remove('&').toStdString();
    }
    EXPECT_EQ(labels, (std::map<std::string, std::string>{{"txtBoxName", "Name:"},
                                                          {"txtBoxCompany", "Company or Title:"},
                                                          {"txtBoxAddress", "Address:"},
                                                          {"txtBoxCityStateZip", "City, State, Zip:"},
                                                          {"txtBoxPhone", "Telephone:"},
                                                          {"txtBoxEMail", "E-Mail:"},
                                                          {"txtBoxDefaultDirectory", "Default Directory:"}}));
    for (const auto& [control, label] : labels) {
        EXPECT_EQ(Find<QLineEdit>(dialog, control).accessibleName().toStdString(), label);
    }
    EXPECT_TRUE(Find<QPushButton>(dialog, "cmdBtnSave").isDefault());
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdBtnBrowse").text().remove('&'), "Browse...");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdBtnSave").text().remove('&'), "Save");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdBtnCancel").text().remove('&'), "Cancel");
}

TEST_F(UserDataDialog, SavesWhatIsTyped) {
    ui::UserDataDialog dialog(nullptr);
    ShowActive(dialog);
    auto& name = Find<QLineEdit>(dialog, "txtBoxName");
    EXPECT_EQ(name.text(), "Ida Lund");
    name.selectAll();
    QTest::keyClicks(&name, QString("Bj\u00F8rn"));
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Contents(folder / "user.usr").substr(0, 6), "Bj\xF8rn ");
}

TEST_F(UserDataDialog, PastedLinesBecomeOne) {
    ui::UserDataDialog dialog(nullptr);
    ShowActive(dialog);
    QApplication::clipboard()->setText("Ida\r\nLund\n");
    auto& name = Find<QLineEdit>(dialog, "txtBoxName");
    name.selectAll();
    QTest::keyClick(&name, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(name.text(), "Ida Lund ");
}

TEST_F(UserDataDialog, TitleBarAndEscapeCancel) {
    ui::UserDataDialog dialog(nullptr);
    const std::string before = Contents(folder / "user.usr");
    for (const bool byEscape : {true, false}) {
        ShowActive(dialog);
        Find<QLineEdit>(dialog, "txtBoxName").setText(byEscape ? "" : "Ole");
        if (byEscape) {
            surroundings.replies = {Reply::Yes, Reply::No};
            QTest::keyClick(&dialog, Qt::Key_Escape);
            EXPECT_TRUE(dialog.isVisible()) << "Yes goes back to the window";
            QTest::keyClick(&dialog, Qt::Key_Escape);
            EXPECT_EQ(surroundings.Said().size(), 4U);
        } else {
            dialog.close();
        }
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_EQ(Program().userSettings.Name.Trimmed(), "Ole");
    EXPECT_EQ(Contents(folder / "user.usr"), before);
}

TEST_F(UserDataDialog, BrowsesForTheDefaultDirectory) {
    ui::UserDataDialog dialog(nullptr);
    ShowActive(dialog);
    surroundings.paths = {folder.Path()};
    QTest::mouseClick(&Find<QPushButton>(dialog, "cmdBtnBrowse"), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(dialog, "txtBoxDefaultDirectory").text().toStdString(), folder.Path().native());
    EXPECT_EQ(surroundings.Said().size(), 1U);
}

} // namespace

} // namespace orvel
