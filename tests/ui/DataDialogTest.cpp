// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/DataDialogTest.h"

#include "ui/CenterPivotDataDialog.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
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

TEST_F(DataDialog, AnEmptyClipboardIsPastedAsNothing) {
    QApplication::clipboard()->setMimeData(new QMimeData);
    Pages().setCurrentIndex(4);
    auto& comments = Get<QPlainTextEdit>("txtBoxOtherComments");
    comments.setFocus();
    const QString before = comments.toPlainText();
    QTest::keyClick(&comments, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(comments.toPlainText(), before);
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

TEST_F(DataDialog, APageThatIsTurnedToFromTheButtonsBelowTakesTheKeys) {
    Get<QPushButton>("cmdBtnSaveAs").setFocus();
    QTest::keyClick(dialog.get(), Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(Pages().currentIndex(), 1);
    EXPECT_EQ(QApplication::focusWidget(), &Box("txtBoxFieldName"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(surroundings.Said(), Lines{});
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

TEST_F(DataDialog, CommentsThatNobodyEditsStayWhatTheyAre) {
    const std::string foreign = "a\xA0no-break space\nLF\rCR\r\nCR LF";
    Program().centerPivotTest.FieldComments = foreign;
    Program().centerPivotTest.SystemComments = std::string(498, 'x') + "\ny";
    Program().centerPivotTest.OtherComments = foreign;
    ui::CenterPivotDataDialog other(nullptr, surroundings);
    EXPECT_EQ(surroundings.Said(), Lines{}) << "no limit is passed";
    auto& edited = Find<QPlainTextEdit>(other, "txtBoxOtherComments");
    edited.moveCursor(QTextCursor::End);
    QTest::keyClicks(&edited, "!");
    Find<QAction>(other, "mnuFileSave").trigger();
    const auto saved = ReadTest<CenterPivotTest>(file);
    EXPECT_EQ(saved.FieldComments.Trimmed(), foreign);
    EXPECT_EQ(saved.SystemComments.Trimmed(), std::string(498, 'x') + "\ny");
    EXPECT_EQ(saved.OtherComments.Trimmed(), "a\xA0no-break space\r\nLF\r\nCR\r\nCR LF!");
}

TEST_F(DataDialog, ACommentCutInItsMiddleLeavesTheCursorThere) {
    auto& box = Get<QPlainTextEdit>("txtBoxFieldComments");
    box.setPlainText(QString(500, 'a'));
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(3);
    box.setTextCursor(cursor);
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(surroundings.Said().size(), 1U);
    EXPECT_EQ(box.textCursor().position(), 4);
}

TEST_F(DataDialog, PastedLinesBecomeOneInABoxOfOneLine) {
    const QString lines = "Alder\nCreek\r\nFarms";
    QLineEdit& box = Box("txtBoxClientName");
    PasteOver(box, lines);
    EXPECT_EQ(box.text(), "Alder Creek Farms");
    auto& list = Get<QComboBox>("comboSoilSlope");
    PasteOver(*list.lineEdit(), lines);
    EXPECT_EQ(list.currentText(), "Alder Creek Farms");
}

TEST_F(DataDialog, APastedTextIsCutToo) {
    QLineEdit& box = Box("txtBoxOperatorName");
    PasteOver(box, QString(2500, 'a'));
    EXPECT_EQ(box.text(), QString(35, 'a'));
    auto& comments = Get<QPlainTextEdit>("txtBoxOtherComments");
    comments.selectAll();
    comments.paste();
    EXPECT_EQ(comments.toPlainText(), QString(2000, 'a'));
    EXPECT_EQ(surroundings.Said().size(), 2U);
}

TEST_F(DataDialog, AHugeWordIsCutBeforeItIsWrapped) {
    QApplication::clipboard()->setText(QString(1'000'000, '7'));
    auto& comments = Get<QPlainTextEdit>("txtBoxFieldComments");
    Pages().setCurrentIndex(1);
    comments.setPlainText("before after");
    QTextCursor cursor = comments.textCursor();
    cursor.setPosition(7);
    comments.setTextCursor(cursor);
    comments.paste();
    const Lines told = {"box [Input Error] Maximim Characters in this field is 500 (Ok)"};
    EXPECT_EQ(comments.toPlainText(), "before " + QString(493, '7'));
    EXPECT_EQ(surroundings.Said(), told);
    // Of characters that are two units of the toolkit's texts, as many.
    comments.clear();
    QApplication::clipboard()->setText(QString::fromUtf8("\U0001F33D").repeated(501));
    comments.paste();
    EXPECT_EQ(comments.toPlainText(), QString(500, '?'));
    EXPECT_EQ(surroundings.Said(), told);
}

TEST_F(DataDialog, ALongFileNameIsShortenedAndDoesNotWidenTheWindow) {
    auto& label = Get<QLabel>("labelFile");
    const int width = dialog->minimumSizeHint().width();
    label.setText("<b>" + QString(200, 'n') + "</b>.cpd");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(dialog->minimumSizeHint().width(), width);
    label.repaint();
    EXPECT_EQ(label.toolTip(), "<qt>" + label.text().toHtmlEscaped() + "</qt>") << "no markup";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), label.text());
    label.setText("short.cpd");
    label.repaint();
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(DataDialog, StartsNoLargerThanTheScreenAndScrollsNoPageWhereItHasRoom) {
    constexpr QSize kStartSize(850, 520);
    EXPECT_EQ(dialog->size(), kStartSize.boundedTo(dialog->screen()->availableSize() - QSize(10, 40)));
    dialog->resize(800, 520);
    for (int page = 0; page < Pages().count(); ++page) {
        Pages().setCurrentIndex(page);
        const auto& area = dynamic_cast<QScrollArea&>(*Pages().widget(page));
        EXPECT_TRUE(QTest::qWaitFor([&area] {
            return !area.verticalScrollBar()->isVisible() && !area.horizontalScrollBar()->isVisible();
        })) << page;
    }
}

TEST_F(DataDialog, APageThatHasNoRoomScrolls) {
    dialog->resize(500, 300);
    Pages().setCurrentIndex(2);
    Box("txtBoxEndGunAcres").setFocus(Qt::TabFocusReason);
    EXPECT_LE(dialog->width(), 520);
    EXPECT_LE(dialog->height(), 300);
    const auto& area = dynamic_cast<QScrollArea&>(*Pages().widget(2));
    EXPECT_TRUE(QTest::qWaitFor([&area] { return area.verticalScrollBar()->isVisible(); }));
    for (const char* name : {"cmdBtnSaveAs", "cmdBtnCloseWithoutSaving", "cmdBtnExitAndSave"}) {
        const auto& button = Get<QPushButton>(name);
        EXPECT_TRUE(dialog->rect().contains(QRect(button.mapTo(dialog.get(), QPoint(0, 0)), button.size())));
    }
}

TEST_F(DataDialog, ShortcutsAndMnemonicsReachEveryCommand) {
    Lines shortcuts;
    for (const QAction* action : dialog->findChildren<QAction*>()) {
        if (!action->shortcut().isEmpty()) {
            shortcuts.push_back((action->objectName() + " " + action->shortcut().toString()).toStdString());
        }
    }
    std::ranges::sort(shortcuts);
    EXPECT_EQ(shortcuts, (Lines{"mnuEditCopy Ctrl+C", "mnuEditCut Ctrl+X", "mnuEditUndo Ctrl+Z",
                                "mnuFileClose Ctrl+W", "mnuFileSave Ctrl+S", "mnuFileSaveAs Ctrl+Shift+S",
                                "mnuHelpInstructions F1", "mnueditPaste Ctrl+V"}));
    for (int page = 0; page < Pages().count(); ++page) {
        EXPECT_TRUE(Pages().tabText(page).contains('&')) << page;
    }
}

TEST_F(DataDialog, DiscardAndCloseAskTheirOwnQuestions) {
    surroundings.replies = {Reply::No, Reply::Cancel};
    Get<QAction>("mnuFileDiscard").trigger();
    Get<QAction>("mnuFileClose").trigger();
    EXPECT_EQ(
        surroundings.Said(),
        (Lines{"box [Close Data Window] Really close without saving data? (YesNoCancel)", kSaveQuestion}));
}

TEST_F(DataDialog, AListShowsATextThatItLacks) {
    Program().centerPivotTest = NewCenterPivotTest();
    Program().centerPivotTest.TypeSprinkler = "Home-made";
    ui::CenterPivotDataDialog other(nullptr, surroundings);
    EXPECT_EQ(Find<QComboBox>(other, "comboSoilType").currentText(), "Choose Soil Type");
    EXPECT_EQ(Find<QComboBox>(other, "comboSoilType").currentIndex(), -1);
    EXPECT_EQ(Find<QComboBox>(other, "ComboTypeSprinkler").currentText(), "Home-made");
    EXPECT_EQ(Find<QComboBox>(other, "comboSoilSlope").currentIndex(), 0);
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

TEST_F(DataDialog, AMenuGivesTheKeysBackToNoHiddenPage) {
    Pages().setCurrentIndex(1);
    Get<QComboBox>("ComboCommonTillage").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Alt);
    ASSERT_NE(qobject_cast<QMenuBar*>(QApplication::focusWidget()), nullptr) << "Alt opens no menu";
    QTest::mouseClick(Pages().tabBar(), Qt::LeftButton, {}, Pages().tabBar()->tabRect(0).center());
    ASSERT_EQ(Pages().currentIndex(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible())
        << QApplication::focusWidget()->objectName().toStdString();
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
    EXPECT_EQ(list.focusPolicy(), Qt::StrongFocus);
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
