// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/QtPlatform.h"

#include "core/Version.h"
#include "ui/InFront.h"
#include "ui/TextEdge.h"

#include <QApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QThread>
#include <algorithm>
#include <memory>

namespace orvel::ui {

namespace {

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Warning:
        return QMessageBox::Warning;
    default:
        return QMessageBox::NoIcon;
    }
}

// What the picture of a box says.
const char* NameOf(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return "Error";
    case Icon::Question:
        return "Question";
    case Icon::Information:
        return "Information";
    case Icon::Warning:
        return "Warning";
    default:
        return "";
    }
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

Reply ReplyOf(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return Reply::Yes;
    case QMessageBox::No:
        return Reply::No;
    case QMessageBox::Cancel:
        return Reply::Cancel;
    default:
        return Reply::Ok;
    }
}

// Line ends of the logic are CR or CR LF.
QString WithLineBreaks(QString text) {
    return text.replace("\r\n", "\n").replace('\r', '\n');
}

// A text that has no room on the screen scrolls: else it would push the buttons out of sight.
void LetLongTextScroll(QMessageBox& box) {
    auto* text = box.findChild<QLabel*>("qt_msgbox_label");
    const QSize room = box.screen()->availableSize() * 2 / 3;
    auto wrapped = std::make_unique<QLabel>(text->text());
    wrapped->setTextFormat(Qt::PlainText);
    wrapped->setWordWrap(true);
    wrapped->setAlignment(Qt::AlignTop);
    const int width = std::min(text->sizeHint().width(), room.width());
    const int height = wrapped->heightForWidth(width);
    // One word may be wider.
    if (wrapped->minimumSizeHint().width() <= room.width() && height <= room.height()) {
        return;
    }
    auto* area = new QScrollArea;
    area->setWidget(wrapped.release());
    area->setWidgetResizable(true);
    area->setAccessibleName(box.windowTitle());
    area->setMinimumSize(
        QSize(width + area->verticalScrollBar()->sizeHint().width() + 2 * area->frameWidth(), height)
            .boundedTo(room));
    text->hide();
    const std::unique_ptr<QLayoutItem> place(box.layout()->replaceWidget(text, area));
}

QSettings Store() {
    return {QSettings::NativeFormat, QSettings::UserScope, kProgramTitle, kProgramTitle};
}

QString StoreKey(const std::string& section, const std::string& key) {
    return ToQt(section) + "/" + ToQt(key);
}

} // namespace

Reply QtMessageBox::Show(const Message& message) {
    QMessageBox box(IconOf(message.icon), ToQt(message.title), WithLineBreaks(ToQt(message.text)),
                    ButtonsOf(message.buttons), WindowInFront());
    box.setTextFormat(Qt::PlainText);
    box.findChild<QLabel*>("qt_msgboxex_icon_label")->setAccessibleName(NameOf(message.icon));
    LetLongTextScroll(box);
    return ReplyOf(box.exec());
}

void QtBeeper::Beep() {
    QApplication::beep();
}

DateTime QtClock::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::filesystem::path QtFolderBrowser::Browse(const std::string& title) {
    QFileDialog dialog(WindowInFront(), ToQt(title));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return dialog.exec() == QDialog::Accepted ? PathFromQt(dialog.selectedFiles().value(0))
                                              : std::filesystem::path{};
}

QtKeySender::QtKeySender() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool isMenu = qobject_cast<QMenu*>(now) != nullptr || qobject_cast<QMenuBar*>(now) != nullptr;
        if (now != nullptr && !isMenu) {
            lastControl = now;
        }
    });
}

void QtKeySender::SendCtrl(char letter) {
    // The key may be the shortcut of the very command that sends it: it is the control's alone.
    qApp->installEventFilter(this);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        // The press may have been the control's end.
        if (lastControl != nullptr) {
            QKeyEvent event(type, letter, Qt::ControlModifier);
            QCoreApplication::sendEvent(lastControl, &event);
        }
    }
    qApp->removeEventFilter(this);
}

bool QtKeySender::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

std::string QtSettingsStore::Get(const std::string& section, const std::string& key,
                                 const std::string& fallback) {
    return FromQt(Store().value(StoreKey(section, key), ToQt(fallback)).toString());
}

void QtSettingsStore::Save(const std::string& section, const std::string& key, const std::string& value) {
    Store().setValue(StoreKey(section, key), ToQt(value));
}

bool QtEventPump::ProcessEvents() {
    constexpr unsigned long kMilliseconds = 10;
    QCoreApplication::processEvents();
    // The caller asks again and again: leave the processor to others meanwhile.
    QThread::msleep(kMilliseconds);
    return !isEnding;
}

void QtEventPump::ProcessAllButInput() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace orvel::ui
