// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "report/PrintRTB.h"

#include "core/Arithmetic.h"
#include "core/Messages.h"
#include "core/Platform.h"
#include "core/RunTimeError.h"

#include <cstdint>
#include <string>

namespace orvel {

namespace {

constexpr std::int32_t kInch = 1440; // twips
constexpr const char* kPrintingError = "Printing Error";

Printer& CurrentPrinter() {
    return *CurrentPlatform().printer;
}

// Margins of one inch from the paper's edges, though lengths count from the edges of what can be printed on.
TwipsRect DrawingArea(const Printer& printer) {
    const std::int32_t leftOffset =
        RoundToLong(printer.PixelsToTwipsX(printer.DeviceCaps(DeviceCap::PhysicalOffsetX)));
    const std::int32_t topOffset =
        RoundToLong(printer.PixelsToTwipsY(printer.DeviceCaps(DeviceCap::PhysicalOffsetY)));
    return {.left = kInch - leftOffset,
            .top = kInch - topOffset,
            .right = RoundToLong(printer.Width() - kInch) - leftOffset,
            .bottom = RoundToLong(printer.Height() - kInch) - topOffset};
}

// Frees what drawing has kept, also where an error ends it.
class FreeAtEnd {
public:
    explicit FreeAtEnd(RichTextBox& ofText) : box(ofText) {}
    ~FreeAtEnd() { box.FreeDrawing(); }
    FreeAtEnd(const FreeAtEnd&) = delete;
    FreeAtEnd& operator=(const FreeAtEnd&) = delete;

private:
    RichTextBox& box;
};

} // namespace

void PrintRichText(RichTextBox& box) {
    Printer& printer = CurrentPrinter();
    const FreeAtEnd freeAtEnd(box);
    printer.PrintBlank();
    printer.UseTwips();
    FormatRange range;
    range.context = &printer.Context();
    range.targetContext = &printer.Context();
    range.drawing = DrawingArea(printer);
    range.page = {.right = RoundToLong(printer.ScaleWidth()), .bottom = RoundToLong(printer.ScaleHeight())};
    const auto length = static_cast<std::ptrdiff_t>(box.Text().size());
    while (true) {
        const auto next = static_cast<std::ptrdiff_t>(box.DrawRange(range));
        if (next >= length) {
            break;
        }
        if (next <= range.first) {
            // Not a line fits: the paper would never end.
            Raise(ErrorNumber::DeviceIoError);
        }
        range.first = next;
        printer.NewPage();
        printer.PrintBlank();
        range.context = &printer.Context();
        range.targetContext = &printer.Context();
    }
    printer.EndDoc();
}

PrintDialog NewPrintDialog() {
    return {.title = "Print Report", .flags = kPrintDialogFlags};
}

bool HasTextToPrint(const RichTextBox& box) {
    if (!box.Text().empty()) {
        return true;
    }
    Tell("There is no text to print.", kPrintingError);
    return false;
}

void RunPrintCommand(const std::function<void()>& steps) {
    try {
        steps();
    } catch (const RunTimeError& error) {
        if (error.Number() == static_cast<int>(ErrorNumber::CancelWasSelected)) {
            return;
        }
        CurrentPrinter().KillDoc();
        TellError(std::string{"The text could not be printed: "} + error.what() + ".", kPrintingError);
    }
}

} // namespace orvel
