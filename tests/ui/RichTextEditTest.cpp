// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/RichTextEdit.h"

#include "report/ReportFont.h"
#include "report/RtfWriter.h"
#include "tests/report/RichTextBoxContract.h"
#include "tests/ui/WidgetTest.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>

namespace orvel::testing {

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(OnScreen, RichTextBoxContract, ui::RichTextEdit);

class RichTextEdit : public WidgetTest {
protected:
    RichTextEdit() {
        UseReportFont(box);
        box.resize(900, 300);
    }

    [[nodiscard]] RichDocument Document() const {
        box.Save(folder / "document.rtf");
        return ReadRtf(ReadFile(folder / "document.rtf"));
    }

    static void PutOnClipboard(const char* format, const QByteArray& data) {
        auto* content = new QMimeData;
        content->setData(format, data);
        QApplication::clipboard()->setMimeData(content);
    }

    [[nodiscard]] static std::string HundredLines() {
        std::string text;
        for (int i = 0; i < 100; ++i) {
            text += "line\r\n";
        }
        return text;
    }

    TemporaryFolder folder;
    ui::RichTextEdit box;
};

TEST_F(RichTextEdit, EditsAreInTheText) {
    box.SetText("one\r\ntwo\rthree\n");
    ShowActive(box);
    QTest::keyClicks(&box, "X");
    EXPECT_EQ(box.Text(), "Xone\r\ntwo\r\nthree\r\n") << "once edited, every line end is one of the document";
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), "Xone\r\n\r\n\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(box.SelectionStart(), 8U);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(QChar(0x20AC)) + QChar(0x0416), {});
    EXPECT_EQ(box.Text(), "Xone\r\n\r\n\x80?\r\ntwo\r\nthree\r\n");
}

TEST_F(RichTextEdit, EditsTakeTheFormatAtTheCaret) {
    box.SetText("plain");
    ShowActive(box);
    box.Select(5, 0);
    box.SetSelectionBold(true);
    QTest::keyClicks(&box, "bold");
    box.Select(0, 5);
    EXPECT_FALSE(box.IsSelectionBold());
    box.Select(5, 4);
    EXPECT_TRUE(box.IsSelectionBold());
    EXPECT_EQ(Document().paragraphs.at(0).runs.at(1).text, U"bold");
}

TEST_F(RichTextEdit, ATextIsNotUndone) {
    box.SetText("first");
    box.SetText("second");
    ShowActive(box);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "second");
    QTest::keyClicks(&box, "x");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "second");
}

TEST_F(RichTextEdit, TheUserUndoesTheUsersChangesOnly) {
    box.SetText("low\rhigh");
    box.Select(0, 3);
    box.SetSelectionColor({255, 0, 0});
    box.SetFontName("Courier New");
    EXPECT_EQ(box.Text(), "low\rhigh") << "nobody has edited it";
    box.Select(0, 0);
    ShowActive(box);
    const RichDocument before = Document();
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Document(), before);
    QTest::keyClicks(&box, "x");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Document(), before);
}

TEST_F(RichTextEdit, AnEmptyClipboardIsPastedAsNothing) {
    box.SetText("text");
    ShowActive(box);
    QApplication::clipboard()->setMimeData(new QMimeData);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    PutOnClipboard("image/png", "no text");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "text");
}

TEST_F(RichTextEdit, APasteIsUndoneInOneStep) {
    box.SetText("text");
    ShowActive(box);
    PutOnClipboard("text/rtf", R"({\rtf1 a{\b b}\par{\i c}})");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "ab\r\nctext");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "text");
}

TEST_F(RichTextEdit, TheCaretKnowsWhereItHasGone) {
    PutContents(folder / "a.rtf", R"({\rtf1{\b bold}\ul line})");
    box.Load(folder / "a.rtf");
    EXPECT_TRUE(box.IsSelectionBold()) << "as the text begins";
    ShowActive(box);
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_FALSE(box.IsSelectionBold());
    box.SetText("new");
    EXPECT_FALSE(Document().paragraphs.at(0).runs.at(0).format.isUnderlined);
    box.SetText("");
    box.SetSelectionBold(true);
    QTest::keyClicks(&box, "typed");
    EXPECT_TRUE(Document().paragraphs.at(0).runs.at(0).format.isBold);
    EXPECT_EQ(box.textCursor().charFormat().fontWeight(), QFont::Bold);
}

TEST_F(RichTextEdit, AParagraphIsPastedWithItsAlignmentIntoAnEmptyLineOnly) {
    PutContents(folder / "a.rtf", R"({\rtf1\qc centred\par\pard\ql left})");
    box.Load(folder / "a.rtf");
    EXPECT_EQ(Document().paragraphs.at(0).alignment, Alignment::Center);
    EXPECT_EQ(Document().paragraphs.at(1).alignment, Alignment::Left);
    box.SetText("full line");
    ShowActive(box);
    PutOnClipboard("text/rtf", R"({\rtf1\qc centred })");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "centred full line");
    EXPECT_EQ(Document().paragraphs.at(0).alignment, Alignment::Left);
}

TEST_F(RichTextEdit, LockedItIsSelectedByTheMouse) {
    box.SetText("some words");
    box.SetReadOnly(true);
    ShowActive(box);
    QTest::mouseDClick(box.viewport(), Qt::LeftButton, {}, QPoint(12, 10));
    EXPECT_TRUE(box.textCursor().hasSelection());
}

TEST_F(RichTextEdit, LockedItTakesNoKeyButIsCopiedFromByKeys) {
    box.SetText("one\r\ntwo");
    box.SetReadOnly(true);
    ShowActive(box);
    QTest::keyClicks(&box, "x");
    QTest::keyClick(&box, Qt::Key_Delete);
    PutOnClipboard("text/plain", "pasted");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "one\r\ntwo");
    QTest::keyClick(&box, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "one");
    box.SetReadOnly(false);
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.Text(), "x\r\ntwo") << "the selection was replaced";
}

TEST_F(RichTextEdit, RichTextGoesThroughTheClipboard) {
    box.SetText("low 0.35\r\nhigh");
    box.Select(4, 4);
    box.SetSelectionColor({255, 0, 0});
    ShowActive(box);
    box.Select(2, 10);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "w 0.35\nhi");
    EXPECT_EQ(ReadRtf(QApplication::clipboard()->mimeData()->data("text/rtf").toStdString())
                  .paragraphs.at(0)
                  .runs.at(1)
                  .format.color,
              (Color{255, 0, 0}));
    box.Select(0, 0);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "w 0.35\r\nhilow 0.35\r\nhigh");
    EXPECT_EQ(Document().paragraphs.at(0).runs.at(1).format.color, (Color{255, 0, 0}));
    EXPECT_EQ(box.SelectionStart(), 10U);
}

TEST_F(RichTextEdit, RichTextIsPastedUnderEachOfItsNames) {
    ShowActive(box);
    for (const char* name : {"text/rtf", "application/rtf", "text/richtext"}) {
        box.SetText("");
        PutOnClipboard(name, R"({\rtf1 a{\b b}})");
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.Text(), "ab") << name;
        EXPECT_EQ(Document().paragraphs.at(0).runs.size(), 2U) << name;
    }
}

TEST_F(RichTextEdit, MarkupIsPastedAsPlainTextOnly) {
    ShowActive(box);
    auto* content = new QMimeData;
    content->setHtml("<b>bold</b><img src=\"file:///etc/hostname\">");
    content->setText("plain");
    QApplication::clipboard()->setMimeData(content);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "plain");
    PutOnClipboard("text/html", "<b>bold</b>");
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "plain");
}

TEST_F(RichTextEdit, KeepsWhatItLoaded) {
    PutContents(
        folder / "a.rtf",
        R"({\rtf1{\fonttbl{\f0 Arial;}}{\colortbl;\red1\green2\blue3;}\f0\fs22 plain {\b bold} {\i italic}
 {\ul line} {\cf1\fs40 large}\line\u8364?\u-10179?\u-9033?\par\qc centred\par\qr right\par\qj spread})");
    box.Load(folder / "a.rtf");
    EXPECT_EQ(Document(), ReadRtf(ReadFile(folder / "a.rtf")));
}

TEST_F(RichTextEdit, LoadingShowsAWaitingCursor) {
    PutContents(folder / "a.rtf", R"({\rtf1 text})");
    bool isWaiting = false;
    QObject::connect(&box, &QTextEdit::cursorPositionChanged, &box, [&] {
        const QCursor* cursor = QApplication::overrideCursor();
        isWaiting = isWaiting || (cursor != nullptr && cursor->shape() == Qt::WaitCursor);
    });
    box.Load(folder / "a.rtf");
    EXPECT_TRUE(isWaiting);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_THROW(box.Load(folder / "none.rtf"), FileError);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(RichTextEdit, TheMarksOfParagraphsHaveNoColourOfTheirOwn) {
    PutContents(folder / "a.rtf", R"({\rtf1{\colortbl;\red255\green0\blue0;}\fs40 a {\cf1 red\par}b})");
    box.Load(folder / "a.rtf");
    const QTextBlock second = box.document()->begin().next();
    EXPECT_FALSE(second.charFormat().hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_EQ(second.charFormat().fontPointSize(), 20);
}

TEST_F(RichTextEdit, ReportsShowWholeLinesHoweverNarrowTheyAre) {
    QWidget window;
    box.setParent(&window);
    window.show();
    box.SetText(std::string(80, 'W') + "\r\n" + std::string(200, 'W'));
    for (const int width : {200, 400, 620, 640, 700, 1500}) {
        box.resize(width, 300);
        const QTextBlock line = box.document()->begin();
        EXPECT_EQ(line.layout()->lineCount(), 1) << width;
        EXPECT_EQ(line.next().layout()->lineCount() > 1, width < 1500) << width;
    }
    box.setParent(nullptr);
}

TEST_F(RichTextEdit, TheBeginningShowsWithItsMargin) {
    const std::string text = HundredLines();
    box.SetText(text);
    ShowActive(box);
    box.Select(text.size(), 0);
    EXPECT_GT(box.verticalScrollBar()->value(), 0);
    box.Select(0, 0);
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(RichTextEdit, WhatIsHeldBackIsSeenAsAWhole) {
    box.SetText("old");
    ShowActive(box);
    {
        const TextHeldBack held(box);
        box.SetText("new\r\ntext");
        box.Select(5, 4);
        box.SetSelectionColor({255, 0, 0});
        EXPECT_EQ(box.toPlainText(), "old");
        EXPECT_FALSE(box.textCursor().hasSelection());
    }
    EXPECT_EQ(box.toPlainText(), "new\ntext");
    EXPECT_EQ(box.textCursor().selectedText(), "text");
    EXPECT_FALSE(box.document()->isUndoAvailable());
    box.Select(0, 0);
    QTest::keyClick(&box, 'x');
    EXPECT_EQ(box.Text(), "xnew\r\ntext");
    EXPECT_EQ(Document().paragraphs.at(1).runs.at(0).format.color, (Color{255, 0, 0}));
    EXPECT_FALSE(Document().paragraphs.at(0).runs.at(0).format.color);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), "new\r\ntext");
}

TEST_F(RichTextEdit, NothingIsHeldBackAnyMoreAfterwards) {
    ShowActive(box);
    for (const bool isUsed : {true, false}) {
        {
            const TextHeldBack held(box);
            if (isUsed) {
                box.SetText("held back");
            }
        }
        const std::string text = isUsed ? "a" : "b";
        box.SetText(text);
        EXPECT_EQ(box.toPlainText().toStdString(), text);
    }
}

TEST_F(RichTextEdit, WhatIsTypedBehindAHeldBackTextHasTheFormatSetAtTheCaret) {
    {
        const TextHeldBack held(box);
        box.SetText("ab");
        box.SetSelectionBold(true);
    }
    ShowActive(box);
    QTest::keyClick(&box, 'x');
    const std::vector<TextRun> runs = Document().paragraphs.at(0).runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].text, U"x");
    EXPECT_TRUE(runs[0].format.isBold);
}

TEST_F(RichTextEdit, AHeldBackTextShowsItsBeginning) {
    const std::string text = HundredLines();
    box.SetText(text);
    ShowActive(box);
    box.Select(text.size(), 0);
    ASSERT_GT(box.verticalScrollBar()->value(), 0);
    {
        const TextHeldBack held(box);
        box.SetText(text);
        box.Select(0, 0);
    }
    EXPECT_EQ(box.verticalScrollBar()->value(), 0);
}

TEST_F(RichTextEdit, TheFontReachesEveryLetterAndLineEnd) {
    for (const std::size_t other : {0U, 2U, 5U}) {
        box.SetText("ab\r\n\r\nc");
        box.Select(other, other == 2 ? 2 : 1);
        box.SetSelectionFontName("Arial");
        box.SetFontName("Courier New");
        for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
            EXPECT_EQ(block.charFormat().fontFamilies().toStringList(), QStringList{"Courier New"}) << other;
            for (auto each = block.begin(); !each.atEnd(); ++each) {
                EXPECT_EQ(each.fragment().charFormat().fontFamilies().toStringList(),
                          QStringList{"Courier New"});
            }
        }
    }
}

TEST_F(RichTextEdit, TheWheelScrollsAndNeverZooms) {
    const std::string text = HundredLines();
    box.SetText(text);
    ShowActive(box);
    const RichDocument before = Document();
    const auto turn = [&](Qt::KeyboardModifiers keys) {
        QWheelEvent event(QPointF(10, 10), box.viewport()->mapToGlobal(QPointF(10, 10)), {}, QPoint(0, -120),
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box.viewport(), &event);
        return event.isAccepted();
    };
    const QFont font = box.font();
    EXPECT_FALSE(turn(Qt::ControlModifier)) << "left to others";
    EXPECT_EQ(Document(), before);
    EXPECT_EQ(box.font(), font);
    turn(Qt::NoModifier);
    EXPECT_GT(box.verticalScrollBar()->value(), 0);
}

TEST_F(RichTextEdit, TabGoesOn) {
    QWidget window;
    box.setParent(&window);
    QLineEdit next(&window);
    QWidget::setTabOrder(&box, &next);
    ShowActive(window);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_TRUE(next.hasFocus());
    EXPECT_EQ(box.Text(), "");
    box.setParent(nullptr);
}

} // namespace

} // namespace orvel::testing
