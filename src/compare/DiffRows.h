#pragma once
// The difference model: hunk lines of the line differ applied to the two grids, so that row r of
// one grid faces row r of the other, plus the list of differences that every later feature walks.
#include "results/FlexGrid.h"

#include <string>
#include <vector>

namespace orvane {

constexpr Colour ColourOrphanRows = RGB(247, 209, 161); // a line in one file only
constexpr Colour ColourDifferRows = RGB(208, 191, 217); // lines in both files that differ

// One item per hunk, in row order: "first row-row count-colour value".
using DiffList = std::vector<std::string>;

struct DiffItem {
    long FirstRow = 0;
    long RowCount = 0;
    Colour ColourValue = 0;
};
std::string FormatDiffItem(const DiffItem& item);
// False for an item that is not three numbers joined by '-'.
bool ParseDiffItem(const std::string& text, DiffItem& item);

// What the walk reads of the differ.
class DiffOutput {
  public:
    virtual ~DiffOutput() = default;
    virtual long OutputLineCount() const = 0;
    virtual std::string OutputLine(long Index) const = 0;
};

// Inserts the blank rows, colours the hunks and fills `list`. On any failure (a hunk outside the
// grids, a number that cannot be read) the grids are evened up to the same Rows, the user is told,
// and the result is false.
bool InsertDiffRowsInGrids(const DiffOutput& Engine, FlexGrid& original, FlexGrid& revised,
                           DiffList& list);

} // namespace orvane
