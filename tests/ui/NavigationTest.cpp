#include "results/DiffBarView.h"
#include "tests/ui/DriverFixture.h"

#include "results/LineDetailView.h"

namespace orvane::test {
namespace {

// Blocks start at rows 2 (changed), 5 (deleted, two rows) and 9 (added).
class NavigationTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        window->show();
        Compare(dir.Write("a.html", "1\nB\n3\n4\nD1\nD2\n7\n8\n9\n"),
                dir.Write("b.html", "1\nX\n3\n4\n7\n8\nA\n9\n"));
        ASSERT_EQ(window->Diffs(), (DiffList{{2, 1, DiffKind::Changed},
                                             {5, 2, DiffKind::Orphan},
                                             {9, 1, DiffKind::Orphan}}));
        prompter->boxes.clear();
    }
    long Row() { return window->OriginalGrid().Row(); }
    void FollowRowByClick(long row) {
        window->OriginalGrid().SetRow(row);
        window->Grid_Click(Side::Original);
    }
    std::string Detail(int box) { return window->DetailBox(box)->Text().toStdString(); }
};

TEST_F(NavigationTest, StepsThroughTheBlocksAndSaysWhenThereAreNoMore) {
    EXPECT_EQ(Row(), 2);
    window->mnuFileShowNextDiff_Click();
    EXPECT_EQ(Row(), 5);
    EXPECT_EQ(window->RevisedGrid().Row(), 5);
    window->mnuFileShowNextDiff_Click();
    EXPECT_EQ(Row(), 9);
    window->mnuFileShowNextDiff_Click();
    EXPECT_EQ(Row(), 9);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Next Difference");
    EXPECT_EQ(prompter->boxes[0].text, "No more differences");
    window->mnuFileShowFirstDiff_Click();
    EXPECT_EQ(Row(), 2);
    window->mnuFileShowPreviousDiff_Click();
    EXPECT_EQ(prompter->boxes.back().title, "Previous Difference");
    window->mnuFileShowLastDiff_Click();
    EXPECT_EQ(Row(), 9);
}

TEST_F(NavigationTest, PreviousFromInsideABlockGoesToItsFirstRow) {
    FollowRowByClick(6);
    window->mnuFileShowPreviousDiff_Click();
    EXPECT_EQ(Row(), 5);
    window->mnuFileShowPreviousDiff_Click();
    EXPECT_EQ(Row(), 2);
}

TEST_F(NavigationTest, AHiddenWindowStaysSilentAndABusyOneIgnoresCommands) {
    window->hide();
    window->mnuFileShowLastDiff_Click();
    window->mnuFileShowNextDiff_Click();
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_EQ(Row(), 9);
}

TEST_F(NavigationTest, TheDetailPaneShowsTheCurrentPair) {
    EXPECT_EQ(Detail(0), "B");
    EXPECT_EQ(Detail(1), "X");
    window->mnuFileShowNextDiff_Click(); // deleted lines face blank rows
    EXPECT_EQ(Detail(0), "D1");
    EXPECT_EQ(Detail(1), "");
    EXPECT_EQ(window->DetailBox(0)->ScrollX(), 0);
}

TEST_F(NavigationTest, TheBarHasABandPerBlockAndJumpsWherePressed) {
    const DiffBarView& bar = *window->DiffsBar();
    EXPECT_TRUE(bar.Drawn());
    EXPECT_EQ(bar.Bands().size(), 3u);
    EXPECT_EQ(bar.MarkY(), DiffBarMarkY(2, window->OriginalGrid().Rows() - 1, bar.BarHeight()));
    const float rowSpan = static_cast<float>(window->OriginalGrid().Rows() - 1);
    window->DiffsBar_MouseDown(static_cast<float>(bar.BarHeight()) * 7.6f / rowSpan);
    EXPECT_EQ(Row(), 8);
    window->DiffsBar_MouseDown(0);
    EXPECT_EQ(Row(), 1);
    EXPECT_EQ(bar.MarkY(), 0);
}

TEST_F(DriverTest, ThePressOnAnIdleBarExplains) {
    window->DiffsBar_MouseDown(10);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Navigate Differences");
    EXPECT_EQ(window->DiffsBar()->MarkY(), -1);
}

} // namespace
} // namespace orvane::test

namespace orvane::test {
namespace {

// Red characters of a detail box, as a string of '1' (red) and '.' (black).
std::string RedMap(const LineDetailView& box) {
    std::string map;
    for (qsizetype i = 0; i < box.Text().size(); ++i)
        map += box.IsRed(i) ? '1' : '.';
    return map;
}

class DetailLevels : public DriverTest {
  protected:
    void ShowPair(const std::string& a, const std::string& b, ComparisonLevel level) {
        session.ViewOptions.ComparisonLevel = level;
        Compare(dir.Write("a.html", "same\n" + a + "\n"), dir.Write("b.html", "same\n" + b + "\n"));
    }
    std::string Text(int box) { return window->DetailBox(box)->Text().toStdString(); }
};

TEST_F(DetailLevels, CharacterLevelPaintsOnlyWhatDiffers) {
    ShowPair("<td>7:00 - 18:00</td>", "<td>7:00 - 19:00</td>", ComparisonLevel::Character);
    EXPECT_EQ(Text(0), "<td>7:00 - 18:00</td>");
    EXPECT_EQ(RedMap(*window->DetailBox(0)), "............1........");
    EXPECT_EQ(RedMap(*window->DetailBox(1)), "............1........");
}

TEST_F(DetailLevels, WordLevelJoinsWordsAndRunsTakeTheBlankAhead) {
    ShowPair("the  quick brown fox", "the slow brown dog", ComparisonLevel::Word);
    EXPECT_EQ(Text(0), "the quick brown fox");
    EXPECT_EQ(RedMap(*window->DetailBox(0)), "...111111......1111");
    EXPECT_EQ(Text(1), "the slow brown dog");
}

TEST_F(DetailLevels, LineLevelIsAllRedAndASameRowAllBlack) {
    ShowPair("abc", "abd", ComparisonLevel::Line);
    EXPECT_EQ(RedMap(*window->DetailBox(0)), "111");
    window->OriginalGrid().SetRow(1);
    window->Grid_Click(Side::Original);
    EXPECT_EQ(Text(0), "same");
    EXPECT_EQ(RedMap(*window->DetailBox(0)), "....");
}

} // namespace
} // namespace orvane::test
