#pragma once
// Columns of the LCS table as bit vectors over the first sequence, 64 cells per word (Hyyro):
// bit i-1 of column j is 0 exactly when L(i, j) = L(i-1, j) + 1. Only the words that touch a
// band of diagonals are computed. Words before the band keep the values of the last column that
// computed them, and words past it stay all ones until the band reaches them; either way the
// column holds lower bounds of the true table, and these are exact on every cell of every
// optimal path once the band holds all such paths.
#include "compare/lcs/MatchMasks.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace orvane::lcs {

// Diagonals d = i - j (row along the first sequence minus column along the second) that an
// optimal path may use when the indel distance is at most |M - N| + 2 * extra.
struct Band {
    std::int64_t dmin = 0;
    std::int64_t dmax = 0;
};
Band MakeBand(std::size_t m, std::size_t n, std::size_t extra);

// Words [lo, end) of a column.
struct WordSpan {
    std::size_t lo = 0;
    std::size_t end = 0;
};

// A stored column: the words of its span.
struct ColumnView {
    WordSpan span;
    const BitWord* words = nullptr;
};

class ColumnSweep {
  public:
    ColumnSweep(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
                const MatchMasks& masks, Band band);

    // The most words one column of the band can touch.
    std::size_t Width() const { return width_; }
    // The words of column j (1..n) that the band touches, none past capWord.
    WordSpan Words(std::size_t j, std::size_t capWord) const;
    // Makes start the current column; words after its span and up to capWord become all ones.
    void Load(const ColumnView& start, std::size_t capWord);
    // Turns the current column j-1 into column j, up to capWord.
    void Advance(std::size_t j, std::size_t capWord);
    ColumnView Current(WordSpan span) const { return {span, v_.data() + span.lo}; }
    // L of the last row in the current column: its zero bits.
    std::size_t CommonLength() const;
    // A floor under the indel distance of every path through the current column j, for a sweep
    // from column 0: the band's result cannot imply a smaller distance than this any more.
    std::size_t DistanceFloor(std::size_t j);

  private:
    std::span<const std::uint32_t> a_, b_;
    const MatchMasks& masks_;
    Band band_;
    std::size_t width_;
    std::vector<BitWord> v_, scratch_;
    std::size_t frozenEnd_ = 0, frozenZeros_ = 0; // words before the band never change again
};

// Columns kept for the walk back, each in a slot of the sweep's width.
class ColumnStore {
  public:
    ColumnStore(std::size_t slots, std::size_t width);
    void Save(std::size_t slot, const ColumnView& column);
    ColumnView View(std::size_t slot) const;
    // Bit `bit` of the column in slot; throws std::logic_error when it was not kept.
    bool Bit(std::size_t slot, std::size_t bit) const;

  private:
    std::size_t width_;
    std::unique_ptr<BitWord[]> words_; // only the saved words are ever read
    std::vector<WordSpan> spans_;
};

} // namespace orvane::lcs
