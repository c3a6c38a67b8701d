#include "BitParallelSplit.h"

#include <algorithm>

namespace linediff {
namespace {

constexpr std::int32_t kAbsent = -1; // class not in the box
constexpr std::int32_t kInRows = -2; // class among the rows but not among the bit items

// One row of the bit-vector recurrence: V' = (V + (V & M)) | (V & ~M). After all rows, the zero
// bits of V among the first i positions count the longest common subsequence of those i items.
void AddRow(std::uint64_t* v, const std::uint64_t* mask, std::size_t words) {
    std::uint64_t carry = 0;
    for (std::size_t w = 0; w < words; ++w) {
        std::uint64_t x = v[w], m = mask[w], sum = x + (x & m);
        std::uint64_t c1 = sum < x;
        std::uint64_t total = sum + carry;
        carry = c1 | (total < sum);
        v[w] = total | (x & ~m);
    }
}

inline bool BitIsZero(const std::uint64_t* v, Pos i) {
    return !((v[i >> 6] >> (i & 63)) & 1);
}

} // namespace

BitParallelSplitter::BitParallelSplitter(std::uint32_t classCount, std::size_t maxMaskBytes)
    : classCount_(classCount), maxMaskBytes_(maxMaskBytes) {}

std::uint64_t BitParallelSplitter::Cost(Box box) {
    auto n = static_cast<std::uint64_t>(box.Width()), m = static_cast<std::uint64_t>(box.Height());
    // Bits go along the shorter side; every item of the longer one is a row.
    return (std::min(n, m) + 63) / 64 * std::max(n, m) + n + m;
}

std::optional<Split> BitParallelSplitter::Run(const std::uint32_t* a, const std::uint32_t* b,
                                              Box box) {
    if (maskOf_.empty()) maskOf_.assign(classCount_, kAbsent);
    if (box.Width() <= box.Height()) {
        auto x = Crossing(a + box.xl, box.Width(), b + box.yl, box.Height());
        if (!x) return std::nullopt;
        return Split::At(box.xl + *x, box.yl + box.Height() / 2);
    }
    auto y = Crossing(b + box.yl, box.Height(), a + box.xl, box.Width());
    if (!y) return std::nullopt;
    return Split::At(box.xl + box.Width() / 2, box.yl + *y);
}

// Where a longest common subsequence crosses the middle row: the bit position i that makes
// LCS(bits[0, i), rows[0, mid)) + LCS(bits[i, n), rows[mid, n)) largest.
std::optional<Pos> BitParallelSplitter::Crossing(const std::uint32_t* bits, Pos nbits,
                                                 const std::uint32_t* rows, Pos nrows) {
    words_ = static_cast<std::size_t>(nbits + 63) / 64;
    std::uint32_t symbols = 0;
    bool fits = BuildMasks(bits, nbits, rows, nrows, symbols);
    if (fits) {
        const Pos mid = nrows / 2;
        v_.assign(2 * words_, ~std::uint64_t(0));
        for (Pos j = 0; j < mid; ++j)
            if (std::int32_t k = maskOf_[rows[j]]; k >= 0)
                AddRow(v_.data(), &forwardMasks_[std::size_t(k) * words_], words_);
        for (Pos j = nrows - 1; j >= mid; --j)
            if (std::int32_t k = maskOf_[rows[j]]; k >= 0)
                AddRow(v_.data() + words_, &reverseMasks_[std::size_t(k) * words_], words_);
    }
    Forget(bits, nbits, rows, nrows);
    if (!fits) return std::nullopt;
    return BestColumn(nbits);
}

// Reads both halves' LCS rows off the bit vectors and adds them up column by column.
Pos BitParallelSplitter::BestColumn(Pos nbits) {
    const std::uint64_t* front = v_.data();
    const std::uint64_t* back = v_.data() + words_;
    // lcsOfTail_[t]: LCS of the last t bit items with the lower rows.
    lcsOfTail_.assign(static_cast<std::size_t>(nbits) + 1, 0);
    for (Pos t = 0; t < nbits; ++t)
        lcsOfTail_[t + 1] = lcsOfTail_[t] + BitIsZero(back, t);
    Pos best = 0;
    std::uint32_t bestScore = lcsOfTail_[nbits], head = 0;
    for (Pos i = 1; i <= nbits; ++i) {
        head += BitIsZero(front, i - 1);
        std::uint32_t score = head + lcsOfTail_[nbits - i];
        if (score > bestScore) bestScore = score, best = i;
    }
    return best;
}

// Gives every class found on both sides a mask row; false when the masks would be too big.
bool BitParallelSplitter::BuildMasks(const std::uint32_t* bits, Pos nbits,
                                     const std::uint32_t* rows, Pos nrows, std::uint32_t& symbols) {
    for (Pos j = 0; j < nrows; ++j)
        maskOf_[rows[j]] = kInRows;
    symbols = 0;
    for (Pos i = 0; i < nbits; ++i)
        if (maskOf_[bits[i]] == kInRows) maskOf_[bits[i]] = static_cast<std::int32_t>(symbols++);
    if (std::size_t(symbols) * words_ * 16 > maxMaskBytes_) return false;
    forwardMasks_.assign(std::size_t(symbols) * words_, 0);
    reverseMasks_.assign(std::size_t(symbols) * words_, 0);
    for (Pos i = 0; i < nbits; ++i) {
        std::int32_t k = maskOf_[bits[i]];
        if (k < 0) continue;
        Pos r = nbits - 1 - i;
        forwardMasks_[std::size_t(k) * words_ + std::size_t(i >> 6)] |= std::uint64_t(1)
                                                                        << (i & 63);
        reverseMasks_[std::size_t(k) * words_ + std::size_t(r >> 6)] |= std::uint64_t(1)
                                                                        << (r & 63);
    }
    return true;
}

void BitParallelSplitter::Forget(const std::uint32_t* bits, Pos nbits, const std::uint32_t* rows,
                                 Pos nrows) {
    for (Pos j = 0; j < nrows; ++j)
        maskOf_[rows[j]] = kAbsent;
    for (Pos i = 0; i < nbits; ++i)
        maskOf_[bits[i]] = kAbsent;
}

} // namespace linediff
