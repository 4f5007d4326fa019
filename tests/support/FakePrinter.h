// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"
#include "core/Printing.h"
#include "core/RunTimeError.h"
#include "tests/support/WindowTest.h"

#include <deque>
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
    std::optional<int> chosenCopies;  // else what the dialog opens with
    std::optional<ErrorNumber> error; // what showing it raises

    void ShowPrinter(PrintDialog& dialog) override {
        std::ostringstream line;
        line << "print dialog [" << dialog.title << "] 0x" << std::hex << dialog.flags << std::dec << ", "
             << dialog.copies << " copies";
        surroundings.Note(line.str());
        RaiseIf(error);
        dialog.orientation = chosenOrientation;
        dialog.copies = chosenCopies.value_or(dialog.copies);
    }

private:
    Surroundings& surroundings;
};

// A printer of 600 by 300 dots to the inch, Letter paper in it, with a printable area of its own. Each page
// has a context of its own, which knows its number. It is strict: a page begins with its blank, and lengths
// are asked for in twips only.
class FakePrinter : public Printer {
public:
    struct Page : DeviceContext {
        int number = 0;
    };

    explicit FakePrinter(Surroundings& ofTest) : surroundings(ofTest) {}

    int offsetX = 0; // pixels
    int offsetY = 0;
    float width = 12240; // twips
    float height = 15840;
    int copies = 7;
    Orientation orientation = Orientation::Portrait;
    std::optional<ErrorNumber> blankError;   // what printing a blank raises
    std::optional<ErrorNumber> newPageError; // and a new page

    void PrintBlank() override {
        surroundings.Note("blank");
        RaiseIf(blankError);
        if (!hasPage) {
            hasPage = true;
            pages.emplace_back().number = ++pageNumber;
        }
    }
    void UseTwips() override {
        surroundings.Note("twips");
        isInTwips = true;
    }
    void NewPage() override {
        surroundings.Note("new page");
        hasPage = false;
        RaiseIf(newPageError);
    }
    void EndDoc() override {
        surroundings.Note("end of document");
        EndJob();
    }
    void KillDoc() override {
        surroundings.Note("job dropped");
        EndJob();
    }

    [[nodiscard]] DeviceContext& Context() override {
        if (!hasPage) {
            ADD_FAILURE() << "no page has begun";
            return pages.emplace_back();
        }
        return pages.back();
    }
    [[nodiscard]] int DeviceCaps(DeviceCap cap) const override {
        EXPECT_TRUE(hasPage) << "no job has begun";
        switch (static_cast<int>(cap)) {
        case 112:
            return offsetX;
        case 113:
            return offsetY;
        default:
            ADD_FAILURE() << "unknown capability " << static_cast<int>(cap);
            return 0;
        }
    }
    [[nodiscard]] float PixelsToTwipsX(int pixels) const override {
        return static_cast<float>(pixels) * 2.4F;
    }
    [[nodiscard]] float PixelsToTwipsY(int pixels) const override {
        return static_cast<float>(pixels) * 4.8F;
    }

    [[nodiscard]] float Width() const override { return InTwips(width); }
    [[nodiscard]] float Height() const override { return InTwips(height); }
    [[nodiscard]] float ScaleWidth() const override { return InTwips(width - 2 * PixelsToTwipsX(offsetX)); }
    [[nodiscard]] float ScaleHeight() const override { return InTwips(height - 2 * PixelsToTwipsY(offsetY)); }

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
    [[nodiscard]] float InTwips(float length) const {
        EXPECT_TRUE(isInTwips) << "the printer's lengths are in pixels still";
        return length;
    }
    void EndJob() {
        hasPage = false;
        pageNumber = 0;
        isInTwips = false;
    }

    std::deque<Page> pages; // of all jobs: their addresses stay
    bool hasPage = false;
    int pageNumber = 0;
    bool isInTwips = false;
    Surroundings& surroundings;
};

} // namespace orvel::testing
