#pragma once
// The split of last resort for a box too big for an exact search: lines that occur once on each
// side are paired, the longest chain of pairs in the same order on both sides is kept, and the
// box is cut around the longest run of equal lines through one of those pairs. Long unique runs
// are where two versions of a page line up; cutting there keeps the rewritten parts apart.
#include "BigBuffer.h"
#include "Split.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace linediff {

class AnchorFinder {
  public:
    explicit AnchorFinder(std::uint32_t classCount);
    // Empty when no line is unique on both sides of the box.
    std::optional<Split> Find(const std::uint32_t* a, const std::uint32_t* b, Box box);

  private:
    struct Pair {
        Pos x, y;
    };
    void CollectPairs(const std::uint32_t* a, const std::uint32_t* b, Box box);
    std::vector<Pair> LongestChain() const;

    std::uint32_t classCount_;
    BigVector<std::uint32_t> countA_, countB_; // made on first use
    BigVector<Pos> whereB_;
    BigVector<Pair> pairs_;
};

} // namespace linediff
