// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace orvel {

// Flags of the print dialog.
enum PrintDialogFlag : unsigned {
    kPrintPageNumbers = 0x2, // a range of pages may be chosen
    kPrintNoSelection = 0x4,
    kUseDeviceModeCopies = 0x40000, // the printer makes the copies where it can
    kHidePrintToFile = 0x100000,
};

inline constexpr unsigned kPrintDialogFlags =
    kHidePrintToFile | kUseDeviceModeCopies | kPrintNoSelection | kPrintPageNumbers;

enum class Orientation : std::int16_t { Portrait = 1, Landscape = 2 };

// A print dialog: what it is asked for, and what the user chose in it, with which it opens the next time. The
// printer and the pages that were chosen are kept by the Printer.
struct PrintDialog {
    std::string title;
    unsigned flags = 0; // of PrintDialogFlag
    Orientation orientation = Orientation::Portrait;
    int copies = 1;
};

class PrintDialogService {
public:
    virtual ~PrintDialogService() = default;
    // Returns when the user has chosen; raises Cancel was selected, with the dialog as it was, when the user
    // did not.
    virtual void ShowPrinter(PrintDialog& dialog) = 0;
};

// What a page is drawn on; a rich-text box knows what to do with it.
class DeviceContext {
public:
    virtual ~DeviceContext() = default;
};

// Capabilities of a device, by their numbers.
enum class DeviceCap {
    PhysicalOffsetX = 112, // the unprintable strip at the paper's left edge, in pixels
    PhysicalOffsetY = 113, // and at its top
};

// The printer. Lengths are in twips, 1440 to the inch. What goes wrong raises RunTimeError.
class Printer {
public:
    virtual ~Printer() = default;

    // A blank character: it begins a job, and a page, where there is none yet.
    virtual void PrintBlank() = 0;
    // From now on lengths are in twips.
    virtual void UseTwips() = 0;
    virtual void NewPage() = 0;
    // Ends the job, and sends it.
    virtual void EndDoc() = 0;
    // Drops the job, if there is one. Raises nothing.
    virtual void KillDoc() = 0;

    // That of the current page; a job must have begun.
    [[nodiscard]] virtual DeviceContext& Context() = 0;
    [[nodiscard]] virtual int DeviceCaps(DeviceCap cap) const = 0;
    [[nodiscard]] virtual float PixelsToTwipsX(int pixels) const = 0;
    [[nodiscard]] virtual float PixelsToTwipsY(int pixels) const = 0;

    // The paper, and the part of it that can be printed on.
    [[nodiscard]] virtual float Width() const = 0;
    [[nodiscard]] virtual float Height() const = 0;
    [[nodiscard]] virtual float ScaleWidth() const = 0;
    [[nodiscard]] virtual float ScaleHeight() const = 0;

    // How often the printer prints each job.
    [[nodiscard]] virtual int Copies() const = 0;
    virtual void SetCopies(int copies) = 0;
    [[nodiscard]] virtual Orientation PaperOrientation() const = 0;
    virtual void SetPaperOrientation(Orientation orientation) = 0;
};

} // namespace orvel
