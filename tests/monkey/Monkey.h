// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/Dice.h"
#include "tests/monkey/Hands.h"
#include "tests/monkey/Progress.h"

#include <QDialog>
#include <QFileDialog>
#include <QWidget>
#include <array>
#include <filesystem>
#include <string>

namespace orvel::monkey {

// Decides what is done next, and in which window. What leads nowhere (a box that waits for an answer, a
// window that blocks all others) is soon left; windows that were seen least are looked for.
class Monkey {
public:
    // `folder` is the only one that file dialogs may reach.
    Monkey(Dice& ofUser, Progress& ofRun, std::filesystem::path ofFiles);

    // One action in one of the windows. May return only when a modal window has been closed.
    void Act();

    // One action towards the program's end.
    void Leave();

    [[nodiscard]] Hands& Fingers() { return hands; }

private:
    using Action = void (Monkey::*)();

    struct Habit {
        std::size_t weight;
        Action action;
    };

    [[nodiscard]] QWidget* ChooseWindow();
    template <std::size_t N>
    void ActBy(const std::array<Habit, N>& habits) {
        (this->*dice.OneByWeight(habits).action)();
    }

    // In any window.
    void DoAnything();
    // Where the menu bar leads.
    void ChooseCommand() { hands.ChooseCommand(); }
    void Press(Qt::Key key) { hands.Press(key); }
    void PressEscape() { Press(Qt::Key_Escape); }
    void PressReturn() { Press(Qt::Key_Return); }
    void CloseByTitleBar() { hands.Close(); }
    // One of the buttons.
    void PushAButton();

    // In the main window: towards the one that was seen least.
    void LookForANewWindow();
    void ChooseMain(const char* command);

    // In a data window.
    void EnterReadings();
    void FillGrid();
    void MendSoil();
    void OpenList();
    void SaveWhileTyping();
    void LeaveDataWindow();
    void GoToPageOf(const QWidget& control);

    // In the settings windows.
    void Browse();
    void SaveOrCancel();

    // In the report and the viewer.
    void Print();
    void Unlock();

    // In dialogs.
    void NameAFile();
    void KeepInside(QFileDialog& dialog) const;

    void PickFromPopup();

    Dice& dice;
    Progress& progress;
    std::filesystem::path folder;
    Hands hands;
    QWidget* window = nullptr;
};

} // namespace orvel::monkey
