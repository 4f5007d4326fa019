// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/WindowPromises.h"

#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "tests/monkey/DataPromises.h"
#include "tests/monkey/Windows.h"
#include "ui/RichTextEdit.h"
#include "ui/TextEdge.h"

#include <QAction>
#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <algorithm>
#include <array>

namespace orvel::monkey {

namespace {

bool IsForm(WindowKind kind) {
    return kind < WindowKind::OpenDialog;
}

std::string BrokenByModality(const std::vector<QWidget*>& windows) {
    std::array<int, kKinds> shown{};
    const QWidget* owner = nullptr;
    for (const QWidget* window : windows) {
        const WindowKind kind = KindOf(*window);
        if (IsForm(kind) && ++shown.at(static_cast<std::size_t>(kind)) > 1) {
            return NameOf(*window) + " is shown twice";
        }
        if (!window->isModal()) {
            continue;
        }
        if (!BelongsTo(window, owner) && owner != nullptr) {
            return NameOf(*window) + " is modal and does not belong to " + NameOf(*owner) + ", which is, too";
        }
        owner = window;
    }
    return {};
}

std::string BrokenByFocus() {
    const QWidget* focus = QApplication::focusWidget();
    const QWidget* active = QApplication::activeWindow();
    if (QApplication::activePopupWidget() != nullptr || active == nullptr ||
        KindOf(*active) == WindowKind::Other) {
        return {};
    }
    if (focus == nullptr) {
        const WindowKind kind = KindOf(*active);
        const bool needsKeys = IsForm(kind) && kind != WindowKind::Splash;
        return needsKeys ? "nothing in " + NameOf(*active) + " has the focus" : "";
    }
    if (focus->window() != active) {
        return NameOf(*focus) + " has the focus, but " + NameOf(*active) + " is active";
    }
    return focus->isVisible() && focus->isEnabled() ? ""
                                                    : NameOf(*focus) + " has the focus, but can't be used";
}

// A window that has just been shown: later the user may have moved it anywhere.
std::string BrokenByPlace(QWidget& window) {
    constexpr const char* kSeen = "seenByMonkey";
    const bool isToolkits = KindOf(window) >= WindowKind::Menu;
    if (isToolkits || window.property(kSeen).toBool() || !window.isActiveWindow()) {
        return {};
    }
    window.setProperty(kSeen, true);
    // A window as large as the screen hangs over its edge by the frame.
    constexpr int kFrame = 4;
    const QRect screen = window.screen()->availableGeometry().adjusted(0, 0, kFrame, kFrame);
    const QRect place = window.geometry();
    // The user's own place of the report is kept as long as its title bar can be grabbed.
    const bool isKept = KindOf(window) == WindowKind::Report;
    constexpr int kToGrab = 48;
    const QRect seen = screen & place;
    const bool isReachable = seen.top() == place.top() && seen.width() >= kToGrab;
    return (isKept ? isReachable : screen.contains(place))
               ? ""
               : NameOf(window) + " does not fit onto the screen: " + QDebug::toString(place).toStdString();
}

std::string BrokenByMain(const QWidget& window) {
    const ProgramState& program = Program();
    const QString status = window.findChild<QLabel*>("sbStatusBar")->text();
    const std::filesystem::path& file =
        program.centerPivotFile.empty() ? program.solidSetFile : program.centerPivotFile;
    if (!program.centerPivotFile.empty() && !program.solidSetFile.empty()) {
        return "files of both kinds are open";
    }
    const bool isPivot = window.findChild<QRadioButton*>("OptBtnCenterPivot")->isChecked();
    const bool isSolid = window.findChild<QRadioButton*>("OptBtnSolidSet")->isChecked();
    if (isPivot == isSolid || program.testKind != (isPivot ? kCenterPivot : kSolidSet)) {
        return "the chosen kind of test is not the program's";
    }
    if (!window.isActiveWindow()) {
        return {};
    }
    const bool isRight = file.empty()
                             ? status == "No File Open" || status == "Open or Create New Data File to Begin"
                             : status == "File: " + ui::ToQt(FileNameText(file));
    return isRight ? "" : "the status bar says " + status.toStdString();
}

std::string BrokenByReport(const QWidget& window) {
    const auto& text = dynamic_cast<const ui::RichTextEdit&>(*window.findChild<QTextEdit*>("ReportRTB"));
    if (text.isReadOnly() != window.findChild<QAction*>("Lock")->isChecked()) {
        return "the report's lock is not what its button says";
    }
    const QString status = window.findChild<QLabel*>("sbStatusBar")->text();
    if (!status.startsWith("Current File: ") && !status.startsWith("Current RTF File: ")) {
        return "the report's status bar says " + status.toStdString();
    }
    const QRect frame(QPoint(), text.parentWidget()->size());
    return frame.contains(text.geometry()) ? "" : "the report does not fit into its window";
}

std::string BrokenByTyping(const Hands::Typed& typed) {
    if (typed.box == nullptr || !IsForm(KindOf(*typed.box->window()))) {
        return {};
    }
    const QString text = typed.box->text();
    if (typed.isByKeys && IsNumberBox(*typed.box) && ForeignCharacters(text) > typed.foreign) {
        return NameOf(*typed.box) + " took a key that no number has: " + text.toStdString();
    }
    return LineEnds(text) > typed.lineEnds ? NameOf(*typed.box) + " has more than one line" : "";
}

std::string BrokenByWindow(QWidget& window) {
    switch (KindOf(window)) {
    case WindowKind::Main:
        return BrokenByMain(window);
    case WindowKind::Report:
        return BrokenByReport(window);
    case WindowKind::CenterPivotData:
    case WindowKind::SolidSetData:
        return BrokenByDataWindow(window);
    case WindowKind::SoilIntake:
        return BrokenBySoils(window);
    default:
        return {};
    }
}

} // namespace

std::string BrokenByWindows(const Hands::Typed& typed) {
    const std::vector<QWidget*> windows = ShownWindows();
    for (const std::string& broken : {BrokenByModality(windows), BrokenByFocus(), BrokenByTyping(typed)}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    for (QWidget* window : windows) {
        for (const std::string& broken : {BrokenByPlace(*window), BrokenByWindow(*window)}) {
            if (!broken.empty()) {
                return broken;
            }
        }
    }
    return {};
}

} // namespace orvel::monkey
