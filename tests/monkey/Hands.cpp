// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Hands.h"

#include "tests/monkey/Texts.h"
#include "tests/monkey/Windows.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <utility>

namespace orvel::monkey {

namespace {

struct Stroke {
    std::size_t weight;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

const std::array<Stroke, 50> kStrokes = {{
    {6, Qt::Key_Tab, {}},
    {2, Qt::Key_Backtab, Qt::ShiftModifier},
    {4, Qt::Key_Return, {}},
    {1, Qt::Key_Enter, Qt::KeypadModifier},
    {2, Qt::Key_Escape, {}},
    {4, Qt::Key_Down, {}},
    {4, Qt::Key_Up, {}},
    {3, Qt::Key_Left, {}},
    {3, Qt::Key_Right, {}},
    {1, Qt::Key_Home, {}},
    {1, Qt::Key_End, {}},
    {2, Qt::Key_PageDown, {}},
    {2, Qt::Key_PageUp, {}},
    {2, Qt::Key_Space, {}},
    {3, Qt::Key_Backspace, {}},
    {3, Qt::Key_Delete, {}},
    {2, Qt::Key_Insert, {}},
    {1, Qt::Key_F1, {}},
    {1, Qt::Key_F2, {}},
    {1, Qt::Key_F4, {}},
    {1, Qt::Key_F5, {}},
    {2, Qt::Key_F9, {}},
    {2, Qt::Key_F10, {}},
    {1, Qt::Key_Menu, {}},
    {1, Qt::Key_Alt, {}},
    {1, Qt::Key_Period, {}},
    {1, Qt::Key_A, {}},
    {1, Qt::Key_7, {}},
    {2, Qt::Key_A, Qt::ControlModifier},
    {1, Qt::Key_C, Qt::ControlModifier},
    {1, Qt::Key_X, Qt::ControlModifier},
    {1, Qt::Key_V, Qt::ControlModifier},
    {2, Qt::Key_Z, Qt::ControlModifier},
    {1, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {1, Qt::Key_Y, Qt::ControlModifier},
    {1, Qt::Key_K, Qt::ControlModifier},
    {1, Qt::Key_B, Qt::ControlModifier},
    {1, Qt::Key_L, Qt::ControlModifier},
    {1, Qt::Key_End, Qt::ControlModifier},
    {1, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier},
    {1, Qt::Key_End, Qt::ShiftModifier},
    {1, Qt::Key_Down, Qt::AltModifier},
    {1, Qt::Key_Insert, Qt::ShiftModifier},
    {1, Qt::Key_Delete, Qt::ShiftModifier},
    {1, Qt::Key_F10, Qt::ShiftModifier},
    {1, Qt::Key_Tab, Qt::ControlModifier},
    {1, Qt::Key_PageDown, Qt::ControlModifier},
    {1, Qt::Key_F, Qt::AltModifier},
    {1, Qt::Key_S, Qt::AltModifier},
    {1, Qt::Key_T, Qt::AltModifier},
}};

QString Describe(const QPoint& place) {
    return QString(" at %1,%2").arg(place.x()).arg(place.y());
}

// Where it is underlined.
Qt::Key LetterOf(const QAction& action) {
    const QKeySequence mnemonic = QKeySequence::mnemonic(action.text());
    return mnemonic.isEmpty() ? Qt::Key_unknown : mnemonic[0].key();
}

Qt::Key KeyOf(QChar character) {
    switch (character.unicode()) {
    case '\n':
    case '\r':
        return Qt::Key_Return;
    case '\t':
        return Qt::Key_Tab;
    case '\b':
        return Qt::Key_Backspace;
    case 27:
        return Qt::Key_Escape;
    case 127:
        return Qt::Key_Delete;
    default:
        return static_cast<Qt::Key>(character.toUpper().unicode());
    }
}

QPoint Inside(const QWindow& window, const QPoint& place) {
    return {std::clamp(place.x(), 1, std::max(1, window.width() - 1)),
            std::clamp(place.y(), 1, std::max(1, window.height() - 1))};
}

} // namespace

qsizetype ForeignCharacters(const QString& text) {
    return std::ranges::count_if(
        text, [](QChar character) { return character != '.' && (character < '0' || character > '9'); });
}

qsizetype LineEnds(const QString& text) {
    static const QRegularExpression lineEnd(R"([\r\n\x{2028}\x{2029}])");
    return text.count(lineEnd);
}

void Hands::Take(QWidget& toUse) {
    ++taken;
    window = &toUse;
    if (QApplication::activePopupWidget() == nullptr && (!toUse.isActiveWindow() || toUse.isMinimized())) {
        toUse.setWindowState(toUse.windowState() & ~Qt::WindowMinimized);
        toUse.activateWindow();
        QCoreApplication::processEvents();
    }
}

void Hands::Note(const std::string& action, const QWidget* control) {
    progress.Note((window == nullptr ? "" : NameOf(*window) + ": ") + action +
                  (control == nullptr ? "" : " " + NameOf(*control)));
}

QWindow* Hands::Target() const {
    return window == nullptr ? nullptr : window->windowHandle();
}

QPoint Hands::PlaceSomewhere(const char* action) {
    const std::vector<QWidget*> controls = ShownControls(*window);
    const QWidget& control = controls.empty() ? *window : *dice.OneOf(controls);
    const QRect seen = control.visibleRegion().boundingRect();
    const QPoint place = seen.topLeft() + QPoint(dice.Below(seen.width() + 1), dice.Below(seen.height() + 1));
    Note(action + Describe(place).toStdString(), &control);
    return Inside(*Target(), control.mapTo(window, place));
}

void Hands::ClickSomewhere() {
    static constexpr std::array kButtons = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                            Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    static const std::array<Qt::KeyboardModifiers, 6> kModifiers = {Qt::NoModifier,    Qt::NoModifier,
                                                                    Qt::NoModifier,    Qt::NoModifier,
                                                                    Qt::ShiftModifier, Qt::ControlModifier};
    const Qt::MouseButton button = dice.OneOf(kButtons);
    const Qt::KeyboardModifiers modifiers = dice.OneOf(kModifiers);
    const QPoint place = PlaceSomewhere(button == Qt::LeftButton    ? "click"
                                        : button == Qt::RightButton ? "right click"
                                                                    : "middle click");
    Send([&] { QTest::mouseClick(Target(), button, modifiers, place); });
}

void Hands::DoubleClickSomewhere() {
    const Qt::MouseButton button = dice.IsIn100(90) ? Qt::LeftButton : Qt::RightButton;
    const QPoint place = PlaceSomewhere("double click");
    Send([&] { QTest::mouseClick(Target(), button, {}, place); });
    // Soon enough for a second click.
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    Send([&] { QTest::mouseClick(Target(), button, {}, place); });
}

void Hands::Click(const QWidget& control, Qt::MouseButton button) {
    ClickAt(control, control.rect().center(), button);
}

void Hands::ClickAt(const QWidget& control, const QPoint& place, Qt::MouseButton button) {
    QWindow* target = control.window()->windowHandle();
    if (target == nullptr) {
        return;
    }
    Note("click", &control);
    const QPoint inWindow = Inside(*target, control.mapTo(control.window(), place));
    Send([&] { QTest::mouseClick(target, button, {}, inWindow); });
}

void Hands::Drag() {
    const QPoint begin = PlaceSomewhere("drag from");
    const QPoint end = PlaceSomewhere("drag to");
    const int level = QThread::currentThread()->loopLevel();
    Send([&] { QTest::mousePress(Target(), Qt::LeftButton, {}, begin); });
    constexpr int kMoves = 4;
    dragLevel = level;
    for (int move = 1; move <= kMoves && dragLevel == level; ++move) {
        Send([&] { QTest::mouseMove(Target(), Inside(*Target(), begin + (end - begin) * move / kMoves)); });
    }
    if (std::exchange(dragLevel, -1) == level) {
        Send([&] { QTest::mouseRelease(Target(), Qt::LeftButton, {}, Inside(*Target(), end)); });
    }
}

void Hands::LetGo() {
    dragLevel = -1;
    const std::vector<QWidget*> usable = UsableWindows();
    if (QTestPrivate::qtestMouseButtons.testFlag(Qt::LeftButton) && !usable.empty()) {
        QTest::mouseRelease(usable.front()->windowHandle(), Qt::LeftButton, {}, QPoint(1, 1));
    }
}

bool Hands::IsDragging() const {
    return dragLevel >= 0 && QThread::currentThread()->loopLevel() > dragLevel;
}

void Hands::Drop() {
    dragLevel = -1;
    if (QWindow* target = Target()) {
        const QPoint place = PlaceSomewhere("drop on");
        QTest::mouseMove(target, place);
        QTest::mouseRelease(target, Qt::LeftButton, {}, place);
    }
}

void Hands::TurnWheel() {
    const QPoint place = PlaceSomewhere("turn the wheel");
    constexpr int kNotch = 120;
    const QPoint angle(0, dice.OneOf(std::array{-kNotch, -3 * kNotch, kNotch, 30 * kNotch}));
    const Qt::KeyboardModifiers modifiers = dice.IsIn100(20) ? Qt::ControlModifier : Qt::NoModifier;
    QWheelEvent event(place, Target()->mapToGlobal(place), {}, angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    Send([&] { QCoreApplication::sendEvent(Target(), &event); });
}

void Hands::RememberBox() {
    typed = {};
    if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
        typed = {box, ForeignCharacters(box->text()), LineEnds(box->text())};
    }
}

void Hands::PressKey() {
    const Stroke& stroke = dice.OneByWeight(kStrokes);
    if (stroke.modifiers == Qt::NoModifier && dice.IsIn100(10)) {
        // Held down.
        Note("hold " + QKeySequence(stroke.key).toString().toStdString());
        constexpr int kRepeats = 5;
        for (int i = 0; i < kRepeats; ++i) {
            Send([&] { QTest::simulateEvent(Target(), true, stroke.key, stroke.modifiers, {}, i > 0); });
        }
        Send([&] { QTest::simulateEvent(Target(), false, stroke.key, stroke.modifiers, {}, false); });
        return;
    }
    Press(stroke.key, stroke.modifiers);
}

void Hands::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    Note("press " + QKeySequence(key | modifiers).toString().toStdString());
    Send([&] { QTest::keyClick(Target(), key, modifiers); });
}

void Hands::TypeText() {
    typed.isByKeys = true;
    Type(TextToType(dice));
}

void Hands::Type(const QString& text) {
    Note("type \"" + text.toStdString() + "\"");
    for (const QChar character : text) {
        Send([&] {
            QTest::sendKeyEvent(QTest::Click, Target(), KeyOf(character), QString(character), Qt::NoModifier);
        });
    }
}

void Hands::Compose() {
    const QPointer<QWidget> control = QApplication::focusWidget();
    if (control == nullptr || !control->testAttribute(Qt::WA_InputMethodEnabled)) {
        return;
    }
    const QString text = TextToType(dice);
    Note("compose \"" + text.toStdString() + "\" in", control);
    QInputMethodEvent begun("...", {});
    QInputMethodEvent finished;
    finished.setCommitString(text);
    for (QInputMethodEvent* event : {&begun, &finished}) {
        Send([&] { QCoreApplication::sendEvent(control, event); });
    }
}

void Hands::Paste() {
    Note("copy " + FillClipboard(dice));
    const std::array<QKeySequence, 2> ways = {QKeySequence("Ctrl+V"), QKeySequence("Shift+Insert")};
    const QKeySequence way = dice.OneOf(ways);
    if (dice.IsIn100(30)) {
        Press(Qt::Key_A, Qt::ControlModifier);
    }
    Press(way[0].key(), way[0].keyboardModifiers());
}

void Hands::ChooseCommand() {
    const std::vector<QAction*> commands = Commands(*window);
    if (!commands.empty()) {
        Choose(*dice.OneOf(commands));
    }
}

void Hands::Choose(QAction& command) {
    const auto* menu = qobject_cast<const QMenu*>(command.parent());
    // The window itself may be the menu.
    const auto* bar = menu->parentWidget()->window()->findChild<QMenuBar*>();
    const int way = dice.Below(3);
    Note("choose " + command.objectName().toStdString());
    if (way == 0 && !command.shortcut().isEmpty()) {
        Send([&] { QTest::keySequence(Target(), command.shortcut()); });
    } else if (way == 1) {
        Send([&] { QTest::keyClick(Target(), LetterOf(*menu->menuAction()), Qt::AltModifier); });
        if (QApplication::activePopupWidget() == menu) {
            Send([&] { QTest::keyClick(menu->windowHandle(), LetterOf(command)); });
        }
    } else {
        ClickAt(*bar, bar->actionGeometry(menu->menuAction()).center());
        if (QApplication::activePopupWidget() == menu) {
            ClickAt(*menu, menu->actionGeometry(&command).center());
        }
    }
}

void Hands::Resize() {
    const QSize screen = window->screen()->availableSize();
    const QSize size(dice.Between(1, screen.width() * 5 / 4), dice.Between(1, screen.height() * 5 / 4));
    Note(QString("resize to %1x%2").arg(size.width()).arg(size.height()).toStdString());
    Send([&] {
        // No window manager resizes a window that fills the screen, or is none.
        window->setWindowState(Qt::WindowNoState);
        window->resize(size);
    });
}

void Hands::Move() {
    const QSize screen = window->screen()->availableSize();
    const QPoint place(dice.Between(-screen.width() / 2, screen.width()), dice.Between(0, screen.height()));
    Note("move" + Describe(place).toStdString());
    Send([&] {
        window->setWindowState(Qt::WindowNoState);
        window->move(place);
    });
}

void Hands::MinimizeOrMaximize() {
    const auto state = dice.OneOf(std::array{Qt::WindowMinimized, Qt::WindowMaximized, Qt::WindowNoState});
    Note("set the state " + std::to_string(static_cast<int>(state)));
    Send([&] { window->setWindowState(state); });
}

void Hands::Close() {
    Note("close by the title bar");
    // Not the widget, which a modal window would not protect.
    Send([&] { Target()->close(); });
}

} // namespace orvel::monkey
