// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/Printing.h"
#include "core/RunTimeError.h"
#include "tests/support/WindowTest.h"

#include <iomanip>
#include <optional>
#include <sstream>
#include <string>

namespace orvel::testing {

inline void RaiseIf(std::optional<ErrorNumber> error) {
    if (error) {
        Raise(*error);
    }
}

// A print dialog whose user has made up his mind.
class FakePrintDialog : public PrintDialogService {
public:
    explicit FakePrintDialog(Surroundings& ofTest) : surroundings(ofTest) {}

    Orientation chosenOrientation = Orientation::Portrait;
    int chosenCopies = 1;
    std::optional<ErrorNumber> error; // what showing it raises

    void ShowPrinter(const PrintDialog& dialog) override {
        std::ostringstream line;
        line << "print dialog [" << dialog.title << "] 0x" << std::hex << dialog.flags;
        surroundings.Note(line.str());
        RaiseIf(error);
    }
    [[nodiscard]] Orientation ChosenOrientation() const override { return chosenOrientation; }
    [[nodiscard]] int Copies() const override { return chosenCopies; }
    void SetCopies(int copies) override {
        surroundings.Note("dialog's copies " + std::to_string(copies));
        chosenCopies = copies;
    }

private:
    Surroundings& surroundings;
};

// A printer of 600 dots to the inch, Letter paper in it, with a printable area of its own. A page's context
// knows its number.
class FakePrinter : public Printer {
public:
    struct Page : DeviceContext {
        int number = 0;
    };

    explicit FakePrinter(Surroundings& ofTest) : surroundings(ofTest) {}

    int offsetX = 0; // pixels
    int offsetY = 0;
    int copies = 7;
    Orientation orientation = Orientation::Portrait;
    std::optional<ErrorNumber> blankError; // what printing a blank raises

    void PrintBlank() override {
        surroundings.Note("blank");
        RaiseIf(blankError);
        page.number = std::max(page.number, 1);
    }
    void UseTwips() override { surroundings.Note("twips"); }
    void NewPage() override {
        surroundings.Note("new page");
        ++page.number;
    }
    void EndDoc() override {
        surroundings.Note("end of document");
        page.number = 0;
    }
    void KillDoc() override {
        surroundings.Note("job dropped");
        page.number = 0;
    }

    [[nodiscard]] DeviceContext& Context() override {
        EXPECT_GT(page.number, 0) << "no job has begun";
        return page;
    }
    [[nodiscard]] int DeviceCaps(DeviceCap cap) const override {
        return cap == DeviceCap::PhysicalOffsetX ? offsetX : offsetY;
    }
    [[nodiscard]] float PixelsToTwipsX(int pixels) const override { return ToTwips(pixels); }
    [[nodiscard]] float PixelsToTwipsY(int pixels) const override { return ToTwips(pixels); }

    [[nodiscard]] float Width() const override { return 12240; }
    [[nodiscard]] float Height() const override { return 15840; }
    [[nodiscard]] float ScaleWidth() const override { return Width() - 2 * ToTwips(offsetX); }
    [[nodiscard]] float ScaleHeight() const override { return Height() - 2 * ToTwips(offsetY); }

    [[nodiscard]] int Copies() const override { return copies; }
    void SetCopies(int newCopies) override {
        surroundings.Note("printer's copies " + std::to_string(newCopies));
        copies = newCopies;
    }
    [[nodiscard]] Orientation PaperOrientation() const override { return orientation; }
    void SetPaperOrientation(Orientation newOrientation) override {
        surroundings.Note("orientation " + std::to_string(static_cast<int>(newOrientation)));
        orientation = newOrientation;
    }

private:
    static float ToTwips(int pixels) { return static_cast<float>(pixels) * 2.4F; }

    Page page;
    Surroundings& surroundings;
};

} // namespace orvel::testing
