// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/monkey/Dice.h"
#include "tests/monkey/Progress.h"

#include <QAction>
#include <QLineEdit>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <string>

namespace orvel::monkey {

struct Interrupted {};

// What a user's hands can do to a window. Events go the way that those of a real keyboard and mouse go, so
// that modal windows block them and menus catch them. Each action is noted before it is done. An action may
// end whichever window it meets, and may return only when a modal window has been closed.
class Hands {
public:
    Hands(Dice& ofUser, Progress& ofRun) : dice(ofUser), progress(ofRun) {}

    // What the actions below are done to; it becomes the active window.
    void Take(QWidget& toUse);

    void ClickSomewhere();
    void DoubleClickSomewhere();
    void Drag();
    void TurnWheel();
    void PressKey();
    void TypeText();
    // Characters that an input method composed.
    void Compose();
    void Paste();
    void ChooseCommand();
    void Resize();
    void Move();
    void MinimizeOrMaximize();
    void Close();

    void Click(const QWidget& control, Qt::MouseButton button = Qt::LeftButton);
    void ClickAt(const QWidget& control, const QPoint& place, Qt::MouseButton button = Qt::LeftButton);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    // Each character by its key, a line end by Return.
    void Type(const QString& text);
    // By its shortcut, by mouse, or by Alt and the underlined letters.
    void Choose(QAction& command);

    // The mouse's button, if an interrupted drag has left it pressed.
    void LetGo();

    // A drag has begun that waits for the button to be let go.
    [[nodiscard]] bool IsDragging() const;
    void Drop();

    // The box of one line that had the focus before the last action.
    struct Typed {
        QPointer<QLineEdit> box;
        qsizetype foreign = 0; // characters of its text that no key can bring into a number box
        qsizetype lineEnds = 0;
        bool isByKeys = false; // nothing but typed characters has reached it since
    };

    void RememberBox();

    [[nodiscard]] const Typed& LastTyped() const { return typed; }

private:
    void Note(const std::string& action, const QWidget* control = nullptr);
    // A place in one of the window's controls, as the window counts.
    QPoint PlaceSomewhere(const char* action);
    // What the events are sent to.
    [[nodiscard]] QWindow* Target() const;
    template <class Event>
    void Send(Event event) {
        const int before = taken;
        if (Target() == nullptr) {
            throw Interrupted{};
        }
        event();
        if (taken != before) {
            throw Interrupted{};
        }
    }

    Dice& dice;
    Progress& progress;
    QPointer<QWidget> window;
    int taken = 0; // how often a window was
    Typed typed;
    int dragLevel = -1;
};

// How many of the characters can't be typed into a number box, and how many end a line.
[[nodiscard]] qsizetype ForeignCharacters(const QString& text);
[[nodiscard]] qsizetype LineEnds(const QString& text);

} // namespace orvel::monkey
