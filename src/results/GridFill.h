#pragma once
// Filling and emptying the two result grids.
#include "results/FlexGrid.h"

#include <string>

namespace orvane {

// Loads each file into its grid, one row per line ahead of the trailing blank row, with the cell
// text " N:line" (or " line" without numbers) and tabs shown as three blanks. False after a
// reported failure.
bool LoadFilesIntoGrids(const std::string& OriginalPath, const std::string& RevisedPath,
                        FlexGrid& original, FlexGrid& revised, bool ShowLineNumbers);

// Redraw off, cells cleared, both grids down to the fixed row and one blank row.
void PrepareGridForNewComparison(FlexGrid& original, FlexGrid& revised);
void RemoveRowsInGrids(FlexGrid& original, FlexGrid& revised);

// The line a cell holds: after the first ':' when numbers are shown now, else the whole cell.
std::string LineTextOfCell(const std::string& cell, bool ShowLineNumbers);

} // namespace orvane
