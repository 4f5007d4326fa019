// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/ProgramWindows.h"
#include "tests/monkey/Sandbox.h"
#include "tests/monkey/Windows.h"
#include "ui/Desktop.h"
#include "ui/MainWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QBasicTimer>
#include <QMessageBox>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <string_view>

// Opens both kinds of test, their data windows, report and viewer, and closes them all, again and again; the
// heap must not grow:
//
//     sessions COUNT
//
// Status 0: it did not; 1: it did; 2: a wrong call.

// NOLINTNEXTLINE(readability-identifier-naming): there where the sanitizers have a heap of their own
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace {

using namespace orvel;
using namespace orvel::monkey;

std::size_t HeapInUse() {
    if (__sanitizer_get_current_allocated_bytes != nullptr) {
        return __sanitizer_get_current_allocated_bytes();
    }
    const auto heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

struct Use {
    std::size_t heap = 0;
    qsizetype widgets = 0;
};

Use Current() {
    return {HeapInUse(), QApplication::allWidgets().size()};
}

// Closes every modal window that comes, without saving.
class Closer : public QObject {
public:
    Closer() { timer.start(0, this); }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        // A new one, which also rings in the event loop of what the click below opens.
        timer.start(0, this);
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            QAbstractButton* yes = box->button(QMessageBox::Yes);
            (yes == nullptr ? box->buttons().first() : yes)->click();
        } else if (modal != nullptr) {
            auto* close = modal->findChild<QAbstractButton*>("cmdBtnCloseWithoutSaving");
            close == nullptr ? static_cast<void>(modal->close()) : close->click();
        }
    }

private:
    QBasicTimer timer;
};

QWidget& Shown(WindowKind kind) {
    const std::vector<QWidget*> windows = ShownWindows();
    return **std::ranges::find(windows, kind, [](const QWidget* window) { return KindOf(*window); });
}

void CloseShown(WindowKind kind) {
    Shown(kind).close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void UseAll(ui::Desktop& desktop, std::string_view listing) {
    desktop.ShowReport();
    QCoreApplication::processEvents();
    Shown(WindowKind::Report).findChild<QAction*>("mnuRefreshReport")->trigger();
    CloseShown(WindowKind::Report);
    for (const std::string_view topic : {std::string_view(kViewHelp), listing}) {
        desktop.ShowViewer(topic);
        QCoreApplication::processEvents();
    }
    CloseShown(WindowKind::Viewer);
    desktop.ShowUserData();
    desktop.ShowSoilIntake();
    desktop.ShowAbout();
}

bool HasGrown(int count, const Sandbox& sandbox) {
    // What the toolkit keeps for later: glyphs, pictures, an emptied list.
    constexpr std::size_t kMostGrowth = 64 * 1024;
    ui::Desktop desktop;
    ui::MainWindow mainWindow(desktop);
    mainWindow.Load();
    mainWindow.show();
    const Closer closer;
    Use early;
    for (int round = 1; round <= count; ++round) {
        mainWindow.OpenGivenFile(sandbox.Tests() / "pivot-1978.cpd");
        desktop.ShowCenterPivotData();
        UseAll(desktop, kViewCenterPivotData);
        mainWindow.OpenGivenFile(sandbox.Tests() / "solid-set-1997.ssd");
        desktop.ShowSolidSetData();
        UseAll(desktop, kViewSolidSetData);
        if (round == std::max(count / 10, 1)) {
            early = Current();
        }
    }
    const Use late = Current();
    (void)std::printf(
        "%d rounds: %zu bytes and %lld widgets after a tenth of them, %zu bytes and %lld widgets "
        "at the end\n",
        count, early.heap, static_cast<long long>(early.widgets), late.heap,
        static_cast<long long>(late.widgets));
    return late.heap > early.heap + kMostGrowth || late.widgets != early.widgets;
}

} // namespace

int main(int argc, char** argv) {
    int count = 0;
    const std::string_view argument = argc == 2 ? argv[1] : "";
    const auto [end, error] = std::from_chars(argument.data(), argument.data() + argument.size(), count);
    if (error != std::errc{} || end != argument.data() + argument.size() || count < 1) {
        (void)std::fputs("sessions COUNT\n", stderr);
        return 2;
    }
    const Sandbox sandbox;
    sandbox.LayTestFiles();
    // The monkey watches what is printed.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QApplication application(argc, argv);
    BeginProgram(sandbox);
    return HasGrown(count, sandbox) ? EXIT_FAILURE : EXIT_SUCCESS;
}
