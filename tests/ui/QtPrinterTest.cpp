// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/QtPrinter.h"

#include "report/PrintRTB.h"
#include "report/ReportFont.h"
#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"
#include "ui/RichTextEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QPrintDialog>
#include <QSpinBox>
#include <QTimer>
#include <algorithm>

namespace orvel {

namespace {

using testing::WhileModal;

// Letter paper of 144 dots to the inch, to be looked at.
struct Paper {
    Paper() {
        constexpr int kDotsPerMeter = 5669;
        image.setDotsPerMeterX(kDotsPerMeter);
        image.setDotsPerMeterY(kDotsPerMeter);
        image.fill(Qt::white);
        painter.begin(&image);
        context.device = &image;
        context.painter = &painter;
    }

    // The smallest rectangle around everything drawn.
    [[nodiscard]] QRect Ink() const {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 200) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    QImage image{1224, 1584, QImage::Format_RGB32};
    QPainter painter;
    ui::PageContext context;
};

class QtPrinting : public testing::WidgetTest {
protected:
    QtPrinting() {
        UseReportFont(box);
        Platform platform = CurrentPlatform();
        platform.printer = &printer;
        UsePlatform(platform);
    }

    // Rules of 80 columns, one on each line.
    void FillLines(int count) {
        std::string text;
        for (int line = 0; line < count; ++line) {
            text += std::string(80, '=') + "\r\n";
        }
        box.SetText(text);
    }

    void PrintIntoFile() {
        printer.Device().setOutputFormat(QPrinter::PdfFormat);
        printer.Device().setOutputFileName(QString::fromStdString((folder / "out.pdf").native()));
        printer.Device().setPageSize(QPageSize(QPageSize::Letter));
    }

    // How many pages the file has.
    [[nodiscard]] std::ptrdiff_t Pages() const {
        const QByteArray pdf = QByteArray::fromStdString(testing::Contents(folder / "out.pdf"));
        return pdf.count("/Type /Page\n");
    }

    FormatRange Range(const Paper& paper) {
        FormatRange range;
        range.context = const_cast<ui::PageContext*>(&paper.context);
        range.targetContext = range.context;
        range.drawing = {1440, 1440, 12240 - 1440, 15840 - 1440};
        return range;
    }

    static std::string ErrorOf(const std::function<void()>& steps) {
        try {
            steps();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::DeviceIoError));
            return error.what();
        }
        return "";
    }

    testing::TemporaryFolder folder;
    ui::RichTextEdit box;
    ui::QtPrinter printer;
};

TEST_F(QtPrinting, DrawsWithinItsRectangleAndGoesOnWhereItEnded) {
    constexpr int kLines = 150;
    constexpr std::size_t kLineLength = 82;
    FillLines(kLines);
    std::size_t first = 0;
    std::vector<std::size_t> ends;
    while (first < box.Text().size()) {
        Paper paper;
        FormatRange range = Range(paper);
        range.first = static_cast<std::ptrdiff_t>(first);
        first = box.DrawRange(range);
        EXPECT_EQ(first % kLineLength, 0U) << "whole lines";
        ends.push_back(first / kLineLength);
        const QRect ink = paper.Ink();
        EXPECT_NEAR(ink.left(), 144, 1);
        EXPECT_GE(ink.top(), 144);
        EXPECT_LT(ink.top(), 144 + 18);
        EXPECT_LE(ink.right(), 1224 - 144);
        EXPECT_LE(ink.bottom(), 1584 - 144);
    }
    ASSERT_EQ(ends.size(), 3U);
    EXPECT_GE(ends[0], 60U) << "lines on a page";
    EXPECT_EQ(ends[1], 2 * ends[0]);
    EXPECT_EQ(ends[2], kLines);
    box.FreeDrawing();
}

TEST_F(QtPrinting, DrawsTheDocumentAsItStandsUntilItIsFreed) {
    box.SetText("old");
    Paper paper;
    EXPECT_EQ(box.DrawRange(Range(paper)), 3U);
    box.FreeDrawing();
    FillLines(2);
    Paper second;
    EXPECT_EQ(box.DrawRange(Range(second)), box.Text().size());
    EXPECT_GT(second.Ink().width(), 800);
    box.FreeDrawing();
}

TEST_F(QtPrinting, DrawsColoursBoldAndLongLines) {
    box.SetText(std::string(200, 'W'));
    box.Select(0, 200);
    box.SetSelectionColor({255, 0, 0});
    Paper paper;
    EXPECT_EQ(box.DrawRange(Range(paper)), 200U);
    paper.painter.end();
    const QRect ink = paper.Ink();
    EXPECT_GT(ink.height(), 50) << "three lines";
    EXPECT_LE(ink.right(), 1224 - 144);
    bool isRed = false;
    for (int x = ink.left(); x < ink.right(); ++x) {
        const QColor dot = paper.image.pixelColor(x, ink.top() + 6);
        isRed = isRed || (dot.red() > 200 && dot.green() < 100);
    }
    EXPECT_TRUE(isRed);
    box.FreeDrawing();
}

TEST_F(QtPrinting, OnAPageThatIsNotWantedItMeasuresOnly) {
    FillLines(100);
    Paper paper;
    const std::size_t end = box.DrawRange(Range(paper));
    box.FreeDrawing();
    Paper unwanted;
    unwanted.context.painter = nullptr;
    EXPECT_EQ(box.DrawRange(Range(unwanted)), end);
    EXPECT_TRUE(unwanted.Ink().isEmpty());
    box.FreeDrawing();
}

TEST_F(QtPrinting, ThePaperIsMeasuredInTwipsFromItsCorner) {
    PrintIntoFile();
    EXPECT_NEAR(printer.Width(), 12240, 1);
    EXPECT_NEAR(printer.Height(), 15840, 1);
    EXPECT_EQ(printer.ScaleWidth(), printer.Width());
    EXPECT_EQ(printer.ScaleHeight(), printer.Height());
    EXPECT_EQ(printer.DeviceCaps(DeviceCap::PhysicalOffsetX), 0);
    EXPECT_EQ(printer.DeviceCaps(DeviceCap::PhysicalOffsetY), 0);
    const int dots = printer.Device().logicalDpiX();
    EXPECT_GE(dots, 600);
    EXPECT_EQ(printer.PixelsToTwipsX(dots), 1440);
    EXPECT_EQ(printer.PixelsToTwipsY(dots / 2), 720);
    printer.SetPaperOrientation(Orientation::Landscape);
    EXPECT_EQ(printer.PaperOrientation(), Orientation::Landscape);
    EXPECT_NEAR(printer.Width(), 15840, 1);
    printer.SetPaperOrientation(Orientation::Portrait);
    EXPECT_EQ(printer.PaperOrientation(), Orientation::Portrait);
    printer.SetCopies(3);
    EXPECT_EQ(printer.Copies(), 3);
}

TEST_F(QtPrinting, PrintsEveryPage) {
    PrintIntoFile();
    FillLines(150);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 3);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 3) << "the next job is one of its own";
}

TEST_F(QtPrinting, PrintsThePagesThatWereChosenOnly) {
    PrintIntoFile();
    FillLines(150);
    printer.Device().setPrintRange(QPrinter::PageRange);
    printer.Device().setFromTo(2, 3);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 2);
    printer.Device().setFromTo(1, 1);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 1);
    printer.Device().setPageRanges({});
    PrintRichText(box);
    EXPECT_EQ(Pages(), 3) << "no page was named";
    printer.Device().setPrintRange(QPrinter::AllPages);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 3);
}

TEST_F(QtPrinting, PagesThatAreNotThereAreAnError) {
    PrintIntoFile();
    box.SetText("one page");
    printer.Device().setPrintRange(QPrinter::PageRange);
    printer.Device().setFromTo(4, 5);
    EXPECT_EQ(ErrorOf([this] { PrintRichText(box); }), "it has 1 page and none of those that were chosen");
    FillLines(150);
    EXPECT_EQ(ErrorOf([this] { PrintRichText(box); }), "it has 3 pages and none of those that were chosen");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.pdf"));
}

TEST_F(QtPrinting, AJobThatCannotBeginIsAnError) {
    PrintIntoFile();
    printer.Device().setOutputFileName(QString::fromStdString((folder / "none/out.pdf").native()));
    box.SetText("text");
    EXPECT_EQ(ErrorOf([this] { PrintRichText(box); }), "the printer takes no job");
    printer.KillDoc();
    PrintIntoFile();
    PrintRichText(box);
    EXPECT_EQ(Pages(), 1) << "the next one can";
}

TEST_F(QtPrinting, WithoutAPrinterThereIsNoJob) {
    box.SetText("text");
    EXPECT_EQ(ErrorOf([this] { PrintRichText(box); }), "there is no printer");
}

TEST_F(QtPrinting, ADroppedJobLeavesThePrinterReady) {
    PrintIntoFile();
    printer.PrintBlank();
    printer.KillDoc();
    printer.KillDoc();
    FillLines(70);
    PrintRichText(box);
    EXPECT_EQ(Pages(), 2);
}

TEST_F(QtPrinting, TheDialogOffersWhatItsFlagsSay) {
    ui::QtPrintDialog service(printer);
    PrintDialog dialog = NewPrintDialog();
    dialog.copies = 2;
    WhileModal(
        [&] {
            testing::ExpectRunTimeError(ErrorNumber::CancelWasSelected, [&] { service.ShowPrinter(dialog); });
        },
        [](QWidget& window) {
            auto& shown = dynamic_cast<QPrintDialog&>(window);
            EXPECT_EQ(shown.windowTitle(), "Print Report");
            EXPECT_FALSE(shown.testOption(QAbstractPrintDialog::PrintToFile));
            EXPECT_FALSE(shown.testOption(QAbstractPrintDialog::PrintSelection));
            EXPECT_FALSE(shown.testOption(QAbstractPrintDialog::PrintCurrentPage));
            EXPECT_TRUE(shown.testOption(QAbstractPrintDialog::PrintPageRange));
            EXPECT_EQ(shown.printer()->copyCount(), 2);
            EXPECT_FALSE(Find<QWidget>(shown, "pagesLineEdit").isVisible());
            EXPECT_FALSE(Find<QWidget>(shown, "pagesRadioButton").isVisible());
            EXPECT_GT(Find<QSpinBox>(shown, "to").maximum(), 1000) << "pages";
            shown.printer()->setCopyCount(5);
            shown.reject();
        });
    EXPECT_EQ(dialog.copies, 2) << "cancelled";
}

TEST_F(QtPrinting, TheDialogGivesBackWhatWasChosen) {
    ui::QtPrintDialog service(printer);
    PrintDialog dialog = NewPrintDialog();
    WhileModal([&] { service.ShowPrinter(dialog); },
               [](QWidget& window) {
                   auto& shown = dynamic_cast<QPrintDialog&>(window);
                   shown.printer()->setCopyCount(4);
                   shown.printer()->setPageOrientation(QPageLayout::Landscape);
                   shown.done(QDialog::Accepted);
               });
    EXPECT_EQ(dialog.copies, 4);
    EXPECT_EQ(dialog.orientation, Orientation::Landscape);
}

} // namespace

} // namespace orvel
