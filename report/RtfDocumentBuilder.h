// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/RichText.h"
#include "report/RtfTables.h"

#include <string>
#include <string_view>

namespace orvel {

// A character format as rich text names it: fonts and colours by their numbers.
struct RtfFormat {
    int font = 0;
    int halfPoints = 24;
    int color = kReadersColor;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;

    bool operator==(const RtfFormat&) const = default;
};

// Puts a document together from characters and their formats. Formats are looked up in the tables only where
// they change, so that long texts and long tables cost no more than their length.
class RtfDocumentBuilder {
public:
    // The tables must outlive the builder.
    explicit RtfDocumentBuilder(const RtfTables& ofFile) : tables(ofFile) {}

    // Control characters other than tab are left out.
    void Append(std::u32string_view text, const RtfFormat& format);
    // Ends the paragraph; it keeps the alignment.
    void EndParagraph(Alignment alignment);
    // Takes the last character off when it is that one, as the one behind a row's last cell.
    void TakeBack(char32_t character);

    [[nodiscard]] RichDocument Finish(Alignment alignment);

private:
    void EndRun();
    [[nodiscard]] CharacterFormat Resolved(const RtfFormat& format) const;

    const RtfTables& tables;
    RichDocument document;
    RtfFormat runFormat;
    std::u32string run;
};

} // namespace orvel
