#include "SequenceCompare.h"

#include "AnchorSplit.h"
#include "BitParallelSplit.h"
#include "MiddleSnake.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace linediff {
namespace {

// Edit steps per wave before a box counts as too long to search exactly. Never below the point
// where the classic line differs give up, so whatever they find exactly is found exactly here.
constexpr Pos kMinCostCap = 4096;
constexpr std::uint64_t kUnlimited = std::numeric_limits<std::uint64_t>::max();

// Grows with the square root of the sizes, so a huge file still gets a search in proportion.
Pos CostCap(const SearchTuning& tuning, std::size_t n, std::size_t m) {
    if (tuning.costCap > 0) return tuning.costCap;
    return std::max(kMinCostCap, static_cast<Pos>(2 * std::sqrt(static_cast<double>(n + m))));
}

class Comparer {
  public:
    Comparer(const BigVector<std::uint32_t>& a, const BigVector<std::uint32_t>& b,
             std::uint32_t classCount, BigVector<std::uint8_t>& changedA,
             BigVector<std::uint8_t>& changedB, const SearchTuning& tuning)
        : a_(a.data()), b_(b.data()), changedA_(changedA), changedB_(changedB), tuning_(tuning),
          costCap_(CostCap(tuning, a.size(), b.size())), snakes_(a.size(), b.size()),
          bits_(classCount, tuning.maxMaskBytes), anchors_(classCount) {}

    // Boxes wait on a stack rather than in recursion: an approximate cut may be lopsided.
    void Run(Box whole) {
        std::vector<Box> pending{whole};
        while (!pending.empty()) {
            Box box = pending.back();
            pending.pop_back();
            if (!Trim(box)) continue;
            Split s = FindSplit(box);
            if (!Shrinks(box, s)) s = Split::At(box.xh, box.yl); // cannot happen; stays correct
            pending.push_back({s.x2, box.xh, s.y2, box.yh});
            pending.push_back({box.xl, s.x1, box.yl, s.y1});
        }
    }

  private:
    // Takes off equal heads and tails; marks a box with one empty side. False when done.
    bool Trim(Box& box) {
        while (box.xl < box.xh && box.yl < box.yh && a_[box.xl] == b_[box.yl])
            ++box.xl, ++box.yl;
        while (box.xl < box.xh && box.yl < box.yh && a_[box.xh - 1] == b_[box.yh - 1])
            --box.xh, --box.yh;
        if (box.xl == box.xh)
            std::fill(changedB_.begin() + box.yl, changedB_.begin() + box.yh, 1);
        else if (box.yl == box.yh)
            std::fill(changedA_.begin() + box.xl, changedA_.begin() + box.xh, 1);
        else
            return true;
        return false;
    }

    // A point on a shortest path through the box where finding one is affordable, else a guess.
    Split FindSplit(const Box& box) {
        std::uint64_t bitCost = BitParallelSplitter::Cost(box);
        // The O(ND) search goes first, being fastest with few differences; it hands over to the
        // bit-parallel split once it has spent about what that would cost.
        std::uint64_t patience =
            bitCost <= tuning_.maxBitParallelCost
                ? static_cast<std::uint64_t>(double(bitCost) * tuning_.workPerWordOp)
                : kUnlimited;
        SearchResult r = snakes_.Run(a_, b_, box, {costCap_, patience});
        if (r.outcome == SearchOutcome::TooCostly) {
            if (auto s = bits_.Run(a_, b_, box)) return *s;
            r = snakes_.Run(a_, b_, box, {costCap_, kUnlimited}); // its masks were too big
        }
        if (r.outcome == SearchOutcome::Found) return r.split;
        if (auto s = anchors_.Find(a_, b_, box)) return *s;
        return r.split;
    }

    static bool Shrinks(Box box, Split s) {
        bool inside = box.xl <= s.x1 && s.x1 <= s.x2 && s.x2 <= box.xh && box.yl <= s.y1 &&
                      s.y1 <= s.y2 && s.y2 <= box.yh;
        bool leftSmaller = s.x1 - box.xl + s.y1 - box.yl < box.Width() + box.Height();
        bool rightSmaller = box.xh - s.x2 + box.yh - s.y2 < box.Width() + box.Height();
        return inside && leftSmaller && rightSmaller;
    }

    const std::uint32_t* a_;
    const std::uint32_t* b_;
    BigVector<std::uint8_t>& changedA_;
    BigVector<std::uint8_t>& changedB_;
    SearchTuning tuning_;
    Pos costCap_;
    MiddleSnakeSearch snakes_;
    BitParallelSplitter bits_;
    AnchorFinder anchors_;
};

} // namespace

void CompareSequences(const BigVector<std::uint32_t>& a, const BigVector<std::uint32_t>& b,
                      std::uint32_t classCount, BigVector<std::uint8_t>& changedA,
                      BigVector<std::uint8_t>& changedB, const SearchTuning& tuning) {
    Comparer comparer(a, b, classCount, changedA, changedB, tuning);
    comparer.Run({0, static_cast<Pos>(a.size()), 0, static_cast<Pos>(b.size())});
}

} // namespace linediff
