#pragma once
// The difference model: hunk lines of the line differ walked into aligned rows, so that row r of
// one side faces row r of the other, plus the list of differences that every later feature walks.
// The results layer paints its grids from this value.
#include <string>
#include <vector>

namespace orvane {

// What a row of one side holds once the two sides are aligned.
enum class RowKind : unsigned char {
    Same,    // a line that faces an equal line
    Changed, // part of a block of lines in both files that differ
    Orphan,  // a line in this file only
    Gap,     // an inserted blank row facing the other side's orphans
};

struct AlignedRow {
    RowKind Kind = RowKind::Same;
    // True for a blank row put in to align the sides. A changed block pads its shorter side with
    // inserted rows that are painted as changed; a gap is always inserted.
    bool Inserted = false;
};

// One side's rows by row number (the row of line n is n before any insertion; row 0 is the
// grid's fixed row). Rows past the end are Same.
using AlignedSide = std::vector<AlignedRow>;

enum class DiffKind : unsigned char { Orphan, Changed };

// One item per block, in row order.
struct DiffItem {
    long FirstRow = 0;
    long RowCount = 0;
    DiffKind Kind = DiffKind::Orphan;
    bool operator==(const DiffItem&) const = default;
};
using DiffList = std::vector<DiffItem>;

// What the walk reads of the differ.
class DiffOutput {
  public:
    virtual ~DiffOutput() = default;
    virtual long OutputLineCount() const = 0;
    virtual std::string OutputLine(long Index) const = 0;
};

struct Alignment {
    AlignedSide Original;
    AlignedSide Revised;
    DiffList Diffs;
    // False when a hunk could not be read; the rows of the hunks before it are kept.
    bool Complete = true;
};

// Walks the differ's hunks. Lets events run between lines.
Alignment AlignRows(const DiffOutput& Engine);

} // namespace orvane
