// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "entry/EntryState.h"
#include "tests/ui/GridTest.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/UncaughtError.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPaintEvent>
#include <cstdio>
#include <gtest/gtest.h>

// The controls of a data window and its recovery file.
namespace orvel {

namespace {

namespace fs = std::filesystem;

using testing::Contents;
using testing::kTestPage;
using testing::Lines;
using testing::PutContents;

class DataRecovery : public testing::GridTest {
protected:
    DataRecovery() { QCoreApplication::processEvents(); }

    [[nodiscard]] fs::path RecoveryPath() const { return file.native() + ".recovery"; }

    // What the recovery file says, after all that waits is done; nothing when there is none.
    [[nodiscard]] std::optional<EntryState> Kept() const {
        QCoreApplication::processEvents();
        if (!fs::exists(RecoveryPath())) {
            return {};
        }
        const auto entries = ReadRecoveryText(Contents(RecoveryPath()));
        EXPECT_TRUE(entries);
        return entries ? std::optional(entries->state) : std::nullopt;
    }

    [[nodiscard]] std::string KeptText(const char* control) const {
        const auto state = Kept();
        return state ? state->texts.at(control) : "nothing";
    }

    void GoToPage(int page) {
        Pages().setCurrentIndex(page);
        QCoreApplication::processEvents();
    }

    // The program is gone while the window is open, and the window is opened again.
    template <class Dialog = ui::CenterPivotDataDialog>
    void OpenAgain() {
        QCoreApplication::processEvents();
        dialog.reset();
        surroundings.replies = {Reply::Yes};
        dialog = std::make_unique<Dialog>(nullptr, surroundings);
        ShowActive(*dialog);
        QCoreApplication::processEvents();
        EXPECT_EQ(Said().size(), 1U);
    }
};

TEST_F(DataRecovery, GoingThroughTheWindowWritesNothing) {
    for (int page = 0; page < Pages().count(); ++page) {
        GoToPage(page);
        (void)TabOrder(*dialog);
    }
    GoTo(3, 2);
    EXPECT_FALSE(Kept());
}

TEST_F(DataRecovery, ATextIsKeptWhenItsBoxIsLeft) {
    GoToPage(0);
    Box("txtBoxClientName").setFocus();
    Box("txtBoxClientName").clear();
    Type("A. Grower");
    EXPECT_FALSE(Kept());
    Press(Qt::Key_Tab);
    EXPECT_EQ(KeptText("txtBoxClientName"), "A. Grower");
    EXPECT_EQ(KeptText("txtBoxFieldName"), Box("txtBoxFieldName").text().toStdString());
}

TEST_F(DataRecovery, ManyLinesAndListsAreKeptWhenTheyAreLeft) {
    GoToPage(1);
    auto& comments = Get<QPlainTextEdit>("txtBoxFieldComments");
    comments.setFocus();
    comments.setPlainText(QString::fromUtf8("wet\n\u2603\u2028dry"));
    Box("txtBoxFieldName").setFocus();
    EXPECT_EQ(KeptText("txtBoxFieldComments"), "wet\r\n\u2603\r\ndry")
        << "not what the code page makes of it";
    auto& soils = Get<QComboBox>("comboSoilType");
    soils.setFocus();
    soils.setEditText("peat");
    Box("txtBoxFieldName").setFocus();
    EXPECT_EQ(KeptText("comboSoilType"), "peat");
}

TEST_F(DataRecovery, ATextIsKeptWhenAnotherProgramComesInFront) {
    GoToPage(0);
    Box("txtBoxClientName").setFocus();
    Box("txtBoxClientName").clear();
    Type("A. Grower");
    QWidget other;
    ShowActive(other);
    EXPECT_EQ(KeptText("txtBoxClientName"), "A. Grower");
}

TEST_F(DataRecovery, AChoiceIsKeptAtOnce) {
    GoToPage(2);
    auto& box = Get<QCheckBox>("chkBoxObservedLeaks");
    const bool wasChecked = box.isChecked();
    box.click();
    EXPECT_EQ(Kept()->checks.at("chkBoxObservedLeaks"), !wasChecked);
    auto& makers = Get<QComboBox>("ComboSystemManufacturer");
    makers.setFocus();
    makers.setCurrentIndex(3);
    Q_EMIT makers.activated(3);
    EXPECT_EQ(KeptText("ComboSystemManufacturer"), "Reinke");
}

TEST_F(DataRecovery, ATextThatIsDroppedIsKeptAtOnce) {
    GoToPage(0);
    auto& box = Box("txtBoxClientCity");
    QMimeData words;
    words.setText("Millbrook");
    const QPoint place = box.rect().topLeft();
    QDragEnterEvent enter(place, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &enter);
    QDropEvent drop(place, Qt::CopyAction, &words, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &drop);
    EXPECT_FALSE(box.hasFocus()) << "so that nobody leaves it";
    EXPECT_EQ(KeptText("txtBoxClientCity"), "MillbrookAlder Creek");
    Get<QPlainTextEdit>("txtBoxOtherComments").setPlainText("dropped");
    EXPECT_EQ(KeptText("txtBoxOtherComments"), "dropped");
}

TEST_F(DataRecovery, AReadingIsKeptWhenItsCellHasIt) {
    GoTo(1, 2);
    Type("77");
    EXPECT_FALSE(Kept()) << "still in the editor";
    Press(Qt::Key_Down);
    EXPECT_EQ(Said(), (Lines{"events"}));
    const auto state = Kept();
    ASSERT_TRUE(state);
    EXPECT_EQ(state->cells[0][1], "77");
    EXPECT_FALSE(state->edit);
}

// Notes when it is painted and whether the recovery file was there then.
class Painted : public QWidget {
public:
    Painted(QWidget* parent, fs::path ofRecovery) : QWidget(parent), recovery(std::move(ofRecovery)) {
        resize(5, 5);
        show();
    }

    std::vector<bool> keptAtPaints;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { keptAtPaints.push_back(fs::exists(recovery)); }

private:
    fs::path recovery;
};

TEST_F(DataRecovery, TheFileIsWrittenAfterTheRepaint) {
    Painted painted(dialog.get(), RecoveryPath());
    QCoreApplication::processEvents();
    painted.keptAtPaints.clear();
    GoTo(1, 2);
    Type("77");
    Press(Qt::Key_Return);
    painted.update();
    EXPECT_FALSE(fs::exists(RecoveryPath()));
    QCoreApplication::processEvents();
    EXPECT_EQ(painted.keptAtPaints, std::vector{false});
    EXPECT_TRUE(fs::exists(RecoveryPath()));
}

TEST_F(DataRecovery, EverythingComesBackIntoTheControls) {
    GoTo(4, 2);
    Type(".");
    Press(Qt::Key_Return);
    GoTo(250, 2);
    Type("12");
    GoToPage(1);
    Get<QPlainTextEdit>("txtBoxFieldComments").setPlainText(QString::fromUtf8("wet\n\u2603"));
    Get<QComboBox>("comboSoilSlope").setEditText("steep");
    Get<QCheckBox>("chkBoxHasEndGun").toggle();
    const bool hasEndGun = Get<QCheckBox>("chkBoxHasEndGun").isChecked();
    KeepOpenEntries();
    OpenAgain();
    EXPECT_EQ(Cell(4, 2), ".");
    EXPECT_EQ(Get<QPlainTextEdit>("txtBoxFieldComments").toPlainText().toStdString(), "wet\n\u2603");
    EXPECT_EQ(Get<QComboBox>("comboSoilSlope").currentText(), "steep");
    EXPECT_EQ(Get<QCheckBox>("chkBoxHasEndGun").isChecked(), hasEndGun);
}

TEST_F(DataRecovery, TheOpenEditorComesBackOverItsCell) {
    GoTo(250, 2);
    Type("12");
    KeepOpenEntries();
    ASSERT_TRUE(Kept());
    EXPECT_EQ(Kept()->edit, (CellEdit{250, 2, "12"}));
    OpenAgain();
    EXPECT_EQ(Pages().currentIndex(), kTestPage);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(Editor().text(), "12");
    EXPECT_EQ(CurrentRow(), 250);
    EXPECT_TRUE(InWindow(250, 2).contains(EditorInWindow()));
    Type("3");
    Press(Qt::Key_Return);
    EXPECT_EQ(Cell(250, 2), "123");
}

// Says whether the file is there by the time the box is.
class Witness : public MessageBoxService {
public:
    explicit Witness(fs::path ofRecovery) : recovery(std::move(ofRecovery)) {}

    Reply Show(const Message& /*message*/) override {
        (void)std::fputs(fs::exists(recovery) ? "kept before" : "not kept yet", stderr);
        return Reply::Ok;
    }

private:
    fs::path recovery;
};

TEST_F(DataRecovery, AnErrorThatEndsTheProgramFindsTheFileCurrent) {
    GoToPage(0);
    Box("txtBoxClientName").setFocus();
    Box("txtBoxClientName").clear();
    Type("A. Grower");
    Witness witness(RecoveryPath());
    EXPECT_EXIT(
        {
            UsePlatform({.messageBox = &witness, .clock = &clock});
            ui::Run([] { Raise(ErrorNumber::TypeMismatch); });
        },
        ::testing::ExitedWithCode(1), "kept before$");
    EXPECT_EQ(KeptText("txtBoxClientName"), "A. Grower") << "by the process that has ended";
}

TEST_F(DataRecovery, AFailureIsShownBelowThePages) {
    fs::create_directory(RecoveryPath());
    EXPECT_TRUE(Get<QLabel>("labelNotice").isHidden());
    GoTo(1, 2);
    Type("77");
    Press(Qt::Key_Down);
    QCoreApplication::processEvents();
    auto& notice = Get<QLabel>("labelNotice");
    EXPECT_TRUE(notice.isVisible());
    EXPECT_TRUE(notice.text().startsWith("What you type can't be kept for the case of a crash: "));
    EXPECT_EQ(QApplication::focusWidget(), &Table()) << "and nobody is stopped";
    EXPECT_LT(notice.y() + notice.height(), Get<QPushButton>("cmdBtnExitAndSave").y() + 1);
    fs::remove(RecoveryPath());
    Type("78");
    Press(Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_TRUE(notice.isHidden());
    EXPECT_EQ(Said(), (Lines{"events", "events"}));
}

// Whoever goes down row by row types into the last row that shows.
TEST_F(DataRecovery, AFailureHidesNoCell) {
    fs::create_directory(RecoveryPath());
    dialog->resize(dialog->minimumSizeHint().width(), dialog->height());
    QCoreApplication::processEvents();
    const int last = Table().rowAt(Table().viewport()->height() - 1);
    GoTo(last, 2);
    Type("77");
    Press(Qt::Key_Down);
    const int height = Table().height();
    QCoreApplication::processEvents();
    EXPECT_TRUE(Get<QLabel>("labelNotice").isVisible());
    EXPECT_EQ(Table().height(), height);
    Type("78");
    Press(Qt::Key_Down);
    EXPECT_EQ(Cell(last + 1, 2), "78");
    EXPECT_EQ(Said(), (Lines{"events", "events"}));
}

class SolidSetRecovery : public DataRecovery {
protected:
    SolidSetRecovery() { Open<ui::SolidSetDataDialog>(kSolidSet, "solid-set-1997.ssd"); }
};

TEST_F(SolidSetRecovery, TheLayoutComesBack) {
    GoToPage(2);
    auto& triangle = Get<QRadioButton>("optBtnTriangle");
    EXPECT_FALSE(triangle.isChecked());
    triangle.click();
    ASSERT_TRUE(Kept());
    EXPECT_EQ(Kept()->checks.at("optBtnTriangle"), true);
    EXPECT_EQ(Kept()->checks.at("optBtnSquare"), false);
    OpenAgain<ui::SolidSetDataDialog>();
    EXPECT_TRUE(Get<QRadioButton>("optBtnTriangle").isChecked());
    EXPECT_FALSE(Get<QRadioButton>("optBtnSquare").isChecked());
}

TEST_F(SolidSetRecovery, NoLayoutComesBack) {
    Box("txtBoxCrops").setText("sod");
    auto state = Kept();
    ASSERT_TRUE(state);
    state->checks.at("optBtnSquare") = false;
    PutContents(RecoveryPath(), RecoveryText({kSolidSet, "2026-07-04 09:05:03", *state}));
    OpenAgain<ui::SolidSetDataDialog>();
    EXPECT_FALSE(Get<QRadioButton>("optBtnTriangle").isChecked());
    EXPECT_FALSE(Get<QRadioButton>("optBtnSquare").isChecked());
}

} // namespace

} // namespace orvel
