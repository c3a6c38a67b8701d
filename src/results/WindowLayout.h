#pragma once
// The main window's own layout arithmetic, in twips (1440 to the inch), with no toolkit: where
// each region goes when the window changes size, and the drag of the splitter between the grids.
#include <cstdint>

namespace orvane {

struct Region {
    float Left = 0, Top = 0, Width = 0, Height = 0;
};

struct WindowRegions {
    // Design places; the client area at design time is 10290 by 6630.
    Region cboOriginalFile{540, 540, 4815, 315};
    Region cboRevisedFile{5400, 540, 4815, 315};
    Region grdOriginalFile{510, 870, 4845, 4995};
    Region grdRevisedFile{5400, 870, 4845, 4995};
    Region Splitter{5340, 540, 25, 5175};
    Region rtfLineDiff0{510, 5880, 9795, 375};
    Region rtfLineDiff1{510, 6240, 9795, 375};
    Region ctlDiffReport{600, 3150, 7845, 2655};
    std::int32_t OriginalColWidth = 4845;
    std::int32_t RevisedColWidth = 4845;
};

inline constexpr std::int16_t LayoutMargin = 200;
inline constexpr std::int32_t NoSplitterDrag = 2147483647;

// Round half to even, as every conversion of a float to a whole number here does.
std::int32_t RoundToInt32(double value);

// Lays the regions out for a window of `outerWidth` (frame included) and inner `scaleHeight`,
// with the vertical scroll bar `scrollBarWidth` wide; `twoWindow` is the grids' layout.
void FormResize(WindowRegions& r, float outerWidth, float scaleHeight, float scrollBarWidth,
                bool twoWindow);

// The splitter drag: only the handle moves while the button is held; the grids follow on release.
class SplitterDrag {
  public:
    // Left button (1) starts a drag; any other button ends one as a release at x would.
    void MouseDown(WindowRegions& r, int button, float x);
    void MouseMove(WindowRegions& r, float x);
    // True when the layout must run again.
    bool MouseUp(WindowRegions& r, float x);
    bool Dragging() const { return anchor_ != NoSplitterDrag; }

  private:
    void MoveHandle(WindowRegions& r, float x);
    std::int32_t anchor_ = NoSplitterDrag;
};

} // namespace orvane
