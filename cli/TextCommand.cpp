// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ExitStatus.h"
#include "cli/Json.h"
#include "cli/Session.h"
#include "cli/Sink.h"
#include "core/SafeFile.h"
#include "core/Unicode.h"
#include "report/RichText.h"
#include "report/RtfReader.h"

#include <array>
#include <cstdio>

namespace orvel::cli {

namespace {

Json ColorJson(const std::optional<Color>& color) {
    if (!color) {
        return nullptr;
    }
    std::array<char, 8> text{};
    (void)std::snprintf(text.data(), text.size(), "#%02x%02x%02x", color->red, color->green, color->blue);
    return text.data();
}

// The line ends between paragraphs belong to no run.
Json RunsJson(const RichDocument& document) {
    Json runs = Json::array();
    std::size_t start = 0;
    for (const Paragraph& paragraph : document.paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            runs.push_back({{"start", start},
                            {"length", run.text.size()},
                            {"font", run.format.font},
                            {"size", static_cast<float>(run.format.halfPoints) / 2},
                            {"bold", run.format.isBold},
                            {"italic", run.format.isItalic},
                            {"underline", run.format.isUnderlined},
                            {"color", ColorJson(run.format.color)}});
            start += run.text.size();
        }
        ++start;
    }
    return runs;
}

} // namespace

int RunText(const Options& options) {
    const std::filesystem::path& file = options.files.front();
    Sink sink(options, "");
    const RichDocument document = ReadOrComplain(file, [&file] { return ReadRtf(ReadFile(file)); });
    std::string text = Utf8Of(PlainText(document));
    if (options.json) {
        text = JsonDocument({{"text", text}, {"runs", RunsJson(document)}});
    } else if (!text.empty() && !text.ends_with('\n')) {
        text += '\n';
    }
    sink.Take(file, text);
    sink.Finish();
    return kDone;
}

} // namespace orvel::cli
