#pragma once
// Where the difference commands go from a row. Both compare with the first row of a block, so
// Previous from inside a block goes to the block's own first row.
#include "compare/DiffRows.h"

namespace orvane {

inline constexpr long kNoMoreDiffs = -1;

long NextDiffRow(const DiffList& list, long current);
long PreviousDiffRow(const DiffList& list, long current);
// The first row of entry `position` (1-based); throws when there is no such entry.
long DiffRowAt(const DiffList& list, std::size_t position);

} // namespace orvane
