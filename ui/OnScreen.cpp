// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/OnScreen.h"

#include <QScreen>
#include <QStyle>

namespace orvel::ui {

QSize RoomFor(const QWidget& window) {
    return window.screen()->availableSize() - QSize(2 * kFrameBeside, kFrameAbove);
}

void SizeToContent(QWidget& window) {
    // The toolkit's own choice ends at two thirds of the screen.
    window.ensurePolished();
    const QSize room = RoomFor(window);
    QSize size = window.sizeHint();
    if (size.height() > room.height()) {
        // Else the scroll bar would take its width from what it stands beside, which would scroll, too.
        size.rwidth() += window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    window.resize(size.boundedTo(room));
}

} // namespace orvel::ui
