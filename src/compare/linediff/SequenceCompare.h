#pragma once
// Finds a shortest edit script between two sequences of class numbers, marking every item that
// is not part of the common subsequence. Divide and conquer over boxes of the edit graph: equal
// heads and tails are taken off, then a box is cut where a shortest path crosses it (middle snake
// or bit-parallel split); only boxes too big for both fall back to an approximate cut.
#include "BigBuffer.h"
#include "Split.h"

#include <cstdint>
#include <vector>

namespace linediff {

// How hard the search tries before it changes strategy. The defaults are measured; tests lower
// them to drive every strategy on small inputs.
struct SearchTuning {
    Pos costCap = 0;            // edit steps per wave; 0: from the sizes
    double workPerWordOp = 0.4; // O(ND) steps (diagonal or snake) as costly as one word operation
    std::uint64_t maxBitParallelCost = std::uint64_t(1) << 27; // word operations per split
    std::size_t maxMaskBytes = std::size_t(64) << 20;          // bit-parallel memory per split
};

// `changedA` / `changedB` are sized like `a` / `b`; changed items are set to 1.
void CompareSequences(const BigVector<std::uint32_t>& a, const BigVector<std::uint32_t>& b,
                      std::uint32_t classCount, BigVector<std::uint8_t>& changedA,
                      BigVector<std::uint8_t>& changedB, const SearchTuning& tuning = {});

} // namespace linediff
