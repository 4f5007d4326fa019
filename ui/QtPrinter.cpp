// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/QtPrinter.h"

#include "ui/InFront.h"
#include "ui/TextEdge.h"

#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace orvel::ui {

namespace {

constexpr float kTwipsPerInch = 1440;

float ToTwips(int pixels, int pixelsPerInch) {
    return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(pixelsPerInch);
}

} // namespace

QPrinter& QtPrinter::Device() const {
    if (device == nullptr) {
        device = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    return *device;
}

void QtPrinter::PrintBlank() {
    if (page == 0) {
        // A blank leaves no trace on the paper.
        BeginPage(1);
    }
}

void QtPrinter::NewPage() {
    BeginPage(page + 1);
}

void QtPrinter::BeginPage(int number) {
    page = number;
    context.device = &Device();
    context.painter = nullptr;
    if (!IsWanted(number)) {
        return;
    }
    if (painter.isActive()) {
        if (!Device().newPage()) {
            throw PrinterError("the printer takes no more pages");
        }
    } else {
        const QString name = Device().printerName();
        const bool goesToFile = !Device().outputFileName().isEmpty();
        // A printer that is gone would be taken for the default one.
        if (!goesToFile && !QPrinterInfo::availablePrinterNames().contains(name)) {
            throw PrinterError(name.isEmpty() ? "there is no printer"
                                              : "there is no printer " + FromQt(name) + " any more");
        }
        Device().setFullPage(true);
        Device().setPageMargins({});
        if (!painter.begin(&Device())) {
            throw PrinterError("the printer takes no job");
        }
        painter.setPen(Qt::black);
    }
    context.painter = &painter;
}

bool QtPrinter::IsWanted(int number) const {
    const QPageRanges chosen = Device().pageRanges();
    return Device().printRange() != QPrinter::PageRange || chosen.isEmpty() || chosen.contains(number);
}

void QtPrinter::EndDoc() {
    const int pages = std::exchange(page, 0);
    if (!painter.isActive()) {
        throw PrinterError("it has " + std::to_string(pages) + (pages == 1 ? " page" : " pages") +
                           " and none of those that were chosen");
    }
    if (!painter.end() || Device().printerState() == QPrinter::Error) {
        throw PrinterError("the printer did not take the job");
    }
}

void QtPrinter::KillDoc() {
    page = 0;
    if (painter.isActive()) {
        Device().abort();
        painter.end();
    }
}

int QtPrinter::DeviceCaps(DeviceCap /*cap*/) const {
    // Lengths count from the paper's corner.
    return 0;
}

float QtPrinter::PixelsToTwipsX(int pixels) const {
    return ToTwips(pixels, Device().logicalDpiX());
}

float QtPrinter::PixelsToTwipsY(int pixels) const {
    return ToTwips(pixels, Device().logicalDpiY());
}

float QtPrinter::Width() const {
    return static_cast<float>(Device().pageLayout().fullRect(QPageLayout::Point).width() * 20);
}

float QtPrinter::Height() const {
    return static_cast<float>(Device().pageLayout().fullRect(QPageLayout::Point).height() * 20);
}

Orientation QtPrinter::PaperOrientation() const {
    return Device().pageLayout().orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                         : Orientation::Portrait;
}

void QtPrinter::SetPaperOrientation(Orientation orientation) {
    Device().setPageOrientation(orientation == Orientation::Landscape ? QPageLayout::Landscape
                                                                      : QPageLayout::Portrait);
}

void QtPrintDialog::ShowPrinter(PrintDialog& dialog) {
    QPrinter& device = printer.Device();
    device.setCopyCount(dialog.copies);
    QPrintDialog window(&device, WindowInFront());
    window.setWindowTitle(ToQt(dialog.title));
    window.setOption(QAbstractPrintDialog::PrintToFile, (dialog.flags & kHidePrintToFile) == 0);
    window.setOption(QAbstractPrintDialog::PrintSelection, (dialog.flags & kPrintNoSelection) == 0);
    window.setOption(QAbstractPrintDialog::PrintPageRange, (dialog.flags & kPrintPageNumbers) != 0);
    // How many there are shows when they are laid out.
    constexpr int kMostPages = 9999;
    window.setMinMax(1, kMostPages);
    // The toolkit's list of pages takes no list, however it is written; its "from" and "to" work.
    for (const char* control : {"pagesRadioButton", "pagesLineEdit"}) {
        if (auto* broken = window.findChild<QWidget*>(control)) {
            broken->hide();
        }
    }
    if (window.exec() != QDialog::Accepted) {
        Raise(ErrorNumber::CancelWasSelected);
    }
    dialog.orientation = printer.PaperOrientation();
    dialog.copies = device.copyCount();
}

} // namespace orvel::ui
