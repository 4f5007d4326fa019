// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "bench/Samples.h"
#include "core/RecordFiles.h"
#include "core/TestFile.h"
#include "entry/GaugeCells.h"
#include "report/ReportBuilder.h"
#include "tests/support/TestFiles.h"
#include "ui/AboutDialog.h"
#include "ui/CenterPivotDataDialog.h"
#include "ui/Desktop.h"
#include "ui/MeasurementTable.h"
#include "ui/SoilIntakeDialog.h"
#include "ui/SolidSetDataDialog.h"
#include "ui/UserDataDialog.h"

#include <QApplication>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>

// Windows as the user sees them: a step has ended when it is on the screen.
namespace orvel::bench {

namespace {

// The program's services and windows, with nobody to answer boxes and a program directory of its own.
struct RunningProgram {
    ui::Desktop desktop;
    Surroundings surroundings;
    testing::TemporaryFolder folder;

    RunningProgram() {
        Program().programDirectory = folder.Path();
        SaveUserSettings(Program().userSettings);
    }
};

void Paint() {
    QApplication::processEvents();
}

using NewWindow = std::unique_ptr<QWidget> (*)(ui::Desktop& desktop);

// Made, shown, and taken away again.
void OpenWindow(benchmark::State& state, NewWindow make) {
    RunningProgram program;
    for (auto _ : state) {
        const std::unique_ptr<QWidget> window = make(program.desktop);
        window->show();
        Paint();
    }
}

std::unique_ptr<QWidget> NewSplash(ui::Desktop& /*desktop*/) {
    return std::make_unique<ui::SplashWindow>([] {});
}

std::unique_ptr<QWidget> NewMain(ui::Desktop& desktop) {
    auto window = std::make_unique<ui::MainWindow>(desktop);
    window->Load();
    return window;
}

template <class Dialog>
std::unique_ptr<QWidget> NewDialog(ui::Desktop& /*desktop*/) {
    return std::make_unique<Dialog>(nullptr);
}

std::unique_ptr<QWidget> NewPivotData(ui::Desktop& desktop) {
    Open(PivotSample(kMostCups));
    return std::make_unique<ui::CenterPivotDataDialog>(nullptr, desktop);
}

std::unique_ptr<QWidget> NewSolidData(ui::Desktop& desktop) {
    Open(SolidSample(12, 25));
    return std::make_unique<ui::SolidSetDataDialog>(nullptr, desktop);
}

void OpenReport(benchmark::State& state) {
    RunningProgram program;
    Open(PivotSample(kMostCups));
    for (auto _ : state) {
        program.desktop.ShowReport();
        Paint();
        program.desktop.UnloadOthers();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void OpenViewer(benchmark::State& state) {
    RunningProgram program;
    Open(PivotSample(kMostCups));
    for (auto _ : state) {
        program.desktop.ShowViewer(kViewCenterPivotData);
        Paint();
        program.desktop.UnloadOthers();
    }
}

BENCHMARK_CAPTURE(OpenWindow, splash, NewSplash)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, main, NewMain)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, about, NewDialog<ui::AboutDialog>)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, user_data, NewDialog<ui::UserDataDialog>)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, soil_intake, NewDialog<ui::SoilIntakeDialog>)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, pivot_data, NewPivotData)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenWindow, solid_data, NewSolidData)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenReport)->Name("OpenWindow/report")->Unit(benchmark::kMillisecond);
BENCHMARK(OpenViewer)->Name("OpenWindow/viewer")->Unit(benchmark::kMillisecond);

// A grid that is shown, without the window around it.
class ShownGrid : public GridView {
public:
    ShownGrid() : grid(*this, kKind) {
        table.resize(kSize);
        table.show();
        Paint();
    }

    [[nodiscard]] MeasurementGrid& Grid() { return grid; }

    void ShowCell(int row, int column) override { table.ShowCell(row, column); }
    void ShowCurrentCell(int row, int column) override { table.ShowCurrentCell(row, column); }
    void ShowWholeCell(int row, int column) override { table.ShowWholeCell(row, column); }
    [[nodiscard]] Area GridArea() const override { return {0, 0, table.width(), table.height()}; }
    [[nodiscard]] Area CellArea(int row, int column) const override { return table.CellArea(row, column); }
    [[nodiscard]] int ColumnWidth(int column) const override { return table.columnWidth(column); }
    [[nodiscard]] int HeaderHeight() const override { return kRowHeight; }
    [[nodiscard]] int RowHeight() const override { return kRowHeight; }
    void FocusGrid() override {}

    [[nodiscard]] std::string EditorText() const override { return {}; }
    void SetEditorText(const std::string& /*text*/) override {}
    void SelectEditorText(std::size_t /*start*/, std::size_t /*length*/) override {}
    void MoveEditor(const Area& /*area*/) override {}
    void ShowEditor() override {}
    void HideEditor() override {}
    void FocusEditor() override {}

private:
    static constexpr int kRowHeight = 20;
    static constexpr QSize kSize{320, 400};
    static constexpr std::array<GridColumn, 3> kColumns = {
        {{"Sequence", 1125}, {"Distance Feet", 1605}, {"Volume (cc)", 1605}}};
    static constexpr GridKind kKind = {kColumns, 2, "00", false};

    MeasurementGrid grid;
    ui::MeasurementTable table{grid, kRowHeight, nullptr};
};

constexpr std::array<GaugeColumn<PivotGauge>, 2> kGaugeColumns = {{
    {&PivotGauge::Footage, "", EmptyCell::ClearsSequence},
    {&PivotGauge::Volume, "00", EmptyCell::BecomesZero},
}};

void LoadGrid(benchmark::State& state) {
    ShownGrid shown;
    const CenterPivotTest test = PivotSample(kMostCups);
    for (auto _ : state) {
        LoadCells(test.Gauges, kGaugeColumns, shown.Grid());
        Paint();
    }
}

void StoreGrid(benchmark::State& state) {
    ShownGrid shown;
    CenterPivotTest test = PivotSample(kMostCups);
    LoadCells(test.Gauges, kGaugeColumns, shown.Grid());
    for (auto _ : state) {
        StoreCells(shown.Grid(), kGaugeColumns, test.Gauges, test.Gauges);
        benchmark::DoNotOptimize(test);
    }
}

BENCHMARK(LoadGrid)->Name("Grid/load");
BENCHMARK(StoreGrid)->Name("Grid/store");

void OpenPivot() {
    Open(PivotSample(kMostCups));
}

void OpenSolid() {
    Open(SolidSample(12, 25));
}

// Built, shown and coloured, in a window that is open.
void ShowReport(benchmark::State& state, void (*open)()) {
    RunningProgram program;
    open();
    for (auto _ : state) {
        program.desktop.ShowReport();
        Paint();
    }
}

// The same text in a bare text control of that size and font: the least that showing it takes.
void ShowBareText(benchmark::State& state, void (*open)()) {
    RunningProgram program;
    open();
    program.desktop.ShowReport();
    Paint();
    const QWidgetList controls = QApplication::allWidgets();
    const auto report = std::ranges::find(controls, "ReportRTB", &QWidget::objectName);
    const auto& shown = dynamic_cast<const QTextEdit&>(**report);
    const QString text = shown.toPlainText();
    if (text == kReportNotCreated) {
        state.SkipWithError(kReportNotCreated);
    }
    QTextEdit control;
    control.resize(shown.size());
    control.setFont(shown.font());
    program.desktop.UnloadOthers();
    control.show();
    Paint();
    for (auto _ : state) {
        control.setPlainText(text);
        Paint();
    }
}

BENCHMARK_CAPTURE(ShowReport, pivot, OpenPivot)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowReport, solid, OpenSolid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowBareText, pivot, OpenPivot)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ShowBareText, solid, OpenSolid)->Unit(benchmark::kMillisecond);

// Tells when what was typed is on the screen: the window posts one event of its own, for its recovery file,
// and it comes behind all painting.
class PaintedMoment : public QObject {
public:
    using Clock = std::chrono::steady_clock;

    explicit PaintedMoment(QObject& window) { window.installEventFilter(this); }

    [[nodiscard]] Clock::time_point Last() const { return last; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() >= QEvent::User) {
            last = Clock::now();
        }
        return false;
    }

private:
    Clock::time_point last;
};

enum class Phase { UntilPainted, RecoveryWrite };

// Three digits and Down.
void TypeReading(benchmark::State& state, Phase phase) {
    using Clock = PaintedMoment::Clock;
    constexpr int kTestPage = 3;
    constexpr int kRowsToType = 200;
    RunningProgram program;
    WriteTest(program.folder / "typed.cpd", PivotSample(kMostCups));
    OpenTestFile(program.folder / "typed.cpd");
    ui::CenterPivotDataDialog window(nullptr, program.desktop);
    window.show();
    window.activateWindow();
    auto* table = window.findChild<ui::MeasurementTable*>("gridTest");
    window.findChild<QTabWidget*>()->setCurrentIndex(kTestPage);
    Paint();
    const PaintedMoment painted(window);
    int row = 0;
    for (auto _ : state) {
        if (row % kRowsToType == 0) {
            table->setCurrentIndex(table->model()->index(0, 2));
            table->setFocus();
            Paint();
        }
        const QByteArray reading = QByteArray::number(100 + row++ % 900);
        const auto begin = Clock::now();
        for (const char digit : reading) {
            QTest::keyClick(QApplication::focusWidget(), digit);
            Paint();
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        Paint();
        const auto end = Clock::now();
        if (painted.Last() < begin) {
            state.SkipWithError("nothing was entered");
            break;
        }
        const std::chrono::duration<double> seconds =
            phase == Phase::UntilPainted ? painted.Last() - begin : end - painted.Last();
        state.SetIterationTime(seconds.count());
    }
}

BENCHMARK_CAPTURE(TypeReading, until_painted, Phase::UntilPainted)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TypeReading, recovery_file, Phase::RecoveryWrite)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace orvel::bench
