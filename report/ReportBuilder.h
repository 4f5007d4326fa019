// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/ColorRuns.h"
#include "report/RichTextBox.h"

#include <string>
#include <string_view>

namespace orvel {

// What the report shows instead of a report when the data checks found errors.
inline constexpr const char* kReportNotCreated = "Errors in data file - report not created.";

// Builds the report of the program's current test in a rich-text box, and colours its marks.
class ReportBuilder {
public:
    explicit ReportBuilder(RichTextBox& box) : reportRTB(box) {}

    // Both run the data checks and, when these found errors, put kReportNotCreated in the box and stop.
    // Otherwise they calculate, put section after section in the box and colour it.

    // kept: calculates before the box is reset, and has no trap of its own. A run-time error of the checks or
    // of a section passes to the caller, who shows it and empties the box.
    void BuildCenterPivotReport();
    // kept: resets the box before it calculates. Traps every run-time error: it then empties the box and
    // shows the error box.
    void BuildSolidSetReport();

    // Colour the runs in the box: those that were entered, or, kept for the solid set, all 300.
    void ApplyCenterPivotColors();
    void ApplySolidSetColors();

    // The runs of the last build.
    [[nodiscard]] const ColorRunTable& ColorRuns() const { return colorRuns; }

private:
    // True when a report may be built.
    [[nodiscard]] bool Begin(bool (*check)());
    void SetFirstSection(std::string_view section);
    void AppendSection(std::string_view section);
    void AppendGraph(void (*append)(std::string& text, ColorRunTable& runs));
    void ApplyColors(std::int16_t last);

    RichTextBox& reportRTB;
    ColorRunTable colorRuns;
    // The report so far, as the box got it: not every box gives its text back with the line ends it was
    // given.
    std::string text;
};

} // namespace orvel
