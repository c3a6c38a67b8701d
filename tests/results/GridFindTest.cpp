#include "results/GridFind.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

FlexGrid Grid(std::initializer_list<const char*> cells) {
    FlexGrid g;
    long row = 1;
    for (const char* c : cells)
        g.AddItem(c, row++);
    return g;
}

class GridFindTest : public ::testing::Test {
  protected:
    // Rows 1..5 and the trailing blank row 6.
    FlexGrid original = Grid({" 1:<title>x", " 2:alpha", " 3:beta", "", " 4:alpha"});
    FlexGrid revised = Grid({" 1:<TITLE>y", " 2:gamma", " 3:beta", " 4:delta", " 5:omega"});
    long found = -7;
};

TEST_F(GridFindTest, NextFinishesTheOriginalBeforeTheRevised) {
    original.SetRow(1);
    EXPECT_TRUE(FindInGrids(original, revised, "ALPHA", "next", found));
    EXPECT_EQ(found, 2);
    EXPECT_TRUE(FindInGrids(original, revised, "a", "Next", found));
    EXPECT_EQ(found, 2); // row 2 of the Original before row 2 of the Revised
    EXPECT_TRUE(FindInGrids(original, revised, "delta", "Next", found));
    EXPECT_EQ(found, 4);
}

TEST_F(GridFindTest, TheSelectedRowIsNeverSearched) {
    original.SetRow(3);
    found = -7;
    EXPECT_FALSE(FindInGrids(original, revised, "beta", "Both", found));
    EXPECT_EQ(found, -7);
}

TEST_F(GridFindTest, BothGoesForwardThenBackward) {
    original.SetRow(5);
    EXPECT_TRUE(FindInGrids(original, revised, "title", "Both", found));
    EXPECT_EQ(found, 1);
    EXPECT_FALSE(FindInGrids(original, revised, "title", "Next", found));
    original.SetRow(1);
    EXPECT_FALSE(FindInGrids(original, revised, "title", "Previous", found));
    EXPECT_FALSE(FindInGrids(original, revised, "title", "Sideways", found));
}

TEST_F(GridFindTest, LineNumbersAreSearchedToo) {
    original.SetRow(1);
    EXPECT_TRUE(FindInGrids(original, revised, "4:", "Next", found));
    EXPECT_EQ(found, 5); // the Original's " 4:alpha" at row 5 wins over the Revised's row 4
}

TEST(GridFindEncoding, SearchTextMeetsWindows1252Cells) {
    FlexGrid g = Grid({" 1:caf\xe9"});
    g.SetEncoding(TextEncoding::Windows1252);
    FlexGrid other = Grid({" 1:x"});
    long found = 0;
    g.SetRow(1);
    EXPECT_FALSE(FindInGrids(g, other, "caf\xc3\xa9", "Next", found));
    g.AddItem(" 2:x", 1);
    g.SetRow(1);
    EXPECT_TRUE(FindInGrids(g, other, "caf\xc3\xa9", "Next", found));
    EXPECT_EQ(found, 2);
}

} // namespace
} // namespace orvane
