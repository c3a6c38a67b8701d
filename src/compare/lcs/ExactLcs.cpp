#include "compare/lcs/ExactLcs.h"

#include "compare/lcs/BandedColumns.h"
#include "compare/lcs/MatchMasks.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace orvane::lcs {
namespace {

// Column work between two calls of the yield hook: a few milliseconds.
constexpr std::size_t kYieldWords = std::size_t{1} << 22;
// Columns between two looks at whether a pass can still prove itself: costs about 1/64 more.
constexpr std::size_t kFloorInterval = 64;
constexpr std::size_t kNeverGiveUp = std::numeric_limits<std::size_t>::max();

// Walks the table back from (m, n) with the band's columns; owns the position of the walk.
class Walker {
  public:
    Walker(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
           const MatchMasks& masks, Band band, Marks& marksA, Marks& marksB,
           const ExactLcsOptions& options)
        : a_(a), b_(b), sweep_(a, b, masks, band), marksA_(marksA), marksB_(marksB),
          options_(options), i_(a.size()), j_(b.size()) {}

    // Stride 1 keeps every column; a larger stride keeps checkpoints, each column c0 + k * stride
    // before c1, so that the walk can recompute one block at a time.
    std::size_t StrideFor(std::size_t len, std::size_t budget) const;
    ColumnStore Sweep(const ColumnView& start, std::size_t c0, std::size_t c1, std::size_t stride,
                      std::size_t capWord) {
        return *Sweep(start, c0, c1, stride, capWord, kNeverGiveUp);
    }
    // The sweep from column 0 gives up, with nothing, once every path left to the band is
    // longer than maxDistance.
    std::optional<ColumnStore> Sweep(const ColumnView& start, std::size_t c0, std::size_t c1,
                                     std::size_t stride, std::size_t capWord,
                                     std::size_t maxDistance);
    void WalkFromStore(const ColumnStore& store, const ColumnView& start, std::size_t c0,
                       std::size_t c1, std::size_t stride, std::size_t budget);
    std::size_t CommonLength() const { return sweep_.CommonLength(); }
    std::size_t Length() const { return length_; }

  private:
    void WalkRange(const ColumnView& start, std::size_t c0, std::size_t c1, std::size_t budget);
    void WalkStored(const ColumnStore& store, std::size_t c0);
    void Yield(std::size_t words);

    std::span<const std::uint32_t> a_, b_;
    ColumnSweep sweep_;
    Marks& marksA_;
    Marks& marksB_;
    const ExactLcsOptions& options_;
    std::size_t i_, j_, length_ = 0, work_ = 0;
};

std::size_t Walker::StrideFor(std::size_t len, std::size_t budget) const {
    const std::size_t width = sweep_.Width();
    if (len <= 2 || len * width <= budget) return 1;
    const std::size_t checkpoints = std::max<std::size_t>(1, budget / (2 * width));
    return (len + checkpoints) / (checkpoints + 1);
}

std::optional<ColumnStore> Walker::Sweep(const ColumnView& start, std::size_t c0, std::size_t c1,
                                         std::size_t stride, std::size_t capWord,
                                         std::size_t maxDistance) {
    const std::size_t len = c1 - c0;
    ColumnStore store(stride == 1 ? len : (len - 1) / stride, sweep_.Width());
    sweep_.Load(start, capWord);
    for (std::size_t j = c0 + 1; j <= c1; ++j) {
        sweep_.Advance(j, capWord);
        const std::size_t k = j - c0;
        const WordSpan span = sweep_.Words(j, capWord);
        if (stride == 1)
            store.Save(k - 1, sweep_.Current(span));
        else if (k % stride == 0 && j < c1)
            store.Save(k / stride - 1, sweep_.Current(span));
        Yield(span.end - span.lo);
        if (maxDistance != kNeverGiveUp && k % kFloorInterval == 0 &&
            sweep_.DistanceFloor(j) > maxDistance)
            return std::nullopt;
    }
    return store;
}

void Walker::WalkFromStore(const ColumnStore& store, const ColumnView& start, std::size_t c0,
                           std::size_t c1, std::size_t stride, std::size_t budget) {
    if (stride == 1) {
        WalkStored(store, c0);
        return;
    }
    // Blocks (c0 + r * stride, c0 + (r + 1) * stride], from the last; the walk leaves each at
    // its first column or at row 0.
    while (i_ > 0 && j_ > c0) {
        const std::size_t r = (j_ - c0 - 1) / stride;
        WalkRange(r == 0 ? start : store.View(r - 1), c0 + r * stride, std::min(j_, c1),
                  budget / 2);
    }
}

void Walker::WalkRange(const ColumnView& start, std::size_t c0, std::size_t c1,
                       std::size_t budget) {
    // Rows only go down on the way back: words past the current row are not needed.
    const std::size_t capWord = (i_ - 1) / kWordBits;
    const std::size_t stride = StrideFor(c1 - c0, budget);
    const ColumnStore store = Sweep(start, c0, c1, stride, capWord);
    WalkFromStore(store, start, c0, c1, stride, budget);
}

void Walker::WalkStored(const ColumnStore& store, std::size_t c0) {
    while (i_ > 0 && j_ > c0) {
        if (a_[i_ - 1] == b_[j_ - 1]) {
            marksA_[i_ - 1] = true;
            marksB_[j_ - 1] = true;
            ++length_;
            --i_;
            --j_;
        } else if (store.Bit(j_ - c0 - 1, i_ - 1)) {
            --i_; // L(i-1, j) = L(i, j): the tie goes up
        } else {
            --j_;
        }
    }
}

void Walker::Yield(std::size_t words) {
    work_ += words;
    if (work_ < kYieldWords) return;
    work_ = 0;
    if (options_.yield) options_.yield();
}

// A common tail is walked diagonally before anything else, so it can be marked at once.
std::size_t MarkCommonTail(std::span<const std::uint32_t>& a, std::span<const std::uint32_t>& b,
                           Marks& marksA, Marks& marksB) {
    std::size_t m = a.size(), n = b.size(), count = 0;
    for (; m > 0 && n > 0 && a[m - 1] == b[n - 1]; --m, --n, ++count) {
        marksA[m - 1] = true;
        marksB[n - 1] = true;
    }
    a = a.first(m);
    b = b.first(n);
    return count;
}

} // namespace

std::size_t ExactLcsMarks(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
                          std::uint32_t alphabet, Marks& marksA, Marks& marksB,
                          const ExactLcsOptions& options) {
    const std::size_t tail = MarkCommonTail(a, b, marksA, marksB);
    const std::size_t m = a.size(), n = b.size();
    if (m == 0 || n == 0) return tail;
    const MatchMasks masks(a, alphabet, options.maskBudgetWords);
    const std::size_t delta = m > n ? m - n : n - m, full = std::min(m, n);
    const std::size_t budget = options.columnBudgetWords;
    std::size_t extra = std::min(options.firstExtra, full);
    std::size_t sure = full; // a band this wide is known to hold every optimal path
    // The first, narrow pass always runs to the end: the distance it finds caps all others.
    for (bool first = true;; first = false) {
        Walker walker(a, b, masks, MakeBand(m, n, extra), marksA, marksB, options);
        const std::size_t stride = walker.StrideFor(n, budget);
        const std::size_t maxDistance = first || extra >= sure ? kNeverGiveUp : delta + 2 * extra;
        const auto store = walker.Sweep({}, 0, n, stride, WordsFor(m) - 1, maxDistance);
        if (store) {
            // The band's result is a lower bound; the distance it implies is an upper bound.
            // When that distance fits the band, the band held every optimal path: all is exact.
            const std::size_t distance = m + n - 2 * walker.CommonLength();
            if (distance <= delta + 2 * extra) {
                walker.WalkFromStore(*store, {}, 0, n, stride, budget);
                return tail + walker.Length();
            }
            sure = std::min(sure, (distance - delta) / 2);
        }
        extra = std::max<std::size_t>(2 * extra, 1);
        if (extra * 10 >= sure * 7) extra = sure; // close enough: go straight to the sure width
    }
}

} // namespace orvane::lcs
