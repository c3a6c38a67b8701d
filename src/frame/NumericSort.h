#pragma once
#include <string>
#include <vector>

namespace orvane {

// Replaces Items by the same values in ascending order; fewer than two items stay as they are.
void SortLongCollection(std::vector<long>& Items);

// The leading number of a text, as a classic Val(): blanks skipped, stops at the first character
// that cannot continue a number; 0 when there is none.
double Val(const std::string& Text);

} // namespace orvane
