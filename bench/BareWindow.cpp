// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT

// The least that a program with a window takes: bench_bare_window shows a main window with a menu and ends.

#include "bench/OnceShown.h"

#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const orvel::bench::OnceShown end("bare", orvel::bench::TellMemoryAndEnd);
    QMainWindow window;
    window.setObjectName("bare");
    window.menuBar()->addMenu("&File")->addAction("E&xit", &window, &QWidget::close);
    window.show();
    return QApplication::exec();
}
