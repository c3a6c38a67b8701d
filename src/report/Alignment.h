#pragma once
// Two atom lists aligned: which atoms are equal and to which atom of the other side, with small
// equal islands between changes merged into the change so an edited sentence reads as one.
#include "report/Atoms.h"

#include <cstdint>
#include <vector>

namespace orvane::report {

inline constexpr std::int64_t kNoMatch = -1;

struct AtomAlignment {
    std::vector<std::int64_t> matchA, matchB; // index of the equal atom on the other side
    // Equal content atoms (not boundaries) before each index, one more entry than atoms.
    std::vector<std::uint32_t> equalBeforeA, equalBeforeB;
    std::size_t minimalChangedWords = 0; // words changed before islands were merged
};

AtomAlignment AlignAtoms(const AtomList& a, const AtomList& b);

} // namespace orvane::report
