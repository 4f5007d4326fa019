// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace orvel::ui {

// Shows its content whole where there is room, and scrolls it where there is none. What gets the focus comes
// into sight, by whichever key.
class ScrollingArea : public QScrollArea {
public:
    explicit ScrollingArea(QWidget* content);

    // Brings a control into sight, or of a larger one the place where the keys go.
    void Follow(const QWidget& control);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace orvel::ui
