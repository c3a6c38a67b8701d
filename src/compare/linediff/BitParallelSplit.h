#pragma once
// An exact split for boxes where the O(ND) search gets expensive (many differences, moderate
// size): the longest common subsequence computed 64 items per machine word, run from both ends
// to the middle row, gives the column where a longest common subsequence crosses it. Its cost
// depends on the box's area, not on the number of differences.
#include "BigBuffer.h"
#include "Split.h"

#include <cstdint>
#include <optional>

namespace linediff {

class BitParallelSplitter {
  public:
    BitParallelSplitter(std::uint32_t classCount, std::size_t maxMaskBytes);

    // Word operations of one split of the box.
    static std::uint64_t Cost(Box box);
    // Empty when the box needs more mask memory than is allowed.
    std::optional<Split> Run(const std::uint32_t* a, const std::uint32_t* b, Box box);

  private:
    std::optional<Pos> Crossing(const std::uint32_t* bits, Pos nbits, const std::uint32_t* rows,
                                Pos nrows);
    Pos BestColumn(Pos nbits);
    bool BuildMasks(const std::uint32_t* bits, Pos nbits, const std::uint32_t* rows, Pos nrows,
                    std::uint32_t& symbols);
    void Forget(const std::uint32_t* bits, Pos nbits, const std::uint32_t* rows, Pos nrows);

    std::uint32_t classCount_;
    std::size_t maxMaskBytes_;
    BigVector<std::int32_t> maskOf_; // class -> its mask row, or a negative mark (made on use)
    BigVector<std::uint64_t> forwardMasks_, reverseMasks_, v_;
    BigVector<std::uint32_t> lcsOfTail_;
    std::size_t words_ = 0;
};

} // namespace linediff
