// The two grids scroll as one, whatever moves them: keys on the window, a press on the bar, Find,
// bookmarks, or the user's own scrolling.
#include "results/Commands.h"
#include "results/DiffBarView.h"
#include "results/FlexGridView.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QScrollBar>
#include <QTest>

namespace orvane::test {
namespace {

// 400 rows with differences at rows 20, 200 and 390: far enough apart that each move scrolls.
class GridsInStepTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        window->resize(900, 600);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        std::string a, b;
        for (int i = 1; i <= 400; ++i) {
            a += "line " + std::to_string(i) + "\n";
            b +=
                (i == 20 || i == 200 || i == 390 ? "changed " : "line ") + std::to_string(i) + "\n";
        }
        Compare(dir.Write("a.html", a), dir.Write("b.html", b));
        ASSERT_EQ(window->Diffs().size(), 3u);
        prompter->boxes.clear();
        QApplication::processEvents();
    }

    QScrollBar* Scroll(Side side) { return window->GridView(side)->verticalScrollBar(); }
    int TopShown(Side side) { return window->GridView(side)->rowAt(0) + 1; }
    long Row() { return window->OriginalGrid().Row(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
        QTest::keyClick(window->GridView(Side::Original), key, mods);
        QApplication::processEvents();
    }

    // Both grids show the same first row, by model and by scroll bar; `what` names the move.
    void ExpectInStep(const char* what, long expectedRow) {
        SCOPED_TRACE(what);
        EXPECT_EQ(Row(), expectedRow);
        EXPECT_EQ(window->OriginalGrid().TopRow(), window->RevisedGrid().TopRow());
        EXPECT_EQ(Scroll(Side::Original)->value(), Scroll(Side::Revised)->value());
        EXPECT_EQ(TopShown(Side::Original), TopShown(Side::Revised));
        EXPECT_TRUE(window->OriginalGrid().RowIsVisible(expectedRow));
        // The row the arrow is on is on screen in the Revised grid too.
        const int shownRows = window->GridView(Side::Revised)->viewport()->height() /
                              window->GridView(Side::Revised)->rowHeight(0);
        EXPECT_GE(expectedRow, TopShown(Side::Revised));
        EXPECT_LT(expectedRow, TopShown(Side::Revised) + shownRows);
    }
};

TEST_F(GridsInStepTest, DifferenceKeysMoveBothGrids) {
    ExpectInStep("after the comparison", 20);
    Key(Qt::Key_F7);
    ExpectInStep("F7", 200);
    EXPECT_GT(Scroll(Side::Revised)->value(), 100);
    Key(Qt::Key_F7);
    ExpectInStep("F7 again", 390);
    Key(Qt::Key_F7, Qt::ShiftModifier);
    ExpectInStep("Shift+F7", 200);
    window->CommandSurface().Item("mnuFileShowFirstDiff")->trigger();
    ExpectInStep("First Difference", 20);
    window->CommandSurface().Item("mnuFileShowLastDiff")->trigger();
    ExpectInStep("Last Difference", 390);
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(GridsInStepTest, APressOnTheBarMovesBothGrids) {
    QWidget* bar = window->DiffsBar()->Bar();
    const int height = window->DiffsBar()->BarHeight();
    const long rows = window->OriginalGrid().Rows() - 1;
    for (long target : {300L, 120L, 1L}) {
        const int y = static_cast<int>((static_cast<double>(target) - 0.5) * height / rows);
        QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, y));
        QApplication::processEvents();
        ExpectInStep("bar", Row()); // the row the bar picked, wherever that rounds to
        EXPECT_NEAR(Row(), target, rows / height + 2);
    }
}

TEST_F(GridsInStepTest, FindAndBookmarkMovesMoveBothGrids) {
    prompter->inputs.push_back("line 333");
    Key(Qt::Key_F, Qt::ControlModifier);
    ExpectInStep("Find", 333);
    Key(Qt::Key_F2, Qt::ControlModifier); // a mark on 333
    window->CommandSurface().Item("mnuFileShowFirstDiff")->trigger();
    Key(Qt::Key_F2, Qt::ControlModifier); // and one on 20
    Key(Qt::Key_F2);
    ExpectInStep("Next Bookmark", 333);
    Key(Qt::Key_F2, Qt::ShiftModifier);
    ExpectInStep("Previous Bookmark", 20);
    prompter->inputs.push_back("changed 390");
    Key(Qt::Key_F, Qt::ControlModifier);
    ExpectInStep("Find again", 390);
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(GridsInStepTest, TheUsersScrollingOfEitherGridMovesTheOther) {
    Scroll(Side::Revised)->setValue(250);
    EXPECT_EQ(Scroll(Side::Original)->value(), 250);
    EXPECT_EQ(window->OriginalGrid().TopRow(), 251);
    QTest::keyClick(window->GridView(Side::Original), Qt::Key_PageDown);
    QApplication::processEvents();
    EXPECT_EQ(Scroll(Side::Original)->value(), Scroll(Side::Revised)->value());
}

} // namespace
} // namespace orvane::test
