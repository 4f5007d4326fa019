// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/ViewerWindow.h"

#include "ui/InFront.h"
#include "ui/OnScreen.h"
#include "ui/TextEdge.h"
#include "ui/UncaughtError.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace orvel::ui {

ViewerWindow::ViewerWindow(QWidget* owner)
    : QDialog(owner, Qt::Window), text(new RichTextEdit(this)), logic(*this) {
    setObjectName("frmShowRTF");
    setAttribute(Qt::WA_DeleteOnClose);
    text->setObjectName("rtfBox");
    text->setAccessibleName("Text");
    text->SetReadOnly(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(NewButton("cmdBtnPrint", "&Print", &frmShowRTF::cmdBtnPrint_Click));
    buttons->addWidget(NewButton("cmdBtnSave", "&Save", &frmShowRTF::cmdBtnSave_Click));
    buttons->addWidget(NewButton("cmdBtnClose", "&Close", &frmShowRTF::cmdBtnClose_Click));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(buttons);

    constexpr QSize kStartSize(660, 560);
    resize(kStartSize.boundedTo(RoomFor(*this)));
}

void ViewerWindow::ShowTopic(std::string_view what) {
    logic.ShowTopic(what);
}

QWidget* ViewerWindow::NewButton(const char* name, const char* caption, Handler handler) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    // Return scrolls nothing and prints nothing.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [this, handler] { Run([this, handler] { (logic.*handler)(); }); });
    return button;
}

void ViewerWindow::SetCaption(const std::string& caption) {
    setWindowTitle(ToQt(caption));
}

void ViewerWindow::Show() {
    if (!isVisible()) {
        // At the side, where it covers little of what it explains.
        const QRect room = screen()->availableGeometry();
        move(room.right() + 1 - width() - kFrameBeside, room.top());
    }
    BringToFront(*this);
    text->setFocus();
}

} // namespace orvel::ui
