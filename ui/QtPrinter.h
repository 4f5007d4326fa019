// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"
#include "core/RunTimeError.h"
#include "ui/PageContext.h"

#include <QPainter>
#include <QPrinter>
#include <memory>
#include <string>

namespace orvel::ui {

// What went wrong with the printer, in words.
class PrinterError : public RunTimeError {
public:
    explicit PrinterError(std::string what)
        : RunTimeError(ErrorNumber::DeviceIoError), detail(std::move(what)) {}

    [[nodiscard]] const char* what() const noexcept override { return detail.c_str(); }

private:
    std::string detail;
};

// The printer. Its pages begin at the paper's corner. Of a job's pages only those are printed that the user
// chose.
class QtPrinter : public Printer {
public:
    void PrintBlank() override;
    void UseTwips() override {} // always
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;

    [[nodiscard]] DeviceContext& Context() override { return context; }
    [[nodiscard]] int DeviceCaps(DeviceCap cap) const override;
    [[nodiscard]] float PixelsToTwipsX(int pixels) const override;
    [[nodiscard]] float PixelsToTwipsY(int pixels) const override;

    [[nodiscard]] float Width() const override;
    [[nodiscard]] float Height() const override;
    [[nodiscard]] float ScaleWidth() const override { return Width(); }
    [[nodiscard]] float ScaleHeight() const override { return Height(); }

    [[nodiscard]] int Copies() const override { return Device().copyCount(); }
    void SetCopies(int copies) override { Device().setCopyCount(copies); }
    [[nodiscard]] Orientation PaperOrientation() const override;
    void SetPaperOrientation(Orientation orientation) override;

    // Made when it is first asked for: looking for printers takes a moment.
    [[nodiscard]] QPrinter& Device() const;

private:
    [[nodiscard]] bool IsWanted(int number) const;
    // Lets the page of that number begin.
    void BeginPage(int number);

    mutable std::unique_ptr<QPrinter> device;
    QPainter painter;
    PageContext context;
    int page = 0; // none: no job
};

// The toolkit's print dialog. What is chosen in it goes to the printer.
class QtPrintDialog : public PrintDialogService {
public:
    explicit QtPrintDialog(QtPrinter& forDialog) : printer(forDialog) {}

    void ShowPrinter(PrintDialog& dialog) override;

private:
    QtPrinter& printer;
};

} // namespace orvel::ui
