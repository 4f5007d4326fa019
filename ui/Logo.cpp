// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/Logo.h"

#include "ui/Form.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QVariant>
#include <functional>

// The linker leaves out the resources of a static library that nobody names. The macro wants no namespace
// around it.
// NOLINTNEXTLINE(misc-use-anonymous-namespace)
static void NameResources() {
    Q_INIT_RESOURCE(orvel);
}

namespace orvel::ui {

namespace {

// Asks for the theme whenever it is drawn: that may change while its window is open.
class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(QIcon ofLines) : lines(std::move(ofLines)) {}

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        constexpr QColor kOnDark(0xc3, 0xcc, 0xd5);
        constexpr int kMiddle = 128;
        QPixmap picture = lines.pixmap(size, 1, mode, state);
        if (QGuiApplication::palette().color(QPalette::Window).lightness() < kMiddle) {
            QPainter painter(&picture);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(picture.rect(), kOnDark);
        }
        return picture;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    [[nodiscard]] QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QIcon lines;
};

QIcon MadeOnce(const QByteArray& name, const std::function<QIcon()>& make) {
    QVariant icon = qApp->property(name);
    if (!icon.isValid()) {
        icon = make();
        qApp->setProperty(name, icon);
    }
    return icon.value<QIcon>();
}

} // namespace

QIcon SharedIcon(const QString& file) {
    NameResources();
    return MadeOnce("icon of " + file.toUtf8(), [&] { return QIcon(file); });
}

QIcon LineIcon(const QString& file) {
    return MadeOnce("lines of " + file.toUtf8(), [&] { return QIcon(new LineIconEngine(SharedIcon(file))); });
}

QIcon ProgramIcon() {
    return SharedIcon(":/orvel.svg");
}

QLabel* NewLogo(int size) {
    QLabel* logo = NewLabel("imgLogo");
    logo->setPixmap(ProgramIcon().pixmap(QSize(size, size), qGuiApp->devicePixelRatio()));
    logo->setAccessibleName("Logo");
    return logo;
}

QLabel* NewTitle() {
    constexpr int kTimesLarger = 2;
    QLabel* title = NewLabel("lblTitle");
    QFont font = title->font();
    font.setPointSize(font.pointSize() * kTimesLarger);
    font.setBold(true);
    title->setFont(font);
    return title;
}

} // namespace orvel::ui
