#pragma once
// The search of the two grids: by line, on what the grid shows (line numbers included), without
// regard to letter case. The selected row itself is never searched, and each direction finishes
// one grid before it starts the other.
#include "results/FlexGrid.h"

#include <string>

namespace orvane {

// Direction is "Next", "Previous" or "Both" in any case; anything else finds nothing. SearchText
// is UTF-8. FoundRow is set only when something is found.
bool FindInGrids(const FlexGrid& original, const FlexGrid& revised, const std::string& SearchText,
                 const std::string& Direction, long& FoundRow);

} // namespace orvane
