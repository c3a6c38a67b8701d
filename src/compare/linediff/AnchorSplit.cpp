#include "AnchorSplit.h"

#include <algorithm>

namespace linediff {

AnchorFinder::AnchorFinder(std::uint32_t classCount) : classCount_(classCount) {}

void AnchorFinder::CollectPairs(const std::uint32_t* a, const std::uint32_t* b, Box box) {
    if (countA_.empty()) {
        countA_.assign(classCount_, 0);
        countB_.assign(classCount_, 0);
        whereB_.assign(classCount_, 0);
    }
    for (Pos x = box.xl; x < box.xh; ++x)
        ++countA_[a[x]];
    for (Pos y = box.yl; y < box.yh; ++y)
        ++countB_[b[y]], whereB_[b[y]] = y;
    pairs_.clear();
    for (Pos x = box.xl; x < box.xh; ++x)
        if (countA_[a[x]] == 1 && countB_[a[x]] == 1) pairs_.push_back({x, whereB_[a[x]]});
    for (Pos x = box.xl; x < box.xh; ++x)
        countA_[a[x]] = 0;
    for (Pos y = box.yl; y < box.yh; ++y)
        countB_[b[y]] = 0;
}

// Longest run of pairs increasing on both sides (pairs_ is in Original order already).
std::vector<AnchorFinder::Pair> AnchorFinder::LongestChain() const {
    std::vector<std::size_t> tails, before(pairs_.size());
    for (std::size_t i = 0; i < pairs_.size(); ++i) {
        auto it = std::lower_bound(tails.begin(), tails.end(), pairs_[i].y,
                                   [&](std::size_t t, Pos y) { return pairs_[t].y < y; });
        before[i] = it == tails.begin() ? SIZE_MAX : *(it - 1);
        if (it == tails.end())
            tails.push_back(i);
        else
            *it = i;
    }
    std::vector<Pair> chain;
    for (std::size_t i = tails.empty() ? SIZE_MAX : tails.back(); i != SIZE_MAX; i = before[i])
        chain.push_back(pairs_[i]);
    std::reverse(chain.begin(), chain.end());
    return chain;
}

std::optional<Split> AnchorFinder::Find(const std::uint32_t* a, const std::uint32_t* b, Box box) {
    CollectPairs(a, b, box);
    std::optional<Split> best;
    Pos bestLength = 0, coveredTo = box.xl;
    for (Pair p : LongestChain()) {
        if (p.x < coveredTo) continue; // inside the run found from an earlier pair
        Pos x1 = p.x, y1 = p.y, x2 = p.x + 1, y2 = p.y + 1;
        while (x1 > box.xl && y1 > box.yl && a[x1 - 1] == b[y1 - 1])
            --x1, --y1;
        while (x2 < box.xh && y2 < box.yh && a[x2] == b[y2])
            ++x2, ++y2;
        coveredTo = x2;
        if (x2 - x1 > bestLength) bestLength = x2 - x1, best = Split{x1, y1, x2, y2};
    }
    return best;
}

} // namespace linediff
