// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "fuzz/TestFileTrial.h"

#include "centerpivot/CenterPivot.h"
#include "cli/Json.h"
#include "core/CodePage.h"
#include "core/NumberLocale.h"
#include "core/ProgramState.h"
#include "core/TestFile.h"
#include "core/Text.h"
#include "fuzz/Fuzz.h"
#include "fuzz/RecordFile.h"
#include "report/HtmlReport.h"
#include "report/MemoryRichTextBox.h"
#include "report/ReportBuilder.h"
#include "report/RtfReader.h"
#include "report/RtfWriter.h"
#include "solidset/SolidSet.h"
#include "tests/support/LogicTest.h"
#include "tests/support/TestFiles.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orvel::fuzz {

namespace {

constexpr DateTime kNow{2026, 7, 4, 9, 5, 3};

std::filesystem::path Scratch(std::string_view extension) {
    static const testing::TemporaryFolder folder;
    return folder / std::string{"fuzz."}.append(extension);
}

// A word that nobody interprets chooses the user's numbers and the code page.
void UseLocaleOf(std::string_view record, std::span<const Field> fields) {
    const auto word = std::ranges::find(fields, FieldKind::Word, &Field::kind);
    Require(word != fields.end(), "a record has a word that nobody interprets");
    const auto choice = static_cast<unsigned char>(record[word->offset]);
    static const CodePage kGreek = CodePage::Named("ISO-8859-7").value();
    static const CodePage kWestern = CodePage::Windows1252();
    UseNumberLocale((choice & 1U) == 0 ? InvariantNumberLocale() : testing::GermanNumbers());
    UseCodePage((choice & 2U) == 0 ? kWestern : kGreek);
}

// The colour of each character of a document, without its line ends.
std::vector<std::optional<Color>> ColorsOf(const RichDocument& document) {
    std::vector<std::optional<Color>> colors;
    for (const Paragraph& paragraph : document.paragraphs) {
        for (const TextRun& run : paragraph.runs) {
            colors.insert(colors.end(), run.text.size(), run.format.color);
        }
    }
    return colors;
}

// The same by the table of runs.
std::vector<std::optional<Color>> ColorsOf(const ColorRunTable& runs, std::string_view text) {
    constexpr std::array<Color, 4> kColors = {{{}, {255, 0, 0}, {0, 0, 255}, {0, 255, 0}}};
    std::vector<std::optional<Color>> colors(text.size());
    for (std::size_t i = 1; i <= static_cast<std::size_t>(runs.ColorRunCount); ++i) {
        std::fill_n(colors.begin() + runs.ColorRunStart[i], runs.ColorRunLength[i],
                    kColors.at(static_cast<std::size_t>(runs.ColorRunCode[i])));
    }
    std::vector<std::optional<Color>> shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            shown.push_back(colors[i]);
        }
    }
    return shown;
}

void RequireSameRuns(const ColorRunTable& left, const ColorRunTable& right) {
    Require(left.ColorRunCount == right.ColorRunCount && left.ColorRunStart == right.ColorRunStart &&
                left.ColorRunLength == right.ColorRunLength && left.ColorRunCode == right.ColorRunCode,
            "a report that is built again has the same marks");
}

// The measurements up to the last that holds anything.
std::size_t FilledEntries(std::string_view record, std::span<const Field> fields) {
    const auto gauges = std::ranges::find(fields, FieldKind::Gauges, &Field::kind);
    Require(gauges != fields.end(), "a record has measurements");
    const std::string_view bytes = record.substr(gauges->offset, gauges->width);
    const std::size_t last = bytes.find_last_not_of('\0');
    constexpr std::size_t kEntries = 301;
    return last == std::string_view::npos ? 0 : last / (bytes.size() / kEntries);
}

// At the end of a listing stands a line for each measurement, with its number.
void RequireCupLines(std::string_view listing, std::size_t cups) {
    const std::vector<std::string> lines = Lines(listing);
    Require(lines.size() > cups + 2 && lines.back() == Rule(), "a listing ends in a rule");
    const std::size_t head = lines.size() - cups - 2;
    Require(Trim(lines[head]).starts_with("Cup "), "measurements have a heading");
    for (std::size_t cup = 1; cup <= cups; ++cup) {
        constexpr std::size_t kColumns = 8;
        const std::string number = (cup < 10 ? "0" : "") + std::to_string(cup);
        Require(Trim(lines[head + cup].substr(0, kColumns)) == number, "measurements are numbered");
    }
}

void TryRichText(const MemoryRichTextBox& box, const ColorRunTable& runs) {
    const std::string text = box.Text();
    const RichDocument document = box.Document();
    Require(ColorsOf(document) == ColorsOf(runs, text), "coloured is what the runs say, to the character");
    Require(ReadRtf(WriteRtf(document)) == document, "a report that is saved is the same when it is opened");
    Require(HtmlOfReport(text).find(text) != std::string::npos, "HTML has the text as it stands");
}

bool IsSameJson(const cli::Json& json) {
    return cli::ParseJson(cli::JsonDocument(json)) == json;
}

} // namespace

void RequireRunsInText(const ColorRunTable& runs, std::string_view text) {
    Require(runs.ColorRunCount >= 0 && runs.ColorRunCount <= ColorRunTable::kLast,
            "there are at most 300 runs");
    std::size_t end = 0;
    for (std::size_t i = 1; i < runs.ColorRunCode.size(); ++i) {
        const auto start = static_cast<std::size_t>(runs.ColorRunStart[i]);
        const auto length = static_cast<std::size_t>(runs.ColorRunLength[i]);
        const bool isUsed = i <= static_cast<std::size_t>(runs.ColorRunCount);
        Require(isUsed == (length > 0) && isUsed == (runs.ColorRunCode[i] != kNoColor),
                "a run that is used has a length and a colour, another one none");
        if (isUsed) {
            Require(runs.ColorRunCode[i] >= kRed && runs.ColorRunCode[i] <= kGreen,
                    "a run has a known colour");
            Require(start >= end && start + length <= text.size(), "runs lie in the text, behind each other");
            const std::string_view run = text.substr(start, length);
            Require(run.find_first_of("\r\n") == std::string_view::npos && run.front() != ' ' &&
                        run.back() != ' ',
                    "a run lies in one line, without blanks around it");
            end = start + length;
        }
    }
}

TestFileTrial::TestFileTrial(const TestFileKindTried& kindTried, std::string_view content)
    : tried(kindTried), kind(cli::KindOf({}, kindTried.name)), file(content), path(Scratch(kind.extension)),
      record(RecordOf(content, kindTried.fields)), clock(kNow) {
    UsePlatform({&boxes, &beeper, &clock});
    UseLocaleOf(record, tried.fields);
}

TestFileTrial::~TestFileTrial() {
    UsePlatform({});
}

void TestFileTrial::Run() {
    testing::PutContents(path, file);
    TryDump();
    TryListing();
    TryChecks();
    TryResults();
    TryReport();
    TrySummary();
    TryFile();
}

void TestFileTrial::StartAnew() {
    boxes.Clear();
    ResetProgram();
    ResetCenterPivot();
    ResetSolidSet();
    kind.load(path);
    Require(tried.record() == record, "a file is read as it stands");
}

void TestFileTrial::TryFile() {
    StartAnew();
    Require(SaveTestFile() && boxes.Messages().empty(), "a test can be saved");
    Require(testing::Contents(path) == SavedOver(file, record),
            "a saved file is what was read, and what lay behind");
}

void TestFileTrial::TryDump() {
    const std::string text = cli::JsonDocument(kind.dump(path));
    Require(kind.build(cli::ParseJson(text)) == record, "a built dump has every byte of the record");
}

void TestFileTrial::TryListing() {
    StartAnew();
    std::string text;
    const auto error = ErrorOf([&] { text = kind.listingText(); });
    RequireOnly(error, {ErrorNumber::Overflow}, "a listing");
    if (!error) {
        RequireCupLines(text, FilledEntries(record, tried.fields));
    }
    std::string again;
    Require(ErrorOf([&] { again = kind.listingText(); }) == error && again == text,
            "a listing that is made again is the same");
    Require(tried.record() == record, "a listing only reads");
}

void TestFileTrial::TryChecks() {
    StartAnew();
    bool isGood = false;
    const auto error = ErrorOf([&] { isGood = kind.check(); });
    RequireOnly(error, tried.checkErrors, "a check");
    Require(tried.countCups() ? error != ErrorNumber::SubscriptOutOfRange : error.has_value(),
            "the checks end where the list of cups does not");
    Require(IsOnlyTrimmed(record, tried.record(), tried.fields), "the checks only trim");
    const cli::Json said = cli::MessagesJson(boxes.Messages());
    Require(IsSameJson(said), "what the checks say is sound");
    Require(said.size() <= 2 && (error || isGood || !said.empty()),
            "the checks say what is wrong, in two boxes");

    boxes.Clear();
    bool isStillGood = false;
    Require(ErrorOf([&] { isStillGood = kind.check(); }) == error && isStillGood == isGood &&
                cli::MessagesJson(boxes.Messages()) == said,
            "checks that are run again say the same");
}

void TestFileTrial::TryResults() {
    StartAnew();
    const cli::Json results = kind.resultsJson();
    Require(IsSameJson(results), "results read back as the same");
    Require(results[tried.countName] == tried.countCups().value_or(0), "cups are those before two zeros");
    Require(Program().shownError.has_value() == !boxes.Messages().empty(), "an error is shown");
    Require(boxes.Messages().size() <= 1, "an error ends the calculation");
    Program().shownError.reset();
    Require(kind.resultsJson() == results, "a calculation that is made again is the same");
    const std::string cups = std::to_string(tried.countCups().value_or(0));
    Require(kind.resultsListing().find(PadText(tried.countName, 28, 'R', ' ') + cups + "\n") !=
                std::string::npos,
            "the listing says how many cups there are");
    Require(IsOnlyTrimmed(record, tried.record(), tried.fields), "a calculation only trims");
}

void TestFileTrial::TryReport() {
    StartAnew();
    MemoryRichTextBox box;
    ReportBuilder builder(box);
    const auto error = ErrorOf([&] { (builder.*kind.buildReport)(); });
    RequireOnly(error, tried.reportErrors, "a report");
    Require(IsOnlyTrimmed(record, tried.record(), tried.fields), "a report only trims");
    if (error) {
        return;
    }
    const std::string text = box.Text();
    const bool isMade = !text.empty() && text != kReportNotCreated;
    Require(!text.empty() || Program().shownError, "a report that is empty has shown why");
    RequireRunsInText(builder.ColorRuns(), text);
    if (isMade) {
        TryRichText(box, builder.ColorRuns());
        tried.tryGraphs(text);
    }

    const ColorRunTable runs = builder.ColorRuns();
    Require(!ErrorOf([&] { (builder.*kind.buildReport)(); }) && box.Text() == text,
            "a report that is built again is the same");
    RequireSameRuns(builder.ColorRuns(), runs);
}

void TestFileTrial::TrySummary() {
    StartAnew();
    std::string summary;
    const auto error = ErrorOf([&] { summary = kind.buildSummary(); });
    RequireOnly(error, tried.summaryErrors, "a summary");
    if (!error) {
        tried.trySummary(summary);
    }
    std::string again;
    Require(ErrorOf([&] { again = kind.buildSummary(); }) == error && again == summary,
            "a summary that is made again is the same");
    Require(IsOnlyTrimmed(record, tried.record(), tried.fields), "a summary only trims");
}

} // namespace orvel::fuzz
