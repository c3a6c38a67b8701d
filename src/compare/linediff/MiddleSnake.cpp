#include "MiddleSnake.h"

#include <algorithm>
#include <limits>

namespace linediff {
namespace {

// Values out of reach of any box, written beside each wave so that its edge diagonals always
// take the one real neighbour.
constexpr Pos kFar = std::numeric_limits<Pos>::max() / 4;

// Widens a wave by one diagonal on a side, or narrows it when the box stops it there, so the
// diagonals in range keep the parity of the step.
inline void Widen(Pos& lo, Pos& hi, Pos dmin, Pos dmax, Pos* v, Pos sentinel) {
    if (lo > dmin) v[--lo - 1] = sentinel;
    else ++lo;
    if (hi < dmax) v[++hi + 1] = sentinel;
    else --hi;
}

} // namespace

MiddleSnakeSearch::MiddleSnakeSearch(std::size_t n, std::size_t m)
    : forward_(n + m + 3), backward_(n + m + 3) {
    // Diagonal k = x - y runs from -m to n; one slot of margin on each side for the sentinels.
    fd_ = forward_.Data() + m + 1;
    bd_ = backward_.Data() + m + 1;
}

SearchResult MiddleSnakeSearch::Run(const std::uint32_t* a, const std::uint32_t* b, Box box,
                                    SearchLimits limits) {
    const Pos dmin = box.xl - box.yh, dmax = box.xh - box.yl;
    const Pos fmid = box.xl - box.yl, bmid = box.xh - box.yh;
    const bool odd = ((fmid - bmid) & 1) != 0;
    Pos fmin = fmid, fmax = fmid, bmin = bmid, bmax = bmid;
    fd_[fmid] = box.xl;
    bd_[bmid] = box.xh;
    std::uint64_t work = 0;
    for (Pos d = 1;; ++d) {
        Widen(fmin, fmax, dmin, dmax, fd_, -kFar);
        for (Pos k = fmax; k >= fmin; k -= 2) {
            Pos lo = fd_[k - 1], hi = fd_[k + 1];
            // A path can run along the far edges only, so a step past them stops there.
            Pos x = std::min({lo >= hi ? lo + 1 : hi, box.xh, box.yh + k});
            Pos y = x - k, x0 = x;
            while (x < box.xh && y < box.yh && a[x] == b[y]) ++x, ++y;
            work += static_cast<std::uint64_t>(x - x0) + 1;
            fd_[k] = x;
            if (odd && bmin <= k && k <= bmax && bd_[k] <= x)
                return {SearchOutcome::Found, Split::At(x, y)};
        }
        Widen(bmin, bmax, dmin, dmax, bd_, kFar);
        for (Pos k = bmax; k >= bmin; k -= 2) {
            Pos lo = bd_[k - 1], hi = bd_[k + 1];
            Pos x = std::max({lo < hi ? lo : hi - 1, box.xl, box.yl + k});
            Pos y = x - k, x0 = x;
            while (x > box.xl && y > box.yl && a[x - 1] == b[y - 1]) --x, --y;
            work += static_cast<std::uint64_t>(x0 - x) + 1;
            bd_[k] = x;
            if (!odd && fmin <= k && k <= fmax && x <= fd_[k])
                return {SearchOutcome::Found, Split::At(x, y)};
        }
        if (work > limits.maxWork) return {SearchOutcome::TooCostly, {}};
        if (d >= limits.maxCost)
            return {SearchOutcome::TooLong, Furthest(box, fmin, fmax, bmin, bmax)};
    }
}

// The forward point with the most progress from the top left corner, or the backward point
// with the most towards it from the bottom right, whichever went further.
Split MiddleSnakeSearch::Furthest(Box box, Pos fmin, Pos fmax, Pos bmin, Pos bmax) const {
    Pos bestF = -1, fx = box.xl, fk = 0;
    for (Pos k = fmax; k >= fmin; k -= 2) {
        Pos x = fd_[k], progress = 2 * x - k - box.xl - box.yl;
        if (progress > bestF) bestF = progress, fx = x, fk = k;
    }
    Pos bestB = -1, bx = box.xh, bk = 0;
    for (Pos k = bmax; k >= bmin; k -= 2) {
        Pos x = bd_[k], progress = box.xh + box.yh - (2 * x - k);
        if (progress > bestB) bestB = progress, bx = x, bk = k;
    }
    return bestF >= bestB ? Split::At(fx, fx - fk) : Split::At(bx, bx - bk);
}

} // namespace linediff
