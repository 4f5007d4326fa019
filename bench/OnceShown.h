// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <unistd.h>
#include <utility>

namespace orvel::bench {

// Does something once the window of that name, and all that is painted with it, is on the screen.
class OnceShown : public QObject {
public:
    OnceShown(const char* name, std::function<void()> toDo) : window(name), action(std::move(toDo)) {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == window) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, action);
        }
        return false;
    }

private:
    const char* window;
    std::function<void()> action;
};

// Prints how much memory the program has, in bytes, and ends it at once.
[[noreturn]] inline void TellMemoryAndEnd() {
    long pages = 0;
    long residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    (void)std::printf("%ld\n", residentPages * ::sysconf(_SC_PAGESIZE));
    (void)std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

} // namespace orvel::bench
