#pragma once
// The O(ND) search of the middle snake in linear space: a forward and a backward wave of
// furthest-reaching paths meet on a point that lies on a shortest edit path through the box.
#include "BigBuffer.h"
#include "Split.h"

#include <cstdint>

namespace linediff {

struct SearchLimits {
    Pos maxCost;           // edit steps per wave before giving up with the furthest point
    std::uint64_t maxWork; // diagonals visited plus items compared before handing over
};

enum class SearchOutcome {
    Found,    // `split` lies on a shortest path
    TooLong,  // maxCost reached; `split` is the point that got furthest from its corner
    TooCostly // maxWork reached; no split
};

struct SearchResult {
    SearchOutcome outcome;
    Split split;
};

class MiddleSnakeSearch {
  public:
    // n, m: lengths of the whole sequences, so one allocation serves every box in them.
    MiddleSnakeSearch(std::size_t n, std::size_t m);
    // The box must hold items on both sides and differ at its first and last items.
    SearchResult Run(const std::uint32_t* a, const std::uint32_t* b, Box box, SearchLimits limits);

  private:
    Pos Forward(const std::uint32_t* a, const std::uint32_t* b, const Box& box, bool meet,
                std::uint64_t& work);
    Pos Backward(const std::uint32_t* a, const std::uint32_t* b, const Box& box, bool meet,
                 std::uint64_t& work);
    Split Furthest(const Box& box) const;

    // Furthest x per diagonal of each wave, and the diagonals each wave covers.
    BigArray<Pos> forward_, backward_;
    Pos* fd_;
    Pos* bd_;
    Pos fmin_ = 0, fmax_ = 0, bmin_ = 0, bmax_ = 0;
};

} // namespace linediff
