#include "results/WindowLayout.h"

#include <cmath>

namespace orvane {

std::int32_t RoundToInt32(double value) {
    return static_cast<std::int32_t>(std::nearbyint(value)); // the default mode ties to even
}

namespace {

void TwoWindowLayout(WindowRegions& r, float outerWidth, std::int32_t gridHeight) {
    r.cboOriginalFile.Left = r.grdOriginalFile.Left;
    if (!(r.grdOriginalFile.Width > outerWidth)) {
        r.cboOriginalFile.Width = r.grdOriginalFile.Width;
    } else {
        r.grdOriginalFile.Width = outerWidth;
        r.cboOriginalFile.Width = outerWidth;
    }
    r.OriginalColWidth = RoundToInt32(r.grdOriginalFile.Width);
    if (gridHeight >= 0) r.grdOriginalFile.Height = static_cast<float>(gridHeight);
    auto placeRevised = [&r] {
        r.grdRevisedFile.Left = r.grdOriginalFile.Left + r.grdOriginalFile.Width + 25;
        r.cboRevisedFile.Left = r.grdRevisedFile.Left;
    };
    placeRevised();
    const float w = outerWidth - r.grdOriginalFile.Width - 25 - LayoutMargin * 3;
    r.grdRevisedFile.Width = w < 0 ? 0 : w;
    placeRevised();
    r.cboRevisedFile.Width = r.grdRevisedFile.Width > 0 ? r.grdRevisedFile.Width : 0;
    r.RevisedColWidth = RoundToInt32(r.grdRevisedFile.Width);
    r.grdRevisedFile.Height = r.grdOriginalFile.Height;
    r.rtfLineDiff0.Top = r.grdOriginalFile.Top + static_cast<float>(gridHeight);
    r.rtfLineDiff1.Top = r.rtfLineDiff0.Top + r.rtfLineDiff0.Height;
    r.rtfLineDiff0.Width = outerWidth - r.rtfLineDiff0.Left - 75;
    r.rtfLineDiff1.Width = r.rtfLineDiff0.Width;
    r.Splitter = {r.grdOriginalFile.Left + r.grdOriginalFile.Width, r.cboOriginalFile.Top, 25,
                  r.grdOriginalFile.Top + r.grdOriginalFile.Height - r.cboOriginalFile.Top};
}

void OneWindowLayout(WindowRegions& r, float outerWidth) {
    r.cboOriginalFile.Left = 2;
    r.cboOriginalFile.Width = outerWidth / 2 - 25;
    r.cboRevisedFile.Left = r.cboOriginalFile.Left + r.cboOriginalFile.Width + 25;
    r.cboRevisedFile.Width = r.cboOriginalFile.Width - 25 - 100;
}

} // namespace

void FormResize(WindowRegions& r, float outerWidth, float scaleHeight, float scrollBarWidth,
                bool twoWindow) {
    const std::int32_t gridHeight = RoundToInt32(static_cast<double>(scaleHeight) -
                                                 2.0 * r.rtfLineDiff0.Height - LayoutMargin * 4.2);
    if (twoWindow)
        TwoWindowLayout(r, outerWidth, gridHeight);
    else
        OneWindowLayout(r, outerWidth);
    r.ctlDiffReport.Left = 2;
    r.ctlDiffReport.Top = r.grdOriginalFile.Top;
    const std::int32_t h = RoundToInt32(static_cast<double>(scaleHeight) - LayoutMargin * 4.2);
    r.ctlDiffReport.Height = h >= 1 ? static_cast<float>(h) : 0;
    const std::int32_t w = RoundToInt32(static_cast<double>(outerWidth) - scrollBarWidth + 100);
    r.ctlDiffReport.Width = w >= 1 ? static_cast<float>(w) : 0;
}

void SplitterDrag::MoveHandle(WindowRegions& r, float x) {
    r.Splitter = {r.Splitter.Left + x, r.grdOriginalFile.Top, 25, r.grdOriginalFile.Height};
    anchor_ = RoundToInt32(x);
}

void SplitterDrag::MouseDown(WindowRegions& r, int button, float x) {
    if (button != 1) {
        if (Dragging()) MouseUp(r, x);
        anchor_ = NoSplitterDrag;
        return;
    }
    anchor_ = RoundToInt32(x);
}

void SplitterDrag::MouseMove(WindowRegions& r, float x) {
    if (!Dragging() || RoundToInt32(x) == anchor_) return;
    if (r.grdOriginalFile.Left < r.Splitter.Left + x) MoveHandle(r, x);
}

bool SplitterDrag::MouseUp(WindowRegions& r, float x) {
    if (!Dragging()) return false;
    if (RoundToInt32(x) != anchor_) MoveHandle(r, x);
    anchor_ = NoSplitterDrag;
    if (r.grdOriginalFile.Left < r.Splitter.Left) {
        r.grdOriginalFile.Width = r.Splitter.Left - r.grdOriginalFile.Left;
        r.cboOriginalFile.Width = r.grdOriginalFile.Width;
    }
    return true;
}

} // namespace orvane
