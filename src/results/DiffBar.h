#pragma once
// The difference bar's arithmetic: bands of the difference list at the bar's scale, the mark of
// the current row, and the row under a press. Whole numbers round half to even.
#include "compare/DiffRows.h"
#include "results/DiffPaint.h"

#include <vector>

namespace orvane {

struct BarBand {
    int Top = 0; // first pixel row
    int End = 0; // one past the last pixel row
    Colour ColourValue = 0;
};

// RowSpan is the grid's Rows less the fixed row. A band that rounds to no height is left out.
std::vector<BarBand> DiffBarBands(const DiffList& list, long rowSpan, int barHeight);
int DiffBarMarkY(long row, long rowSpan, int barHeight);
// The row at pixel y of the bar; never the fixed row.
long DiffBarTargetRow(float y, long rowSpan, int barHeight);

} // namespace orvane
