#include "results/Commands.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>

namespace orvane::test {
namespace {

class BookmarkFindTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        std::string a, b;
        for (int i = 1; i <= 60; ++i) {
            a += "line " + std::to_string(i) + "\n";
            b += (i == 30 ? "changed TITLE" : "line " + std::to_string(i)) + "\n";
        }
        Compare(dir.Write("a.html", a), dir.Write("b.html", b));
        prompter->boxes.clear();
    }
    void GoTo(long row) {
        window->OriginalGrid().SetRow(row);
        window->Grid_Click(Side::Original);
    }
    long Row() { return window->OriginalGrid().Row(); }
    bool Enabled(const char* name) { return window->CommandSurface().Item(name)->isEnabled(); }
    CellPictureId Picture(long row) { return window->OriginalGrid().RowPicture(row); }
};

TEST_F(BookmarkFindTest, MarksAreWalkedInRowOrder) {
    EXPECT_FALSE(Enabled("mnuFileNextBookmark"));
    for (long row : {40, 7, 19, 9, 10}) {
        GoTo(row);
        window->ToggleBookmark();
    }
    EXPECT_EQ(window->Bookmarks(), (std::vector<long>{7, 9, 10, 19, 40}));
    EXPECT_TRUE(Enabled("mnuFileNextBookmark"));
    EXPECT_EQ(Picture(10), CellPictureId::BookmarkArrow); // the current row, marked last
    EXPECT_EQ(Picture(40), CellPictureId::Bookmark);
    GoTo(1);
    std::vector<long> visited;
    for (int i = 0; i < 5; ++i) {
        window->CommandSurface().Item("mnuFileNextBookmark")->trigger();
        visited.push_back(Row());
    }
    EXPECT_EQ(visited, (std::vector<long>{7, 9, 10, 19, 40}));
    window->CommandSurface().Item("mnuFileNextBookmark")->trigger();
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Next Bookmark");
    EXPECT_EQ(prompter->boxes[0].text, "No more bookmarks");
    EXPECT_EQ(Row(), 40);
}

TEST_F(BookmarkFindTest, ToggleTwiceRestoresTheKindsArrowAndClearingEmptiesAll) {
    GoTo(30);
    window->ToggleBookmark();
    EXPECT_EQ(Picture(30), CellPictureId::BookmarkArrow);
    window->ToggleBookmark();
    EXPECT_EQ(Picture(30), CellPictureId::DifferArrow);
    EXPECT_TRUE(window->Bookmarks().empty());
    window->ToggleBookmark();
    GoTo(3);
    window->ToggleBookmark();
    GoTo(30);
    window->ClearAllBookmarks();
    EXPECT_EQ(Picture(3), CellPictureId::None);
    EXPECT_EQ(Picture(30), CellPictureId::DifferArrow);
    EXPECT_FALSE(Enabled("mnuFileClearAllBookmarks"));
}

TEST_F(BookmarkFindTest, FindSearchesPastTheCurrentRowAndRemembersTheText) {
    EXPECT_FALSE(Enabled("mnuFileFindNext"));
    GoTo(50);
    prompter->inputs.push_back("title");
    window->mnuFileFind_Click();
    EXPECT_EQ(Row(), 30); // found above, in the Revised grid
    EXPECT_TRUE(Enabled("mnuFileFindNext"));
    window->mnuFileFindAgain_Click(true);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "Search text not found");
    EXPECT_TRUE(Enabled("mnuFileFindNext")); // a failed Find Next leaves it on
    prompter->inputs.push_back("nowhere");
    window->mnuFileFind_Click();
    EXPECT_EQ(prompter->boxes.back().text,
              "Search text was not found.  Try searching from the beginning of the file.");
    EXPECT_FALSE(Enabled("mnuFileFindNext"));
    GoTo(1);
    prompter->inputs.push_back("nowhere");
    window->mnuFileFind_Click();
    EXPECT_EQ(prompter->boxes.back().text, "Search text was not found.");
}

TEST_F(BookmarkFindTest, CancellingFindChangesNothing) {
    GoTo(5);
    window->mnuFileFind_Click(); // no scripted answer: Cancel
    EXPECT_EQ(Row(), 5);
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(BookmarkFindTest, ANewComparisonDropsTheMarks) {
    GoTo(4);
    window->ToggleBookmark();
    Compare(dir.Path() + "a.html", dir.Path() + "b.html");
    EXPECT_TRUE(window->Bookmarks().empty());
    EXPECT_EQ(Picture(4), CellPictureId::None);
    EXPECT_FALSE(Enabled("mnuFileNextBookmark"));
}

} // namespace
} // namespace orvane::test
