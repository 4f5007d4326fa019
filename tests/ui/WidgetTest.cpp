// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/ui/WidgetTest.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <map>
#include <set>

namespace orvel::testing {

namespace {

bool TakesFocus(const QWidget& control) {
    // Those with a proxy are a part of it.
    return control.isVisible() && control.isEnabled() && control.focusProxy() == nullptr &&
           (control.focusPolicy() & Qt::TabFocus) != 0;
}

// The captions of what answers to Alt and a letter.
QStringList Captions(const QWidget& window) {
    QStringList captions;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        captions << button->text();
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            captions << label->text();
        }
    }
    for (const auto* frame : window.findChildren<QGroupBox*>()) {
        captions << frame->title();
    }
    for (const auto* pages : window.findChildren<QTabBar*>()) {
        for (int page = 0; page < pages->count(); ++page) {
            captions << pages->tabText(page);
        }
    }
    for (const auto* menus : window.findChildren<QMenuBar*>()) {
        for (const QAction* menu : menus->actions()) {
            captions << menu->text();
        }
    }
    return captions;
}

std::string AccessibleName(QWidget& control) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&control);
    return accessible == nullptr ? "" : accessible->text(QAccessible::Name).toStdString();
}

} // namespace

void WidgetTest::ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

void WidgetTest::PasteOver(QLineEdit& box, const QString& text) {
    QApplication::clipboard()->setText(text);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
}

Lines WidgetTest::Items(const QMenu& menu) {
    Lines items;
    for (const QAction* action : menu.actions()) {
        const QString shortcut = action->shortcut().isEmpty() ? "" : " | " + action->shortcut().toString();
        items.push_back(action->isSeparator() ? "-" : (action->text().remove('&') + shortcut).toStdString());
    }
    return items;
}

std::vector<std::string> WidgetTest::TabOrder(QWidget& window) {
    std::vector<std::string> names;
    std::set<const QWidget*> seen;
    for (QWidget* control = window.nextInFocusChain(); seen.insert(control).second;
         control = control->nextInFocusChain()) {
        if (control != &window && control->window() == &window && TakesFocus(*control)) {
            names.push_back(control->objectName().toStdString());
        }
    }
    return names;
}

int WidgetTest::RunToItsEnd() {
    // It goes with this call: else it would end whatever runs later.
    QTimer patience;
    QObject::connect(&patience, &QTimer::timeout, [] { QApplication::exit(EXIT_FAILURE); });
    patience.start(std::chrono::seconds(20));
    return QApplication::exec();
}

void WidgetTest::ExpectReachable(const QWidget& window) {
    std::map<QString, QString> mnemonics;
    for (const QString& caption : Captions(window)) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
        if (!mnemonic.isEmpty()) {
            const auto [other, isNew] = mnemonics.emplace(mnemonic.toString(), caption);
            EXPECT_TRUE(isNew) << caption.toStdString() << " and " << other->second.toStdString();
        }
    }
    std::set<std::string> names;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (TakesFocus(*control)) {
            const std::string name = AccessibleName(*control);
            EXPECT_FALSE(name.empty()) << control->objectName().toStdString();
            EXPECT_TRUE(names.insert(name).second) << name;
        }
    }
}

void WhileModal(const std::function<void()>& action, const std::function<void(QWidget& window)>& handler) {
    bool isHandled = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        if (QWidget* window = QApplication::activeModalWidget(); window != nullptr && window->isVisible()) {
            timer.stop();
            isHandled = true;
            const QPointer<QWidget> shown = window;
            handler(*window);
            if (shown != nullptr && shown->isVisible()) {
                ADD_FAILURE() << "the modal window was left open";
                shown->close();
            }
        }
    });
    timer.start(0);
    action();
    EXPECT_TRUE(isHandled) << "no modal window came";
}

} // namespace orvel::testing
