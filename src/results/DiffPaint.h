#pragma once
// The grids painted from the aligned rows of a comparison: blank rows inserted where a side has
// none, blocks coloured by kind.
#include "compare/DiffRows.h"
#include "results/FlexGrid.h"

namespace orvane {

constexpr Colour ColourOrphanRows = RGB(247, 209, 161); // a line in one file only
constexpr Colour ColourDifferRows = RGB(208, 191, 217); // lines in both files that differ

constexpr Colour DiffColour(DiffKind kind) {
    return kind == DiffKind::Orphan ? ColourOrphanRows : ColourDifferRows;
}

// Applies `alignment` to the two grids, loaded with the files' lines. When the walk was not
// complete or a block lies outside the grids, the grids are evened up to the same Rows, the user
// is told, and the result is false.
bool PaintAlignment(const Alignment& alignment, FlexGrid& original, FlexGrid& revised);

} // namespace orvane
