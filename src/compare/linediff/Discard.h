#pragma once
// A line whose class never occurs in the other file can match nothing. Such lines are marked
// changed at once and left out of the search: the result stays minimal and the search shrinks,
// often by far (rewritten text is mostly lines of its own).
#include "EquivalenceClasses.h"

#include <cstdint>

namespace linediff {

struct ReducedSequences {
    BigVector<std::uint32_t> a, b;         // classes of the lines kept
    BigVector<std::uint32_t> lineA, lineB; // kept item -> its line number (from 0)
};

// Marks the dropped lines in `changedA` / `changedB` (one flag per line, already sized).
ReducedSequences DiscardUnmatched(const ClassIds& ids, BigVector<std::uint8_t>& changedA,
                                  BigVector<std::uint8_t>& changedB);

} // namespace linediff
