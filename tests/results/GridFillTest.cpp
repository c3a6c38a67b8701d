#include "results/GridFill.h"
#include "frame/ProgramFolder.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class GridFillTest : public ::testing::Test {
  protected:
    void SetUp() override { gAppPath = ORVANE_BIN_DIR; }

    bool Load(const std::string& left, const std::string& right, bool numbers = true) {
        return LoadFilesIntoGrids(dir.Write("a", left), dir.Write("b", right), original, revised,
                                  numbers);
    }

    test::TempDir dir;
    FlexGrid original, revised;
};

TEST_F(GridFillTest, OneRowPerLineAheadOfTheTrailingBlankRow) {
    ASSERT_TRUE(Load("one\r\ntwo\n\tthree", "x\n\ny\n"));
    ASSERT_EQ(original.Rows(), 5);
    EXPECT_EQ(original.RowText(1), " 1:one"); // CR of CRLF is not shown
    EXPECT_EQ(original.RowText(2), " 2:two");
    EXPECT_EQ(original.RowText(3), " 3:   three"); // tab as three blanks; last line without LF
    EXPECT_EQ(original.RowText(4), "");
    ASSERT_EQ(revised.Rows(), 5);
    EXPECT_EQ(revised.RowText(2), " 2:");
    EXPECT_EQ(original.Row(), 1);
    EXPECT_EQ(original.RowSel(), 3);
    EXPECT_EQ(original.CellAlignment(), 1);
}

TEST_F(GridFillTest, WithoutNumbersAnEmptyLineIsOneBlank) {
    ASSERT_TRUE(Load("a\n\nb\n", "", false));
    EXPECT_EQ(original.RowText(1), " a");
    EXPECT_EQ(original.RowText(2), " ");
    EXPECT_EQ(LineTextOfCell(original.RowText(2), false), " ");
    EXPECT_EQ(revised.Rows(), 2); // an empty file adds no rows
    EXPECT_EQ(revised.RowSel(), 0);
}

TEST_F(GridFillTest, LineTextRuleCutsAtTheFirstColon) {
    EXPECT_EQ(LineTextOfCell(" 12:a:b", true), "a:b");
    EXPECT_EQ(LineTextOfCell(" 12:a:b", false), " 12:a:b");
    EXPECT_EQ(LineTextOfCell("", true), "");
    EXPECT_EQ(LineTextOfCell(" 3:", true), "");
}

TEST_F(GridFillTest, EncodingIsDecidedPerFile) {
    ASSERT_TRUE(Load("caf\xc3\xa9\n", "caf\xe9\n"));
    EXPECT_EQ(original.Encoding(), TextEncoding::Utf8);
    EXPECT_EQ(revised.Encoding(), TextEncoding::Windows1252);
}

TEST_F(GridFillTest, AMissingFileIsReportedAndFails) {
    test::ScopedRecordingPrompter prompter;
    EXPECT_FALSE(
        LoadFilesIntoGrids(dir.Path() + "gone", dir.Write("b", "x"), original, revised, true));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Unexpected Error in frmFileDiffs.LoadFilesIntoGrids");
}

TEST_F(GridFillTest, PrepareLeavesTwoEmptyRowsAndRedrawOff) {
    ASSERT_TRUE(Load("a\nb\nc\n", "a\n"));
    original.SetTextMatrix(0, 0, "prompt");
    PrepareGridForNewComparison(original, revised);
    for (FlexGrid* g : {&original, &revised}) {
        EXPECT_EQ(g->Rows(), 2);
        EXPECT_FALSE(g->Redraw());
        EXPECT_EQ(g->TextMatrix(0, 0), "");
        EXPECT_EQ(g->TextMatrix(1, 0), "");
    }
}

} // namespace
} // namespace orvane
