// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/ViewerWindow.h"

#include "core/ProgramWindows.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"

#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace orvel {

namespace {

using testing::Lines;

class ViewerWindow : public testing::WidgetTest {
protected:
    ViewerWindow() {
        Program().programDirectory = folder.Path();
        testing::PutContents(folder / "help.rtf", R"({\rtf1 Set out {\b cups}})");
        window = new ui::ViewerWindow(nullptr);
        window->ShowTopic(kViewHelp);
    }
    ~ViewerWindow() override { delete window; }

    void Click(const char* name) { QTest::mouseClick(&Find<QPushButton>(*window, name), Qt::LeftButton); }
    RichTextBox& Box() { return dynamic_cast<RichTextBox&>(Find<QWidget>(*window, "rtfBox")); }

    testing::TemporaryFolder folder;
    QPointer<ui::ViewerWindow> window;
};

TEST_F(ViewerWindow, ShowsItsTopicToBeReadOnly) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    EXPECT_EQ(window->windowTitle(), "Help & Instructions");
    EXPECT_EQ(Box().Text(), "Set out cups");
    EXPECT_TRUE(Box().IsReadOnly());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowType(), Qt::Window);
    EXPECT_TRUE(Find<QWidget>(*window, "rtfBox").hasFocus());
    const QRect room = window->screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window->geometry()));
    EXPECT_LT(room.right() - window->frameGeometry().right(), 20) << "at the side";
    EXPECT_EQ(window->frameGeometry().top(), room.top());
}

TEST_F(ViewerWindow, AnotherTopicTakesThePlaceOfTheFirst) {
    std::filesystem::remove(folder / "help.rtf");
    window->ShowTopic(kViewHelp);
    EXPECT_EQ(window->windowTitle(), "No Help File Available");
    EXPECT_TRUE(Box().Text().starts_with("No Help File Available\r\rTo create"));
}

TEST_F(ViewerWindow, CanBeUsedByKeyboardAndScreenReader) {
    ExpectReachable(*window);
    EXPECT_EQ(TabOrder(*window), (Lines{"rtfBox", "cmdBtnPrint", "cmdBtnSave", "cmdBtnClose"}));
    EXPECT_EQ(Find<QPushButton>(*window, "cmdBtnPrint").text(), "&Print");
    EXPECT_EQ(Find<QPushButton>(*window, "cmdBtnSave").text(), "&Save");
    EXPECT_EQ(Find<QPushButton>(*window, "cmdBtnClose").text(), "&Close");
}

TEST_F(ViewerWindow, ReturnPressesNoButton) {
    QTest::keyClick(&Find<QWidget>(*window, "rtfBox"), Qt::Key_Return);
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_EQ(Said(), Lines{});
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ViewerWindow, SaveAsksWhere) {
    surroundings.paths = {{}};
    Click("cmdBtnSave");
    EXPECT_EQ(Said(), (Lines{"save [Save Information As - Enter File Name] All Files (*.rtf)|*.rtf; rtf; "
                             "0x2806; "}));
}

TEST_F(ViewerWindow, CloseAndEscapeCloseItForGood) {
    Click("cmdBtnClose");
    EXPECT_FALSE(window->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(window, nullptr);
    window = new ui::ViewerWindow(nullptr);
    window->ShowTopic(kViewHelp);
    QTest::keyClick(window, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window, nullptr);
}

} // namespace

} // namespace orvel
