// A line of hundreds of kilobytes (a minified page) in the detail pane and the grids: shown in
// full, marked at both ends, and drawn only where it is in sight.
#include "results/FlexGridView.h"
#include "results/LineDetailView.h"
#include "tests/ui/DriverFixture.h"

#include <QDir>
#include <QImage>
#include <QScrollBar>
#include <QTest>

namespace orvane::test {
namespace {

// Pixels of red glyphs, edges blended with the white ground included; black text on white only
// ever gives greys.
int RedPixels(QWidget& w) {
    const QImage image = w.grab().toImage().convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = image.pixel(x, y);
            count += qRed(p) - std::max(qGreen(p), qBlue(p)) > 100;
        }
    return count;
}

std::string Middle() {
    std::string middle;
    for (int i = 0; i < 40000; ++i)
        middle += "<td>cell</td>";
    return middle;
}

class LongLineTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        window->resize(900, 600);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    // Row 2 is the long pair; its ends differ ("old"/"new" ahead, "1"/"2" behind).
    void ComparePair(ComparisonLevel level) {
        session.ViewOptions.ComparisonLevel = level;
        original = "<p>old</p>" + Middle() + "<b>end1</b>";
        revised = "<p>new</p>" + Middle() + "<b>end2</b>";
        Compare(dir.Write("a.html", "same\n" + original + "\nsame\n"),
                dir.Write("b.html", "same\n" + revised + "\nsame\n"));
        ASSERT_EQ(window->Diffs(), (DiffList{{2, 1, DiffKind::Changed}}));
        ClickRow(1);
        ClickRow(2);
    }
    void ClickRow(long row) {
        FlexGridView* grid = window->GridView(Side::Revised);
        const QRect cell = grid->visualRect(grid->model()->index(static_cast<int>(row - 1), 0));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
        QApplication::processEvents();
    }
    LineDetailView& Box(int i) { return *window->DetailBox(i); }
    void ScrollToEnd(LineDetailView& box) {
        QTest::keyClick(&box, Qt::Key_End);
        QApplication::processEvents();
    }
    std::string original, revised;
};

TEST_F(LongLineTest, CharacterLevelMarksBothEndsOfTheWholeLine) {
    ComparePair(ComparisonLevel::Character);
    for (int side : {0, 1}) {
        SCOPED_TRACE(side);
        LineDetailView& box = Box(side);
        const qsizetype size = box.Text().size();
        ASSERT_EQ(size, static_cast<qsizetype>(original.size())); // in full, no cut-off
        EXPECT_EQ(box.VisibleSpan().first, 0);
        EXPECT_LT(box.VisibleSpan().second, 1000); // what is drawn is what fits
        EXPECT_TRUE(box.IsRed(3) && box.IsRed(5));
        EXPECT_FALSE(box.IsRed(2) || box.IsRed(6) || box.IsRed(size / 2));
        EXPECT_GT(RedPixels(box), 10);

        box.ScrollToX(box.horizontalScrollBar()->maximum() / 2);
        EXPECT_EQ(RedPixels(box), 0); // the common middle is black

        ScrollToEnd(box);
        EXPECT_EQ(box.VisibleSpan().second, size);
        EXPECT_TRUE(box.IsRed(size - 5));
        EXPECT_FALSE(box.IsRed(size - 4) || box.IsRed(size - 6));
        EXPECT_GT(RedPixels(box), 3);
    }
    if (const QByteArray shots = qgetenv("ORVANE_SCREENSHOT_DIR"); !shots.isEmpty())
        Box(1).grab().save(QDir(QString::fromLocal8Bit(shots)).filePath("detail-line-end.png"));
}

TEST_F(LongLineTest, LineAndWordLevelsPaintTheWholeLineRed) {
    for (ComparisonLevel level : {ComparisonLevel::Line, ComparisonLevel::Word}) {
        SCOPED_TRACE(ChoiceIndex(level));
        ComparePair(level);
        LineDetailView& box = Box(0);
        ASSERT_EQ(box.Text().size(), static_cast<qsizetype>(original.size()));
        EXPECT_TRUE(box.IsRed(0));
        ScrollToEnd(box);
        EXPECT_TRUE(box.IsRed(box.Text().size() - 1));
        EXPECT_GT(RedPixels(box), 10);
    }
}

TEST_F(LongLineTest, ACellDrawsWhatFitsWhileFindSeesTheWholeLine) {
    ComparePair(ComparisonLevel::Character);
    QAbstractItemModel* model = window->GridView(Side::Original)->model();
    const QString shown = model->data(model->index(1, 0)).toString();
    EXPECT_TRUE(window->OriginalGrid().RowText(2).starts_with(shown.toStdString()));
    EXPECT_LT(shown.size(), 20000);
    ClickRow(1);
    prompter->inputs.push_back("END2");
    window->mnuFileFind_Click();
    EXPECT_EQ(window->OriginalGrid().Row(), 2);
    EXPECT_TRUE(prompter->boxes.empty());
}

// The view on its own: spans, a scroll to the end, and characters beyond the first plane.
TEST(LineDetailViewTest, SpansAndTheVisibleSpanFollowTheText) {
    LineDetailView view("probe");
    view.resize(200, 24);
    QString text;
    for (int i = 0; i < 500; ++i)
        text += QString::fromUtf8("ab\xF0\x9F\x98\x80");
    view.SetLine(text, {{0, 2}, {10, 14}, {text.size() - 2, text.size()}});
    const struct {
        qsizetype at;
        bool red;
    } cases[] = {{0, true},
                 {1, true},
                 {2, false},
                 {9, false},
                 {10, true},
                 {13, true},
                 {14, false},
                 {text.size() - 3, false},
                 {text.size() - 1, true}};
    for (const auto& c : cases)
        EXPECT_EQ(view.IsRed(c.at), c.red) << c.at;
    EXPECT_EQ(view.VisibleSpan().first, 0);
    view.ScrollToX(view.horizontalScrollBar()->maximum());
    const auto [first, end] = view.VisibleSpan();
    EXPECT_EQ(end, text.size());
    EXPECT_GT(first, 0);
    EXPECT_FALSE(text[first].isLowSurrogate()); // a pair is never split
    view.Clear();
    EXPECT_EQ(view.VisibleSpan(), (std::pair<qsizetype, qsizetype>{0, 0}));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

} // namespace
} // namespace orvane::test
