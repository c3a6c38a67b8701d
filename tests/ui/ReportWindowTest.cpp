// The one-window output in the real window: the merged report takes the grids' place, and the
// difference keys, Find and the option commands go to it.
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "results/report/DiffReportControl.h"
#include "support/Process.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QTest>
#include <filesystem>

namespace orvane::test {
namespace {

class ReportWindowTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        window->resize(900, 700);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        // Three changed paragraphs far apart, so that each step must scroll.
        std::string a = "<p>The quick brown fox.</p>", b = "<p>The quick red fox.</p>";
        for (int k = 0; k < 2; ++k) {
            const std::string filler(60, 'x');
            for (int i = 0; i < 80; ++i)
                a += "<p>" + filler + "</p>", b += "<p>" + filler + "</p>";
            a += "<p>old " + std::to_string(k) + "</p>";
            b += "<p>new " + std::to_string(k) + "</p>";
        }
        original = dir.Write("a.html", a);
        revised = dir.Write("b.html", b);
        window->OriginalFileBox()->setEditText(QString::fromStdString(original));
        window->RevisedFileBox()->setEditText(QString::fromStdString(revised));
    }
    void Choose(const char* item, int index) {
        window->CommandSurface().Item(item, index)->trigger();
        QApplication::processEvents();
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        QTest::keyClick(window.get(), key, mods);
        QApplication::processEvents();
    }
    DiffReportControl& Report() { return *window->Report(); }

    std::string original, revised;
};

TEST_F(ReportWindowTest, OneWindowShowsTheReportAtItsFirstDifferenceAndKeysWalkIt) {
    Choose("mnuOptionsComparisonModeOption", 0); // Visual Aspect, which brings One Window
    ASSERT_TRUE(window->ReportShown());
    EXPECT_TRUE(window->GridView(Side::Original)->isHidden());
    ASSERT_TRUE(prompter->boxes.empty()) << prompter->boxes[0].text;
    ASSERT_EQ(Report().DifferenceCount(), 3);
    EXPECT_EQ(Report().CurrentDifference(), 0);
    EXPECT_TRUE(window->CommandSurface().Item("mnuFileShowNextDiff")->isEnabled());
    EXPECT_FALSE(window->CommandSurface().Item("mnuFileToggleBookmark")->isEnabled());

    const double top = Report().ScrollTop();
    Key(Qt::Key_F7);
    EXPECT_EQ(Report().CurrentDifference(), 1);
    EXPECT_GT(Report().ScrollTop(), top);
    Key(Qt::Key_F7);
    Key(Qt::Key_F7); // past the last: said, not wrapped
    EXPECT_EQ(Report().CurrentDifference(), 2);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Next Difference");
    EXPECT_EQ(prompter->boxes[0].text, "No more differences");
    Key(Qt::Key_F7, Qt::ShiftModifier);
    EXPECT_EQ(Report().CurrentDifference(), 1);
}

TEST_F(ReportWindowTest, FindSearchesTheReportAndSaysWhenNothingIsLeft) {
    Choose("mnuOptionsOutputFormatOption", 0);
    ASSERT_TRUE(window->ReportShown());
    prompter->inputs.push_back("quick");
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_TRUE(window->CommandSurface().Item("mnuFileFindNext")->isEnabled());
    Key(Qt::Key_F3); // "quick" stands once in the page
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "Search text was not found.");

    prompter->inputs.push_back("no such words");
    Key(Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(prompter->boxes.size(), 2u);
    EXPECT_EQ(prompter->boxes[1].text, "Search text was not found.");
}

TEST_F(ReportWindowTest, VisualAspectRefusesSideBySideAndIdenticalPagesSaySo) {
    Choose("mnuOptionsComparisonModeOption", 0);
    prompter->boxes.clear();
    Choose("mnuOptionsOutputFormatOption", 1);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Side by Side Not Supported");
    EXPECT_TRUE(window->ReportShown());

    window->RevisedFileBox()->setEditText(
        QString::fromStdString(dir.Write("c.html", "<p>The quick brown fox.</p>")));
    window->OriginalFileBox()->setEditText(
        QString::fromStdString(dir.Write("d.html", "<p>The quick brown fox.</p>")));
    prompter->boxes.clear();
    window->CompareFiles(true);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Compare Files");
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical.");
    EXPECT_TRUE(window->ReportShown()) << "a code other than 0 leaves the report as it stands";
}

TEST_F(ReportWindowTest, PrintToPdfWritesTheReportWithItsText) {
    Choose("mnuOptionsOutputFormatOption", 0);
    ASSERT_TRUE(window->ReportShown());
    const std::string pdf = dir.Path() + "report.pdf";
    prompter->saveFiles.push_back(pdf);
    Choose("mnuFilePrintToPdf", -1);
    EXPECT_TRUE(prompter->boxes.empty());
    ASSERT_TRUE(std::filesystem::exists(pdf));
    // Text stays text: the words come back out of the file, the removed one too.
    const std::string text = RunProgram({"pdftotext", pdf, "-"}).out;
    EXPECT_NE(text.find("quick"), std::string::npos) << text;
    EXPECT_NE(text.find("brown"), std::string::npos);
    EXPECT_NE(text.find("red"), std::string::npos);
}

} // namespace
} // namespace orvane::test
