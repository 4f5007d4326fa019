// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/DataDialogTest.h"

#include "ui/CenterPivotDataDialog.h"

#include <QAction>
#include <QWheelEvent>

// What both data windows share, shown by the center-pivot one.
namespace orvel {

namespace {

using testing::Contents;
using testing::Lines;

class DataDialog : public testing::DataDialogTest {
protected:
    DataDialog() { Open<ui::CenterPivotDataDialog>(kCenterPivot, "pivot-1978.cpd"); }
};

constexpr const char* kSaveQuestion = "box [Close Window] Save Changes to Client Data? (YesNoCancel)";

TEST_F(DataDialog, StartsOnTheFirstBoxOfTheFirstPage) {
    EXPECT_EQ(QApplication::focusWidget(), &Box("txtBoxClientName"));
    EXPECT_EQ(Pages().currentIndex(), 0);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(DataDialog, TabGoesFromBoxToBoxAndToTheButtons) {
    Lines visited;
    for (int press = 0; press < 14; ++press) {
        visited.push_back(QApplication::focusWidget()->objectName().toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, (Lines{"txtBoxClientName", "txtBoxFarmName", "txtBoxOperatorName", "txtBoxClientPhone",
                              "txtBoxEMail", "txtBoxClientAddress", "txtBoxClientCity", "txtBoxClientCounty",
                              "txtBoxClientState", "txtBoxClientZip", "cmdBtnSaveAs",
                              "cmdBtnCloseWithoutSaving", "cmdBtnExitAndSave", "qt_tabwidget_tabbar"}));
}

TEST_F(DataDialog, EscapeAndEnterCloseNothingAndPressNoButton) {
    for (const char* name : {"txtBoxClientName", "txtBoxEMail"}) {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&Box(name), key);
        }
    }
    auto& button = Get<QPushButton>("cmdBtnExitAndSave");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(surroundings.Said(), Lines{});
}

TEST_F(DataDialog, TheTitleBarAsksWhatCloseWindowAsks) {
    surroundings.replies = {Reply::Cancel, Reply::No, Reply::Yes};
    dialog->close();
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(surroundings.Said(), (Lines{kSaveQuestion}));
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(
        surroundings.Said(),
        (Lines{kSaveQuestion, "box [Close Data Window] Really close without saving data? (YesNoCancel)"}));
}

TEST_F(DataDialog, ALongTextIsCutWhileItIsTyped) {
    QLineEdit& box = Box("txtBoxClientName");
    box.clear();
    QTest::keyClicks(&box, QString(35, 'a'));
    EXPECT_EQ(surroundings.Said(), Lines{});
    QTest::keyClicks(&box, "b");
    EXPECT_EQ(box.text(), QString(35, 'a'));
    EXPECT_EQ(surroundings.Said(), (Lines{"box [Input Error] Maximim Characters in this field is 35 (Ok)"}));
}

TEST_F(DataDialog, LineEndsCountTwiceInTheLimitOfComments) {
    auto& box = Get<QPlainTextEdit>("txtBoxFieldComments");
    box.setPlainText(QString(498, 'a') + "\n");
    EXPECT_EQ(surroundings.Said(), Lines{});
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, "b");
    EXPECT_EQ(surroundings.Said(), (Lines{"box [Input Error] Maximim Characters in this field is 500 (Ok)"}));
    EXPECT_EQ(box.toPlainText(), QString(498, 'a') + "\n");
}

TEST_F(DataDialog, ALimitThatCutsALineEndInHalfLeavesNoneOfIt) {
    auto& box = Get<QPlainTextEdit>("txtBoxFieldComments");
    box.setPlainText(QString(499, 'a') + "\nb");
    EXPECT_EQ(surroundings.Said(), (Lines{"box [Input Error] Maximim Characters in this field is 500 (Ok)"}));
    EXPECT_EQ(box.toPlainText(), QString(499, 'a'));
}

TEST_F(DataDialog, CommentsKeepTheirLinesInTheFile) {
    auto& box = Get<QPlainTextEdit>("txtBoxOtherComments");
    box.setPlainText("one\ntwo");
    Get<QAction>("mnuFileSave").trigger();
    EXPECT_EQ(ReadTest<CenterPivotTest>(file).OtherComments.Trimmed(), "one\r\ntwo");
}

TEST_F(DataDialog, TabLeavesAComment) {
    Pages().setCurrentIndex(1);
    auto& box = Get<QPlainTextEdit>("txtBoxFieldComments");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_FALSE(box.hasFocus());
}

TEST_F(DataDialog, AComboBoxShowsAnyTextAndCompletesNothing) {
    auto& list = Get<QComboBox>("ComboSystemManufacturer");
    EXPECT_EQ(list.currentText(), "Valley");
    EXPECT_EQ(list.currentIndex(), 1);
    Pages().setCurrentIndex(2);
    list.setFocus();
    list.lineEdit()->selectAll();
    QTest::keyClicks(&list, "Re");
    EXPECT_EQ(list.currentText(), "Re");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(list.currentText(), "Re");
    EXPECT_EQ(list.count(), 7);
}

TEST_F(DataDialog, TheWheelTurnsNoComboBoxThatLacksTheFocus) {
    Pages().setCurrentIndex(2);
    auto& list = Get<QComboBox>("ComboSystemManufacturer");
    const auto turn = [&list] {
        QWheelEvent event(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &event);
    };
    Get<QPlainTextEdit>("txtBoxSystemComments").setFocus();
    turn();
    EXPECT_EQ(list.currentText(), "Valley");
    list.setFocus();
    turn();
    EXPECT_EQ(list.currentText(), "Zimmatic/Lindsay");
}

TEST_F(DataDialog, TheEditMenuSendsItsKeys) {
    for (const char* name : {"mnuEditUndo", "mnuEditCut", "mnuEditCopy", "mnueditPaste"}) {
        Get<QAction>(name).trigger();
    }
    EXPECT_EQ(surroundings.Said(), (Lines{"Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V"}));
}

TEST_F(DataDialog, HelpIsTheViewersAndTheAboutBox) {
    Get<QAction>("mnuHelpInstructions").trigger();
    Get<QAction>("mnuHelpAbout").trigger();
    EXPECT_EQ(surroundings.Said(), (Lines{"view Help", "show frmAbout"}));
}

} // namespace

} // namespace orvel
