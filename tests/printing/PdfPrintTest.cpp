// Printing into real PDF files through QPrinter, read back with poppler-utils.
#include "output/QtPrintSurface.h"
#include "printing/PdfTools.h"
#include "printing/RecordingSurface.h"
#include "support/TempDir.h"

#include <QPrinter>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace orvane::test {
namespace {

class PdfPrintTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!HavePoppler()) GTEST_SKIP() << "poppler-utils (pdfinfo, pdftotext) not installed";
    }
    std::string Print(FakeGrid grid, PageOrientation orientation, WhichLines lines,
                      const std::string& name = "out.pdf") {
        const std::string file = dir.Path() + name;
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(file));
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageMargins(QMarginsF(0, 0, 0, 0));
        QtPrintSurface surface(printer, QtPrintSurface::Documents::OneJobEach);
        surface.SetOrientation(orientation);
        modDiffPrint::PrintGrid(surface, grid, "/in/old page.html", "23/11/2026 16:05", true, true,
                                lines);
        EXPECT_TRUE(surface.Finish());
        return file;
    }
    TempDir dir;
};

TEST_F(PdfPrintTest, EveryPageHasItsHeaderAndAllLinesComeOnceInOrder) {
    const std::string pdf = Print(NumberedGrid(150, 4), PageOrientation::Portrait, WhichLines::All);
    const int pages = PageCount(pdf);
    ASSERT_GE(pages, 2);
    std::vector<std::string> body;
    for (int page = 1; page <= pages; ++page) {
        const auto lines = PageLines(pdf, page);
        ASSERT_GE(lines.size(), 2u);
        EXPECT_EQ(lines[0], "Orvane - Page " + std::to_string(page) + " [23/11/2026 16:05]");
        EXPECT_EQ(lines[1], "/in/old page.html");
        body.insert(body.end(), lines.begin() + 2, lines.end());
    }
    std::vector<std::string> expected;
    for (int i = 1; i <= 150; ++i)
        expected.push_back("line " + std::to_string(i));
    EXPECT_EQ(body, expected);
}

TEST_F(PdfPrintTest, TheBottomTenthStaysEmptyAndPagesAreOtherwiseFull) {
    const std::string pdf = Print(NumberedGrid(150, 0), PageOrientation::Portrait, WhichLines::All);
    std::map<int, double> lowest;
    double height = 0;
    for (const WordBox& w : Words(pdf)) {
        lowest[w.page] = std::max(lowest[w.page], w.yMax);
        height = w.pageHeight;
    }
    ASSERT_GE(lowest.size(), 2u);
    const double lineHeight = 14; // 10 point text
    for (const auto& [page, y] : lowest) {
        EXPECT_LT(y, height * 0.9 + lineHeight) << "page " << page;
        if (page < static_cast<int>(lowest.size())) {
            EXPECT_GT(y, height * 0.9 - 2 * lineHeight) << "page " << page << " ends early";
        }
    }
}

TEST_F(PdfPrintTest, LandscapeTurnsThePageAndHoldsFewerLines) {
    const auto grid = NumberedGrid(150, 0);
    const std::string portrait = Print(grid, PageOrientation::Portrait, WhichLines::All, "p.pdf");
    const std::string landscape = Print(grid, PageOrientation::Landscape, WhichLines::All, "l.pdf");
    const auto [pw, ph] = PageSize(portrait);
    const auto [lw, lh] = PageSize(landscape);
    EXPECT_NEAR(pw, 595.3, 1);
    EXPECT_NEAR(ph, 841.9, 1);
    EXPECT_NEAR(lw, 841.9, 1);
    EXPECT_NEAR(lh, 595.3, 1);
    EXPECT_GT(PageCount(landscape), PageCount(portrait));
}

TEST_F(PdfPrintTest, OnlyDifferingLinesAreBoldInTheMonospacedFace) {
    const std::string pdf = Print(NumberedGrid(30, 3), PageOrientation::Portrait, WhichLines::All);
    // pdftohtml marks bold runs with <b>: each body line is one text element.
    const std::string xml = Output({"pdftohtml", "-xml", "-i", "-stdout", pdf});
    const std::regex text("<text [^>]*>(<b>)?line (\\d+)");
    int seen = 0;
    for (std::sregex_iterator it(xml.begin(), xml.end(), text), end; it != end; ++it, ++seen)
        EXPECT_EQ((*it)[1].matched, std::stoi((*it)[2]) % 3 == 0) << "line " << (*it)[2];
    EXPECT_EQ(seen, 30);
    const std::string fonts = Output({"pdffonts", pdf});
    EXPECT_TRUE(fonts.find("LiberationMono") != std::string::npos ||
                fonts.find("CourierNew") != std::string::npos)
        << fonts;
}

TEST_F(PdfPrintTest, WhichLinesChoosesWhatReachesThePaper) {
    const auto grid = NumberedGrid(12, 4);
    const auto body = [&](WhichLines lines) {
        auto all = PageLines(Print(grid, PageOrientation::Portrait, lines), 1);
        return std::vector<std::string>(all.begin() + 2, all.end());
    };
    EXPECT_EQ(body(WhichLines::Differing),
              (std::vector<std::string>{"line 4", "line 8", "line 12"}));
    EXPECT_EQ(body(WhichLines::Identical).size(), 9u);
    FakeGrid same = NumberedGrid(20, 0);
    const std::string empty = Print(same, PageOrientation::Portrait, WhichLines::Differing);
    EXPECT_EQ(PageCount(empty), 1);
    EXPECT_EQ(PageLines(empty, 1).size(), 2u);
}

} // namespace
} // namespace orvane::test
