#pragma once
#include <vector>

namespace orvane::lcs {

// One mark per element of a sequence: true for an element of the common subsequence, false for
// one that differs.
using Marks = std::vector<bool>;

} // namespace orvane::lcs
