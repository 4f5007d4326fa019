// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// Somebody who types readings into a center-pivot test and says of each entry when it is finished, so that a
// test can end the program at any moment and see what is left: typist FILE SEED. The next run of the program
// restores what it finds and says what the window shows: typist FILE.

#include "core/ProgramState.h"
#include "core/RecordFiles.h"
#include "core/TestFile.h"
#include "tests/support/WindowTest.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/QtPlatform.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <cstdio>
#include <random>
#include <string>

namespace orvel {

namespace {

// Wants everything.
class Yes : public MessageBoxService {
public:
    Reply Show(const Message& /*message*/) override { return Reply::Yes; }
};

class Typist {
public:
    Typist(ui::CenterPivotDataDialog& ofTest, unsigned seed) : window(ofTest), dice(seed) {}

    // All rows, and between them a box now and then.
    void Type() {
        auto* pages = window.findChild<QTabWidget*>();
        auto* grid = window.findChild<QTableView*>("gridTest");
        constexpr int kTestPage = 3;
        pages->setCurrentIndex(kTestPage);
        grid->setCurrentIndex(grid->model()->index(0, 2));
        for (int row = 1; row <= MeasurementGrid::kLastRow; ++row) {
            grid->setFocus();
            const std::string reading = std::to_string(100 + dice() % 900);
            Press(reading);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            Finish("row", std::to_string(row), reading);
            if (dice() % 8 == 0) {
                const std::string date = "day " + std::to_string(row);
                auto* box = window.findChild<QLineEdit*>("txtBoxDateofTest");
                box->setFocus();
                box->selectAll();
                Press(date);
                QTest::keyClick(box, Qt::Key_Tab);
                Finish("box", "txtBoxDateofTest", date);
            }
        }
    }

private:
    void Press(const std::string& keys) {
        for (const char key : keys) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QCoreApplication::processEvents();
        }
    }

    static void Finish(const char* what, const std::string& which, const std::string& text) {
        QCoreApplication::processEvents();
        (void)std::printf("%s\t%s\t%s\n", what, which.c_str(), text.c_str());
        (void)std::fflush(stdout);
    }

    ui::CenterPivotDataDialog& window;
    std::mt19937 dice;
};

void Tell(const ui::CenterPivotDataDialog& window) {
    const auto* model = window.findChild<QTableView*>("gridTest")->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        (void)std::printf("row\t%d\t%s\n", row + 1, qPrintable(model->index(row, 2).data().toString()));
    }
    (void)std::printf("box\ttxtBoxDateofTest\t%s\n",
                      qPrintable(window.findChild<QLineEdit*>("txtBoxDateofTest")->text()));
}

void Run(const char* file, const char* seed) {
    Yes messageBox;
    ui::QtClock clock;
    ui::QtEventPump eventPump;
    UsePlatform({.messageBox = &messageBox, .clock = &clock, .eventPump = &eventPump});
    FillDefaultSoilTable();
    OpenTestFile(file);
    testing::Surroundings windows;
    ui::CenterPivotDataDialog window(nullptr, windows);
    window.show();
    QCoreApplication::processEvents();
    if (seed != nullptr) {
        Typist(window, static_cast<unsigned>(std::stoul(seed))).Type();
    } else {
        Tell(window);
    }
    // The window has done its part: nothing is to close it in good order.
    (void)std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace

} // namespace orvel

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    orvel::Run(argv[1], argc == 3 ? argv[2] : nullptr);
}
