#include "results/WindowLayout.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(WindowLayout, WorkedExample) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, true);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Height, 5040);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Left, 5380);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Width, 4940);
    EXPECT_FLOAT_EQ(r.rtfLineDiff0.Top, 5910);
    EXPECT_FLOAT_EQ(r.rtfLineDiff1.Top, 6285);
    EXPECT_FLOAT_EQ(r.rtfLineDiff0.Width, 9825);
    EXPECT_FLOAT_EQ(r.rtfLineDiff1.Width, 9825);
    EXPECT_FLOAT_EQ(r.Splitter.Left, 5355);
    EXPECT_FLOAT_EQ(r.Splitter.Top, 540);
    EXPECT_FLOAT_EQ(r.Splitter.Top + r.Splitter.Height, 5910);
    EXPECT_FLOAT_EQ(r.cboRevisedFile.Left, 5380);
    EXPECT_EQ(r.OriginalColWidth, 4845);
    EXPECT_EQ(r.RevisedColWidth, 4940);
    // the Revised grid ends 90 left of the outer right edge
    EXPECT_FLOAT_EQ(10410 - (r.grdRevisedFile.Left + r.grdRevisedFile.Width), 90);
}

TEST(WindowLayout, NarrowAndLowWindowsNeverGoNegative) {
    WindowRegions r;
    FormResize(r, 3000, 1000, 255, true);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Width, 0);
    EXPECT_FLOAT_EQ(r.cboRevisedFile.Width, 0);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Height, 4995); // negative grid height: the height stays
    EXPECT_FLOAT_EQ(r.rtfLineDiff0.Top, 870 + (1000 - 750 - 840)); // ...but the detail still moves
    FormResize(r, 50, 100, 255, false);
    EXPECT_FLOAT_EQ(r.ctlDiffReport.Height, 0);
    EXPECT_FLOAT_EQ(r.ctlDiffReport.Width, 0);
}

TEST(WindowLayout, OneWindowBoxesAreLopsided) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, false);
    EXPECT_FLOAT_EQ(r.cboOriginalFile.Left, 2);
    EXPECT_FLOAT_EQ(r.cboOriginalFile.Width, 5180);
    EXPECT_FLOAT_EQ(r.cboRevisedFile.Left, 5207);
    EXPECT_FLOAT_EQ(r.cboRevisedFile.Width, 5055);
    EXPECT_FLOAT_EQ(r.ctlDiffReport.Height, 5790);
    EXPECT_FLOAT_EQ(r.ctlDiffReport.Width, 10255);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 4845); // the grids keep their last place
}

TEST(WindowLayout, RoundingIsToEven) {
    EXPECT_EQ(RoundToInt32(2.5), 2);
    EXPECT_EQ(RoundToInt32(3.5), 4);
    EXPECT_EQ(RoundToInt32(-2.5), -2);
}

TEST(SplitterDrag, GridsFollowOnRelease) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, true);
    SplitterDrag drag;
    drag.MouseDown(r, 1, 10);
    drag.MouseMove(r, 1010); // x is the pointer's place inside the handle
    EXPECT_FLOAT_EQ(r.Splitter.Left, 6365);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 4845); // only the handle moves while held
    EXPECT_TRUE(drag.MouseUp(r, 1010));
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 5855);
    FormResize(r, 10410, 6630, 255, true);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Left, 6390);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Width, 3930);
}

TEST(SplitterDrag, LeftOfTheGridIsRefusedWhileHeldButNotOnRelease) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, true);
    SplitterDrag drag;
    drag.MouseDown(r, 1, 0);
    drag.MouseMove(r, -5000);
    EXPECT_FLOAT_EQ(r.Splitter.Left, 5355);
    EXPECT_TRUE(drag.MouseUp(r, -5000));
    EXPECT_FLOAT_EQ(r.Splitter.Left, 355);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 4845); // kept: the last test fails
    FormResize(r, 10410, 6630, 255, true);
    EXPECT_FLOAT_EQ(r.Splitter.Left, 5355); // the next layout puts the handle back
}

TEST(SplitterDrag, FarRightIsCappedByTheNextLayout) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, true);
    SplitterDrag drag;
    drag.MouseDown(r, 1, 0);
    drag.MouseUp(r, 20000);
    FormResize(r, 10410, 6630, 255, true);
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 10410);
    EXPECT_FLOAT_EQ(r.grdRevisedFile.Width, 0);
}

TEST(SplitterDrag, ARightClickEndsTheDragAsARelease) {
    WindowRegions r;
    FormResize(r, 10410, 6630, 255, true);
    SplitterDrag drag;
    drag.MouseDown(r, 1, 0);
    drag.MouseDown(r, 2, 500);
    EXPECT_FALSE(drag.Dragging());
    EXPECT_FLOAT_EQ(r.grdOriginalFile.Width, 5345);
    drag.MouseMove(r, 900); // no drag any more
    EXPECT_FLOAT_EQ(r.Splitter.Left, 5855);
}

} // namespace
} // namespace orvane
