// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/NumericKeyFilter.h"

#include "ui/Keys.h"
#include "ui/UncaughtError.h"

#include <QKeyEvent>

namespace orvel::ui {

namespace {

class KeyFilter : public QObject {
public:
    KeyFilter(QLineEdit* box, int (*filterOfLogic)(int)) : QObject(box), filter(filterOfLogic) {}

    bool eventFilter(QObject* /*box*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto* press = static_cast<QKeyEvent*>(event);
        const int character = TypedCharacter(*press);
        if (character == kNoCharacterTyped || press->text().at(0).category() == QChar::Other_Control) {
            return false;
        }
        int passed = 0;
        Run([&] { passed = filter(character); });
        return passed == 0;
    }

private:
    int (*filter)(int);
};

} // namespace

void FilterKeys(QLineEdit* box, int (*filter)(int key)) {
    // Composed characters come without key events.
    box->setAttribute(Qt::WA_InputMethodEnabled, false);
    box->installEventFilter(new KeyFilter(box, filter));
}

} // namespace orvel::ui
