// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/MemoryRichTextBox.h"
#include "tests/support/FakePrinter.h"

#include <deque>
#include <filesystem>
#include <optional>
#include <sstream>
#include <string>

namespace orvel::testing {

// A box that notes what it is to draw; where its pages end is planned.
class PrintableBox : public MemoryRichTextBox {
public:
    explicit PrintableBox(Surroundings& ofTest) : surroundings(ofTest) {}

    std::deque<std::size_t> pageEnds;     // then the text ends
    std::optional<ErrorNumber> saveError; // what saving raises

    // What DrawRange was last given.
    FormatRange lastRange;

    void Save(const std::filesystem::path& file) const override {
        RaiseIf(saveError);
        MemoryRichTextBox::Save(file);
    }
    std::size_t DrawRange(const FormatRange& range) override {
        lastRange = range;
        std::ostringstream line;
        line << "draw from " << range.first << " to " << range.last << " on page " << PageOf(range.context);
        if (range.targetContext != range.context) {
            line << ", measured on page " << PageOf(range.targetContext);
        }
        surroundings.Note(line.str());
        if (pageEnds.empty()) {
            return Text().size();
        }
        const std::size_t end = pageEnds.front();
        pageEnds.pop_front();
        return end;
    }
    void FreeDrawing() override { surroundings.Note("free"); }

private:
    static int PageOf(const DeviceContext* context) {
        return dynamic_cast<const FakePrinter::Page&>(*context).number;
    }

    Surroundings& surroundings;
};

// Tests of windows that print.
class PrintingTest : public WindowTest {
protected:
    PrintingTest() {
        Platform platform = CurrentPlatform();
        platform.printDialog = &printDialog;
        platform.printer = &printer;
        UsePlatform(platform);
    }

    FakePrintDialog printDialog{surroundings};
    FakePrinter printer{surroundings};
    PrintableBox box{surroundings};
};

} // namespace orvel::testing
