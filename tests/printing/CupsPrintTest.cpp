// The whole road to paper: Print Options, a real CUPS queue, and the PDF that the queue's
// printer (cups-pdf) makes of the job.
#include "dialogs/frmPrintOptions.h"
#include "output/QtPrintSurface.h"
#include "printing/CupsQueue.h"
#include "printing/PdfTools.h"
#include "printing/RecordingSurface.h"
#include "results/report/DiffReportControl.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTest>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> PdfsIn(const std::string& folder, std::size_t want) {
    std::vector<std::string> found;
    for (int i = 0; i < 600 && found.size() < want; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        found.clear();
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".pdf") found.push_back(entry.path());
    }
    // The writer may still be at work: a file counts once it reads as a whole PDF.
    for (int i = 0; i < 100; ++i) {
        if (std::all_of(found.begin(), found.end(),
                        [](const std::string& f) { return PageCount(f) > 0; }))
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    std::sort(found.begin(), found.end());
    return found;
}

// Pages the same grid takes on a PDF of the queue's own page layout.
int PagesOnQueueLayout(const std::string& queue, FakeGrid grid, const std::string& file) {
    QPrinter queuePrinter(QPrinterInfo::printerInfo(QString::fromStdString(queue)),
                          QPrinter::HighResolution);
    QPrinter pdf(QPrinter::HighResolution);
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(QString::fromStdString(file));
    pdf.setPageLayout(queuePrinter.pageLayout());
    pdf.setResolution(queuePrinter.resolution());
    {
        QtPrintSurface surface(pdf, QtPrintSurface::Documents::OneJobEach);
        modDiffPrint::PrintGrid(surface, grid, "x", "d", true, true, WhichLines::All);
    }
    return PageCount(file);
}

TEST(CupsPrint, TheDialoguePrintsEachFileAsAJobOnTheDefaultQueue) {
    if (!HavePoppler()) GTEST_SKIP() << "poppler-utils not installed";
    CupsQueue queue;
    if (!queue.Unavailable().empty()) GTEST_SKIP() << "no private CUPS: " << queue.Unavailable();
    ScopedRecordingPrompter prompter;
    FakeSource source(NumberedGrid(10, 2, "old "), NumberedGrid(160, 7, "new "));

    frmPrintOptions dialogue(source);
    ASSERT_TRUE(dialogue.Loaded());
    EXPECT_EQ(dialogue.Printers()->currentText().toStdString(), queue.Name());
    QTest::mouseClick(dialogue.findChild<QAbstractButton*>("cmdPrint"), Qt::LeftButton);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "Printing is complete.");

    const auto pdfs = PdfsIn(queue.OutputFolder(), 2);
    ASSERT_EQ(pdfs.size(), 2u) << "cups-pdf wrote no output in " << queue.OutputFolder();
    std::vector<int> pages;
    for (const std::string& pdf : pdfs)
        pages.push_back(PageCount(pdf));
    std::sort(pages.begin(), pages.end());
    const int expected =
        PagesOnQueueLayout(queue.Name(), source.revised, queue.OutputFolder() + "../expected.pdf");
    ASSERT_GT(expected, 1);
    EXPECT_EQ(pages, (std::vector<int>{1, expected}));
}

// The merged report goes to the queue as the PDF the view lays out (that its words stay text is
// checked where the PDF is kept; the queue's printer redraws them).
TEST(CupsPrint, TheReportPrintsAsItLooksOnTheQueue) {
    if (!HavePoppler()) GTEST_SKIP() << "poppler-utils not installed";
    CupsQueue queue;
    if (!queue.Unavailable().empty()) GTEST_SKIP() << "no private CUPS: " << queue.Unavailable();
    TempDir dir;
    DiffReportControl report;
    report.resize(800, 600);
    report.SetOriginalSource(dir.Write("a.html", "<p>The quick brown fox.</p>"));
    report.SetRevisedSource(dir.Write("b.html", "<p>The quick red fox.</p>"));
    report.StartCompare();
    while (!report.IsDone())
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    ASSERT_EQ(report.GetResult(), 0);
    ASSERT_TRUE(report.PrintReport(queue.Name()));
    const auto pdfs = PdfsIn(queue.OutputFolder(), 1);
    ASSERT_EQ(pdfs.size(), 1u) << "cups-pdf wrote no output in " << queue.OutputFolder();
    EXPECT_EQ(PageCount(pdfs[0]), 1);
}

} // namespace
} // namespace orvane::test
