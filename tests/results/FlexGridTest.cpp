#include "results/FlexGrid.h"
#include "results/GapBuffer.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace orvane {
namespace {

TEST(GapBuffer, BehavesLikeAVectorUnderRandomEdits) {
    std::mt19937 rng(3);
    GapBuffer<int> buffer;
    std::vector<int> model;
    for (int step = 0; step < 20000; ++step) {
        const bool insert = model.empty() || rng() % 3 != 0;
        // Mostly edits near the last one, as a fill does, with jumps now and then.
        const std::size_t at = model.empty() ? 0 : rng() % (model.size() + (insert ? 1 : 0));
        if (insert) {
            buffer.insert(at, step);
            model.insert(model.begin() + static_cast<long>(at), step);
        } else {
            buffer.erase(at);
            model.erase(model.begin() + static_cast<long>(at));
        }
        ASSERT_EQ(buffer.size(), model.size());
    }
    for (std::size_t i = 0; i < model.size(); ++i)
        ASSERT_EQ(buffer[i], model[i]);
}

TEST(FlexGrid, StartsWithTheFixedRowAndOneDataRow) {
    FlexGrid g;
    EXPECT_EQ(g.Rows(), 2);
    EXPECT_EQ(g.Row(), 1);
    EXPECT_EQ(g.TopRow(), 1);
}

TEST(FlexGrid, AddItemInsertsBeforeTheIndexAndKeepsFormats) {
    FlexGrid g;
    g.AddItem("b", 1);
    g.AddItem("a", 1);
    g.SetRow(2);
    g.SetCellBackColor(RGB(1, 2, 3));
    g.AddItem("x", 2);
    g.AddItem("end");
    EXPECT_EQ(g.Rows(), 6);
    EXPECT_EQ(g.TextMatrix(1, 0), "a");
    EXPECT_EQ(g.TextMatrix(2, 0), "x");
    EXPECT_EQ(g.TextMatrix(3, 0), "b");
    EXPECT_EQ(g.RowBackColor(3), RGB(1, 2, 3));
    EXPECT_EQ(g.RowBackColor(2), 0u);
    EXPECT_EQ(g.TextMatrix(5, 0), "end");
    EXPECT_THROW(g.AddItem("far", 7), std::exception);
}

TEST(FlexGrid, ColourFillsFromRowToRowSelInEitherOrder) {
    FlexGrid g;
    for (int i = 0; i < 6; ++i)
        g.AddItem("l");
    g.SetRow(5);
    g.SetRowSel(3);
    g.SetCellBackColor(7);
    for (long r = 1; r < g.Rows(); ++r)
        EXPECT_EQ(g.RowBackColor(r), r >= 3 && r <= 5 ? 7u : 0u);
    g.SetRow(2); // setting the row resets the selection end
    EXPECT_EQ(g.RowSel(), 2);
    g.SetCellPicture(CellPictureId::Arrow);
    EXPECT_EQ(g.RowPicture(2), CellPictureId::Arrow);
    EXPECT_EQ(g.RowPicture(3), CellPictureId::None);
}

TEST(FlexGrid, RowAddressesAreChecked) {
    FlexGrid g;
    EXPECT_THROW(g.SetRow(0), std::exception); // the fixed row is not a current row
    EXPECT_THROW(g.SetRow(2), std::exception);
    EXPECT_THROW(g.TextMatrix(5, 0), std::exception);
    EXPECT_THROW(g.RemoveItem(1), std::exception); // the last data row stays
    EXPECT_THROW(g.RemoveItem(0), std::exception);
}

TEST(FlexGrid, ClearEmptiesCellsButKeepsRows) {
    FlexGrid g;
    g.SetTextMatrix(0, 0, "prompt");
    g.AddItem("x");
    g.SetRow(1);
    g.SetCellBackColor(5);
    g.Clear();
    EXPECT_EQ(g.Rows(), 3);
    EXPECT_EQ(g.TextMatrix(0, 0), "");
    EXPECT_EQ(g.RowBackColor(1), 0u);
}

TEST(FlexGrid, RedrawOffHoldsBackAnnouncementsUntilOneReset) {
    FlexGrid g;
    std::vector<GridChange> seen;
    g.SetObserver([&](GridChange c, long, long) { seen.push_back(c); });
    g.SetRedraw(false);
    for (int i = 0; i < 1000; ++i)
        g.AddItem("line", 1);
    g.SetRow(3);
    g.SetCellBackColor(1);
    EXPECT_TRUE(seen.empty());
    g.SetRedraw(true);
    EXPECT_EQ(seen, std::vector<GridChange>{GridChange::Reset});
}

TEST(FlexGrid, RowIsVisibleFollowsTopRowAndTheViewsHeight) {
    FlexGrid g;
    for (int i = 0; i < 100; ++i)
        g.AddItem("l");
    g.SetVisibleRowCount(10);
    g.SetTopRow(20);
    EXPECT_FALSE(g.RowIsVisible(19));
    EXPECT_TRUE(g.RowIsVisible(20));
    EXPECT_TRUE(g.RowIsVisible(29));
    EXPECT_FALSE(g.RowIsVisible(30));
}

} // namespace
} // namespace orvane
