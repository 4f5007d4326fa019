// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "centerpivot/CenterPivot.h"
#include "centerpivot/CenterPivotChecks.h"
#include "centerpivot/CenterPivotListing.h"
#include "centerpivot/CenterPivotSummary.h"
#include "cli/ExitStatus.h"
#include "cli/Json.h"
#include "cli/Output.h"
#include "cli/ResultsOutput.h"
#include "cli/Session.h"
#include "cli/Sink.h"
#include "core/CodePage.h"
#include "core/Text.h"
#include "report/CenterPivotReportBuild.h"

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
    for (const std::filesystem::path& file : options.files) {
        guarded([&] {
            const FileResult result = work(file);
            status = std::max(status, result.status);
            if (result.text) {
                sink.Take(file, *result.text);
            }
        });
    }
    guarded([&sink] { sink.Finish(); });
    return status;
}

// The same for a command that runs the program's logic.
int OverTests(const Options& options, std::string_view outputExtension,
              const std::function<FileResult(const Session&, const std::filesystem::path&)>& work) {
    Session session(options);
    return OverFiles(options, outputExtension, [&session, &work](const std::filesystem::path& file) {
        return session.Run(file, [&session, &work, &file] { return work(session, file); });
    });
}

void RequireOutputDirectoryForSeveral(const Options& options) {
    if (options.files.size() > 1 && options.outputDirectory.empty()) {
        throw CommandError(kWrongUsage, "", "several files need --output-dir");
    }
}

std::string ResultsHeader(const Options& options, const std::filesystem::path& file) {
    const bool isFirst = &file == &options.files.front();
    return options.files.size() > 1 ? (isFirst ? "" : "\n") + file.native() + ":\n" : std::string{};
}

// One line of several, or a document that stands alone.
std::string ResultsJsonText(const Options& options, const std::filesystem::path& file, const Json& results) {
    if (options.files.size() == 1) {
        return JsonDocument(results);
    }
    Json line = {{"file", file.native()}};
    line.update(results);
    return JsonLine(line);
}

Json ReportJson(const Session& session, bool isMade, const std::string& text) {
    return {{"ok", isMade},
            {"text", ToUtf8(text)},
            {"colorRuns", Json::array()},
            {"messages", session.Messages()}};
}

template <class Build>
FileResult LogicText(Build build) {
    std::string text;
    if (!Attempt([&text, &build] { text = build(); })) {
        return {};
    }
    return {kDone, ToUtf8(text)};
}

} // namespace

int RunResults(const Options& options) {
    return OverTests(options, "", [&options](const Session& session, const std::filesystem::path& file) {
        CalculateCenterPivot();
        std::optional<float> rate;
        (void)Attempt([&rate] { rate = ApplicationRateAtLastTower(); });
        if (!options.json) {
            return FileResult{kDone, ResultsHeader(options, file) + ToUtf8(CenterPivotResultsListing(rate))};
        }
        Json results = CenterPivotResultsJson(rate);
        results["messages"] = session.Messages();
        return FileResult{kDone, ResultsJsonText(options, file, results)};
    });
}

int RunCheck(const Options& options) {
    return OverTests(options, "", [&options](const Session& session, const std::filesystem::path&) {
        bool isGood = false;
        (void)Attempt([&isGood] { isGood = CheckCenterPivotData(); });
        FileResult result{isGood ? kDone : kChecksFoundErrors, std::nullopt};
        if (options.json) {
            result.text = JsonDocument({{"ok", isGood}, {"messages", session.Messages()}});
        }
        return result;
    });
}

int RunReport(const Options& options) {
    if (options.format != "text") {
        throw CommandError(kWrongUsage, "--format " + options.format, "not built yet");
    }
    RequireOutputDirectoryForSeveral(options);
    return OverTests(options, options.json ? "json" : "txt",
                     [&options](const Session& session, const std::filesystem::path&) {
                         std::string text;
                         bool isMade = false;
                         const bool hasEnded =
                             Attempt([&text, &isMade] { isMade = BuildCenterPivotReport(text); });
                         FileResult result;
                         result.status = hasEnded && !isMade ? kChecksFoundErrors : kDone;
                         if (options.json) {
                             result.text = JsonDocument(ReportJson(session, isMade, text));
                         } else if (isMade) {
                             result.text = ToUtf8(text);
                         }
                         return result;
                     });
}

int RunExport(const Options& options) {
    RequireOutputDirectoryForSeveral(options);
    return OverTests(options, "txt", [](const Session&, const std::filesystem::path&) {
        return LogicText([] { return BuildCenterPivotSummary().append(kCrLf); });
    });
}

int RunListing(const Options& options) {
    return OverTests(options, "", [](const Session&, const std::filesystem::path&) {
        return LogicText([] { return CenterPivotListingText(); });
    });
}

int RunText(const Options& options) {
    throw CommandError(kWrongUsage, options.files.front().native(), "rich text is not built yet");
}

} // namespace orvel::cli
