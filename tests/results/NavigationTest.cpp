#include "results/Navigation.h"
#include "results/DetailRuns.h"
#include "results/DiffBar.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const DiffList kList{
    {3, 2, DiffKind::Changed}, {10, 1, DiffKind::Orphan}, {20, 4, DiffKind::Changed}};

TEST(Navigation, NextAndPreviousCompareWithTheFirstRowOfABlock) {
    EXPECT_EQ(NextDiffRow(kList, 1), 3);
    EXPECT_EQ(NextDiffRow(kList, 3), 10);
    EXPECT_EQ(NextDiffRow(kList, 4), 10);            // from inside the first block
    EXPECT_EQ(NextDiffRow(kList, 21), kNoMoreDiffs); // inside the last block
    EXPECT_EQ(PreviousDiffRow(kList, 4), 3);         // inside a block: its own first row
    EXPECT_EQ(PreviousDiffRow(kList, 3), kNoMoreDiffs);
    EXPECT_EQ(PreviousDiffRow(kList, 1), kNoMoreDiffs);
    EXPECT_EQ(PreviousDiffRow(kList, 15), 10);
    EXPECT_EQ(NextDiffRow({}, 1), kNoMoreDiffs);
    EXPECT_EQ(PreviousDiffRow({}, 9), kNoMoreDiffs);
    EXPECT_EQ(DiffRowAt(kList, 1), 3);
    EXPECT_EQ(DiffRowAt(kList, 3), 20);
    EXPECT_THROW(DiffRowAt({}, 1), std::exception);
}

TEST(DiffBar, FewRowsGiveTallBands) {
    // 10 rows (9 lines and the trailing blank row) on a 191-pixel bar: 19.1 pixels a row.
    const auto bands = DiffBarBands({{1, 1, DiffKind::Orphan}, {4, 2, DiffKind::Changed}}, 10, 191);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_EQ(bands[0].Top, 0);
    EXPECT_EQ(bands[0].End, 19);
    EXPECT_EQ(bands[1].Top, 57);      // 191 * 3/10 = 57.3
    EXPECT_EQ(bands[1].End, 57 + 38); // 38.2 rounds to 38
    EXPECT_EQ(bands[1].ColourValue, ColourDifferRows);
}

TEST(DiffBar, ManyRowsDropBandsThatRoundToNothing) {
    const auto bands =
        DiffBarBands({{500, 1, DiffKind::Orphan}, {900, 400, DiffKind::Changed}}, 1000, 191);
    ASSERT_EQ(bands.size(), 1u);  // 0.191 pixels rounds to 0: not drawn
    EXPECT_EQ(bands[0].Top, 172); // 191 * 899/1000 = 171.7
    EXPECT_EQ(bands[0].End, 172 + 76);
}

TEST(DiffBar, HalfwayRoundsToEven) {
    // 4 rows on 10 pixels: 2.5 pixels a row.
    EXPECT_EQ(DiffBarBands({{1, 1, DiffKind::Orphan}}, 4, 10).at(0).End, 2);
    EXPECT_EQ(DiffBarBands({{1, 3, DiffKind::Orphan}}, 4, 10).at(0).End, 8); // 7.5 -> 8
    EXPECT_EQ(DiffBarMarkY(2, 4, 10), 2);
    EXPECT_EQ(DiffBarMarkY(1, 4, 10), 0);
}

TEST(DiffBar, PressesLandOnDataRows) {
    EXPECT_EQ(DiffBarTargetRow(0, 100, 191), 1);     // never the fixed row
    EXPECT_EQ(DiffBarTargetRow(191, 100, 191), 100); // the trailing blank row
    EXPECT_EQ(DiffBarTargetRow(95.5f, 100, 191), 50);
}

TEST(DetailRuns, CharacterRunsAreMaximalStretchesOfDifferences) {
    EXPECT_TRUE(CharacterRuns({true, true}).empty());
    const auto runs = CharacterRuns({false, true, true, false, false, true, false});
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].Start, 0);
    EXPECT_EQ(runs[0].Length, 1);
    EXPECT_EQ(runs[1].Start, 3);
    EXPECT_EQ(runs[1].Length, 2);
    EXPECT_EQ(runs[2].Start, 6); // a run reaching the last character
    EXPECT_EQ(runs[2].Length, 1);
    EXPECT_EQ(CharacterRuns({false, false, false}).at(0).Length, 3);
}

TEST(DetailRuns, WordRunsTakeTheBlankAheadOfAChangedWord) {
    std::u32string shown;
    const auto runs =
        WordRuns({U"new", U"red", U"big", U"car"}, {false, true, false, false}, shown);
    EXPECT_EQ(shown, U"new red big car");
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].Start, 0); // a changed first word has no blank ahead
    EXPECT_EQ(runs[0].Length, 3);
    EXPECT_EQ(runs[1].Start, 7);
    EXPECT_EQ(runs[1].Length, 4);
    EXPECT_EQ(runs[2].Start, 11); // neighbours join without a gap
    EXPECT_EQ(runs[2].Length, 4);
    EXPECT_TRUE(WordRuns({}, {}, shown).empty());
    EXPECT_EQ(shown, U"");
}

} // namespace
} // namespace orvane
