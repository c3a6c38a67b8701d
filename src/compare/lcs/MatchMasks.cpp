#include "compare/lcs/MatchMasks.h"

#include <algorithm>
#include <numeric>

namespace orvane::lcs {

MatchMasks::MatchMasks(std::span<const std::uint32_t> a, std::uint32_t alphabet,
                       std::size_t budgetWords)
    : words_(WordsFor(a.size())), alphabet_(alphabet), fullRow_(alphabet, -1) {
    std::vector<std::size_t> counts(alphabet, 0);
    for (std::uint32_t s : a)
        ++counts[s];
    BuildFullRows(a, counts, budgetWords);
    BuildPositions(a, counts);
}

void MatchMasks::BuildFullRows(std::span<const std::uint32_t> a,
                               const std::vector<std::size_t>& counts, std::size_t budgetWords) {
    std::vector<std::uint32_t> order(alphabet_);
    std::iota(order.begin(), order.end(), 0u);
    if (std::size_t{alphabet_} * words_ > budgetWords) {
        std::stable_sort(order.begin(), order.end(),
                         [&](std::uint32_t x, std::uint32_t y) { return counts[x] > counts[y]; });
    }
    std::size_t rows = 0;
    for (std::uint32_t s : order) {
        if ((rows + 1) * words_ > budgetWords) break;
        fullRow_[s] = static_cast<std::int64_t>(rows++);
    }
    rows_.assign(rows * words_, 0);
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::int64_t row = fullRow_[a[i]];
        if (row >= 0)
            rows_[static_cast<std::size_t>(row) * words_ + i / kWordBits] |= BitWord{1}
                                                                             << (i % kWordBits);
    }
}

void MatchMasks::BuildPositions(std::span<const std::uint32_t> a,
                                const std::vector<std::size_t>& counts) {
    positionStart_.assign(std::size_t{alphabet_} + 1, 0);
    for (std::uint32_t s = 0; s < alphabet_; ++s)
        positionStart_[s + 1] = positionStart_[s] + (fullRow_[s] < 0 ? counts[s] : 0);
    positions_.resize(positionStart_[alphabet_]);
    std::vector<std::size_t> next(positionStart_.begin(), positionStart_.end() - 1);
    for (std::size_t i = 0; i < a.size(); ++i)
        if (fullRow_[a[i]] < 0) positions_[next[a[i]]++] = i;
}

const BitWord* MatchMasks::Row(std::uint32_t symbol, std::size_t lo, std::size_t hi,
                               BitWord* scratch) const {
    const std::int64_t row = fullRow_[symbol];
    if (row >= 0) return rows_.data() + static_cast<std::size_t>(row) * words_ + lo;
    std::fill(scratch, scratch + (hi - lo + 1), BitWord{0});
    const auto begin = positions_.begin() + static_cast<std::ptrdiff_t>(positionStart_[symbol]);
    const auto end = positions_.begin() + static_cast<std::ptrdiff_t>(positionStart_[symbol + 1]);
    const std::size_t firstBit = lo * kWordBits, endBit = (hi + 1) * kWordBits;
    for (auto p = std::lower_bound(begin, end, firstBit); p != end && *p < endBit; ++p) {
        const std::size_t bit = *p - firstBit;
        scratch[bit / kWordBits] |= BitWord{1} << (bit % kWordBits);
    }
    return scratch;
}

} // namespace orvane::lcs
