// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/ScrollingArea.h"

#include <QApplication>
#include <QEvent>

namespace orvel::ui {

ScrollingArea::ScrollingArea(QWidget* content) {
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // The content keeps the background of what the area stands in.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && widget()->isAncestorOf(now)) {
            Follow(*now);
        }
    });
}

void ScrollingArea::Follow(const QWidget& control) {
    QRect part = control.rect();
    if (part.width() > viewport()->width() || part.height() > viewport()->height()) {
        part = control.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&control)) {
            part.translate(area->viewport()->pos());
        }
    }
    const QPoint middle = control.mapTo(widget(), part.center());
    ensureVisible(middle.x(), middle.y(), part.width() / 2 + 1, part.height() / 2 + 1);
}

QSize ScrollingArea::sizeHint() const {
    return widget()->sizeHint();
}

bool ScrollingArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace orvel::ui
