#include "compare/lcs/BandedColumns.h"

#include <algorithm>
#include <bit>
#include <stdexcept>
#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace orvane::lcs {
namespace {

// x + y + carry, with the carry out; one add-with-carry instruction where there is one.
inline BitWord AddWithCarry(BitWord x, BitWord y, unsigned char& carry) {
#if defined(__x86_64__)
    unsigned long long sum;
    carry = _addcarry_u64(carry, x, y, &sum);
    return sum;
#else
    const BitWord partial = x + y, sum = partial + carry;
    carry = static_cast<unsigned char>((partial < x) | (sum < partial));
    return sum;
#endif
}

int ZeroBits(BitWord w) {
    return static_cast<int>(kWordBits) - std::popcount(w);
}

} // namespace

Band MakeBand(std::size_t m, std::size_t n, std::size_t extra) {
    const auto delta = static_cast<std::int64_t>(m) - static_cast<std::int64_t>(n);
    const auto e = static_cast<std::int64_t>(extra);
    return {std::min<std::int64_t>(0, delta) - e, std::max<std::int64_t>(0, delta) + e};
}

ColumnSweep::ColumnSweep(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
                         const MatchMasks& masks, Band band)
    : a_(a), b_(b), masks_(masks), band_(band),
      width_(std::min(WordsFor(a.size()),
                      static_cast<std::size_t>(band.dmax - band.dmin) / kWordBits + 2)),
      v_(WordsFor(a.size()), ~BitWord{0}), scratch_(width_) {}

WordSpan ColumnSweep::Words(std::size_t j, std::size_t capWord) const {
    // Row i of column j sits at bit i - 1.
    const auto col = static_cast<std::int64_t>(j);
    const auto lastBit = static_cast<std::int64_t>(a_.size()) - 1;
    const std::int64_t loBit = std::clamp<std::int64_t>(col + band_.dmin - 1, 0, lastBit);
    const std::int64_t hiBit = std::clamp<std::int64_t>(col + band_.dmax - 1, 0, lastBit);
    const std::size_t hi = std::min(static_cast<std::size_t>(hiBit) / kWordBits, capWord);
    return {static_cast<std::size_t>(loBit) / kWordBits, hi + 1};
}

void ColumnSweep::Load(const ColumnView& start, std::size_t capWord) {
    const std::size_t end = std::min(capWord + 1, v_.size());
    const std::size_t copyEnd = std::min(start.span.end, end);
    if (copyEnd > start.span.lo)
        std::copy(start.words, start.words + (copyEnd - start.span.lo), v_.begin() + start.span.lo);
    std::fill(v_.begin() + std::max(copyEnd, start.span.lo), v_.begin() + end, ~BitWord{0});
    frozenEnd_ = frozenZeros_ = 0;
}

void ColumnSweep::Advance(std::size_t j, std::size_t capWord) {
    const std::uint32_t symbol = b_[j - 1];
    if (masks_.Absent(symbol)) return; // no match anywhere: the column does not change
    const WordSpan span = Words(j, capWord);
    if (span.end <= span.lo) return;
    const BitWord* pm = masks_.Row(symbol, span.lo, span.end - 1, scratch_.data());
    BitWord* v = v_.data() + span.lo;
    unsigned char carry = 0; // only the addition crosses words, from low to high
    for (std::size_t k = 0; k < span.end - span.lo; ++k) {
        const BitWord x = v[k], u = x & pm[k];
        v[k] = AddWithCarry(x, u, carry) | (x & ~u);
    }
}

std::size_t ColumnSweep::DistanceFloor(std::size_t j) {
    const WordSpan span = Words(j, v_.size() - 1);
    for (; frozenEnd_ < span.lo; ++frozenEnd_)
        frozenZeros_ += ZeroBits(v_[frozenEnd_]);
    // A path through row r of column j costs at least r + j - 2 L(r, j) to get there and
    // |(m - r) - (n - j)| to go on. From one row to the next that sum moves by 2 at most, so
    // its value at each word's first row, less 128, bounds the whole word.
    const auto m = static_cast<std::int64_t>(a_.size()), n = static_cast<std::int64_t>(b_.size());
    const auto col = static_cast<std::int64_t>(j);
    auto zeros = static_cast<std::int64_t>(frozenZeros_);
    std::int64_t floor = m + n;
    for (std::size_t w = span.lo; w <= span.end; ++w) {
        const std::int64_t row = std::min(static_cast<std::int64_t>(w * kWordBits), m);
        floor = std::min(floor, row + col - 2 * zeros + std::abs((m - row) - (n - col)));
        if (w < span.end) zeros += ZeroBits(v_[w]);
    }
    return static_cast<std::size_t>(std::max<std::int64_t>(0, floor - 2 * kWordBits));
}

std::size_t ColumnSweep::CommonLength() const {
    // Padding bits past the last row stay ones: every zero bit is a row.
    std::size_t zeros = 0;
    for (BitWord w : v_)
        zeros += static_cast<std::size_t>(ZeroBits(w));
    return zeros;
}

ColumnStore::ColumnStore(std::size_t slots, std::size_t width)
    : width_(width), words_(std::make_unique_for_overwrite<BitWord[]>(slots * width)),
      spans_(slots) {}

void ColumnStore::Save(std::size_t slot, const ColumnView& column) {
    spans_[slot] = column.span;
    std::copy(column.words, column.words + (column.span.end - column.span.lo),
              words_.get() + slot * width_);
}

ColumnView ColumnStore::View(std::size_t slot) const {
    return {spans_[slot], words_.get() + slot * width_};
}

bool ColumnStore::Bit(std::size_t slot, std::size_t bit) const {
    const WordSpan span = spans_[slot];
    const std::size_t w = bit / kWordBits;
    if (w < span.lo || w >= span.end) throw std::logic_error("LCS walk left the computed band");
    return (words_[slot * width_ + (w - span.lo)] >> (bit % kWordBits)) & 1;
}

} // namespace orvane::lcs
