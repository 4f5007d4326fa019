// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/ExitStatus.h"
#include "cli/Json.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Session.h"
#include "cli/Sink.h"
#include "cli/TestKinds.h"
#include "core/CodePage.h"
#include "core/FileNames.h"
#include "core/ProgramState.h"
#include "core/Text.h"
#include "report/HtmlReport.h"
#include "report/MemoryRichTextBox.h"
#include "report/ReportBuilder.h"
#include "report/RtfWriter.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

namespace orvel::cli {

namespace {

// Does the work on every file, whatever became of the others; the highest of their statuses counts.
int OverFiles(const Options& options, std::string_view outputExtension,
              const std::function<FileResult(const std::filesystem::path&)>& work) {
    Sink sink(options, outputExtension);
    int status = kDone;
    const auto guarded = [&status](const auto& part) {
        try {
            part();
        } catch (const CommandError& error) {
            PrintComplaint(error.Subject(), error.what());
            status = std::max<int>(status, error.Status());
        }
    };
    Progress progress(options);
    for (const std::filesystem::path& file : options.files) {
        guarded([&] {
            const FileResult result = work(file);
            status = std::max(status, result.status);
            if (result.text) {
                sink.Take(file, *result.text);
            }
        });
        progress.AddDone();
    }
    guarded([&sink] { sink.Finish(); });
    return status;
}

// The same for a command that runs the program's logic.
int OverTests(
    const Options& options, std::string_view outputExtension,
    const std::function<FileResult(const Session&, const TestKind&, const std::filesystem::path&)>& work) {
    Session session(options);
    return OverFiles(options, outputExtension, [&session, &work](const std::filesystem::path& file) {
        return session.Run(file, [&](const TestKind& kind) { return work(session, kind, file); });
    });
}

void RequireOutputDirectoryForSeveral(const Options& options) {
    if (options.files.size() > 1 && options.outputDirectory.empty()) {
        throw CommandError(kWrongUsage, "", "several files need --output-dir");
    }
}

std::string ResultsHeader(const Options& options, const std::filesystem::path& file) {
    const bool isFirst = &file == &options.files.front();
    return options.files.size() > 1 ? (isFirst ? "" : "\n") + PathUtf8(file) + ":\n" : std::string{};
}

// One line of several, or a document that stands alone.
std::string ResultsJsonText(const Options& options, const std::filesystem::path& file, const Json& results) {
    if (options.files.size() == 1) {
        return JsonDocument(results);
    }
    Json line = {{"file", PathUtf8(file)}};
    line.update(results);
    return JsonLine(line);
}

// A report as the program builds it into a box.
struct Report {
    MemoryRichTextBox box;
    ColorRunTable colorRuns;
    bool isMade = false;
};

Json ColorRunsJson(const ColorRunTable& table) {
    Json runs = Json::array();
    for (std::size_t i = 1; i < table.ColorRunCode.size(); ++i) {
        if (table.ColorRunCode[i] != kNoColor) {
            runs.push_back({{"start", table.ColorRunStart[i]},
                            {"length", table.ColorRunLength[i]},
                            {"code", table.ColorRunCode[i]}});
        }
    }
    return runs;
}

Report MakeReport(const TestKind& kind) {
    Report report;
    ReportBuilder builder(report.box);
    if (!Attempt([&] { (builder.*kind.buildReport)(); })) {
        report.box.SetText("");
    }
    const std::string text = report.box.Text();
    report.isMade = !text.empty() && text != kReportNotCreated;
    if (report.isMade) {
        report.colorRuns = builder.ColorRuns();
    }
    return report;
}

std::string Formatted(const Report& report, const std::string& format) {
    if (format == "rtf") {
        return WriteRtf(report.box.Document());
    }
    return format == "html" ? HtmlOfReport(report.box.Text()) : ToUtf8(report.box.Text());
}

// Of the files in the output folder.
std::string ReportExtension(const Options& options) {
    if (options.json) {
        return "json";
    }
    return options.format == "text" ? "txt" : options.format;
}

FileResult LogicText(std::string (*build)(), std::string_view behind = {}) {
    std::string text;
    if (!Attempt([&] { text = build().append(behind); })) {
        return {};
    }
    return {kDone, ToUtf8(text)};
}

} // namespace

int RunResults(const Options& options) {
    return OverTests(
        options, "",
        [&options](const Session& session, const TestKind& kind, const std::filesystem::path& file) {
            if (!options.json) {
                return FileResult{kDone, ResultsHeader(options, file) + kind.resultsListing()};
            }
            Json results = kind.resultsJson();
            results["messages"] = session.Messages();
            return FileResult{kDone, ResultsJsonText(options, file, results)};
        });
}

int RunCheck(const Options& options) {
    return OverTests(options, "", [&options](const Session& session, const TestKind& kind, const auto&) {
        bool isGood = false;
        (void)Attempt([&] { isGood = kind.check(); });
        FileResult result{isGood ? kDone : kChecksFoundErrors, std::nullopt};
        if (options.json) {
            result.text = JsonDocument({{"ok", isGood}, {"messages", session.Messages()}});
        }
        return result;
    });
}

int RunReport(const Options& options) {
    RequireOutputDirectoryForSeveral(options);
    return OverTests(options, ReportExtension(options),
                     [&options](const Session& session, const TestKind& kind, const auto&) {
                         const Report report = MakeReport(kind);
                         FileResult result;
                         result.status = report.isMade ? kDone : kChecksFoundErrors;
                         if (options.json) {
                             result.text = JsonDocument({{"ok", report.isMade},
                                                         {"text", ToUtf8(report.box.Text())},
                                                         {"colorRuns", ColorRunsJson(report.colorRuns)},
                                                         {"messages", session.Messages()}});
                         } else if (report.isMade) {
                             result.text = Formatted(report, options.format);
                         }
                         return result;
                     });
}

int RunExport(const Options& options) {
    RequireOutputDirectoryForSeveral(options);
    return OverTests(options, "txt", [](const Session&, const TestKind& kind, const auto&) {
        return LogicText(kind.buildSummary, kCrLf);
    });
}

int RunListing(const Options& options) {
    return OverTests(options, "", [](const Session&, const TestKind& kind, const auto&) {
        return LogicText(kind.listingText);
    });
}

} // namespace orvel::cli
