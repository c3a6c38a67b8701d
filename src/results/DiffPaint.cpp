#include "results/DiffPaint.h"

#include "frame/Prompter.h"
#include "frame/YieldPoint.h"

#include <algorithm>

namespace orvane {
namespace {

// In row order, so that each row number is where the walk placed it.
void InsertBlankRows(const AlignedSide& side, FlexGrid& grid, YieldPoint& yield) {
    for (std::size_t r = 0; r < side.size(); ++r) {
        if (!side[r].Inserted) continue;
        yield();
        grid.AddItem("", static_cast<long>(r));
    }
}

void ColourBlocks(const AlignedSide& side, FlexGrid& grid) {
    for (std::size_t r = 0; r < side.size();) {
        const RowKind kind = side[r].Kind;
        std::size_t end = r + 1;
        while (end < side.size() && side[end].Kind == kind)
            ++end;
        if (kind == RowKind::Orphan || kind == RowKind::Changed) {
            grid.SetRow(static_cast<long>(r));
            grid.SetRowSel(static_cast<long>(end - 1));
            grid.SetCellBackColor(kind == RowKind::Orphan ? ColourOrphanRows : ColourDifferRows);
        }
        r = end;
    }
}

void EvenUpRows(FlexGrid& original, FlexGrid& revised) {
    const long rows = std::max(original.Rows(), revised.Rows());
    while (original.Rows() < rows)
        original.AddItem("");
    while (revised.Rows() < rows)
        revised.AddItem("");
}

} // namespace

bool PaintAlignment(const Alignment& alignment, FlexGrid& original, FlexGrid& revised) {
    try {
        YieldPoint yield;
        InsertBlankRows(alignment.Original, original, yield);
        InsertBlankRows(alignment.Revised, revised, yield);
        ColourBlocks(alignment.Original, original);
        ColourBlocks(alignment.Revised, revised);
        if (alignment.Complete) return true;
    } catch (...) {
    }
    EvenUpRows(original, revised);
    prompter().MsgBox("Not able to show the file differences.\r\n\r\nThis can happen if the "
                      "files contain non-ASCII characters.",
                      MsgIcon::Critical, "Show File Differences");
    return false;
}

} // namespace orvane
