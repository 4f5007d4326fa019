// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "tests/monkey/Windows.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QWindow>
#include <algorithm>

namespace orvel::monkey {

WindowKind KindOf(const QWidget& window) {
    const auto form = std::ranges::find(kKindNames, window.objectName().toStdString());
    if (form != kKindNames.end()) {
        return static_cast<WindowKind>(form - kKindNames.begin());
    }
    if (const auto* dialog = qobject_cast<const QFileDialog*>(&window)) {
        if (dialog->fileMode() == QFileDialog::Directory) {
            return WindowKind::FolderBrowser;
        }
        return dialog->acceptMode() == QFileDialog::AcceptSave ? WindowKind::SaveDialog
                                                               : WindowKind::OpenDialog;
    }
    if (qobject_cast<const QPrintDialog*>(&window) != nullptr) {
        return WindowKind::PrintDialog;
    }
    if (qobject_cast<const QMessageBox*>(&window) != nullptr) {
        return WindowKind::Box;
    }
    if (qobject_cast<const QMenu*>(&window) != nullptr) {
        return WindowKind::Menu;
    }
    return window.inherits("QComboBoxPrivateContainer") ? WindowKind::List : WindowKind::Other;
}

std::vector<QWidget*> ShownWindows() {
    std::vector<QWidget*> windows;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && window->type() != Qt::ToolTip) {
            if (QWidget* widget = QWidget::find(window->winId()); widget != nullptr && widget->isVisible()) {
                windows.push_back(widget);
            }
        }
    }
    return windows;
}

std::vector<QWidget*> UsableWindows() {
    std::vector<QWidget*> windows = ShownWindows();
    const QWidget* modal = QApplication::activeModalWidget();
    std::erase_if(windows,
                  [modal](const QWidget* window) { return modal != nullptr && !BelongsTo(window, modal); });
    return windows;
}

bool BelongsTo(const QWidget* window, const QWidget* owner) {
    while (window != nullptr && window != owner) {
        window = window->parentWidget();
    }
    return window != nullptr;
}

std::vector<QWidget*> ShownControls(const QWidget& window) {
    std::vector<QWidget*> controls;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() == &window && control->isVisible() && !control->visibleRegion().isEmpty()) {
            controls.push_back(control);
        }
    }
    return controls;
}

std::vector<QAction*> Commands(const QWidget& window) {
    std::vector<QAction*> commands;
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->objectName().startsWith("mnu") && action->isEnabled() && action->menu() == nullptr &&
            BelongsTo(qobject_cast<const QMenu*>(action->parent()), &window)) {
            commands.push_back(action);
        }
    }
    return commands;
}

std::string NameOf(const QWidget& control) {
    const QString name =
        control.objectName().isEmpty() ? QString(control.metaObject()->className()) : control.objectName();
    return control.isWindow() ? name.toStdString() : NameOf(*control.window()) + "/" + name.toStdString();
}

} // namespace orvel::monkey
