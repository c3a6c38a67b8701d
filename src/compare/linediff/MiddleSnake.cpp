#include "MiddleSnake.h"

#include <algorithm>
#include <limits>

namespace linediff {
namespace {

// Values out of reach of any box, written beside each wave so that its edge diagonals always
// take the one real neighbour.
constexpr Pos kFar = std::numeric_limits<Pos>::max() / 4;
constexpr Pos kNone = std::numeric_limits<Pos>::min();

// Widens a wave by one diagonal on a side, or narrows it when the box stops it there, so the
// diagonals in range keep the parity of the step.
inline void Widen(Pos& lo, Pos& hi, Pos dmin, Pos dmax, Pos* v, Pos sentinel) {
    if (lo > dmin)
        v[--lo - 1] = sentinel;
    else
        ++lo;
    if (hi < dmax)
        v[++hi + 1] = sentinel;
    else
        --hi;
}

// Equal items from a[0], b[0] onwards, at most `limit`.
inline Pos SnakeForward(const std::uint32_t* a, const std::uint32_t* b, Pos limit) {
    Pos n = 0;
    while (n < limit && a[n] == b[n])
        ++n;
    return n;
}

// Equal items just before a[0], b[0], at most `limit`.
inline Pos SnakeBackward(const std::uint32_t* a, const std::uint32_t* b, Pos limit) {
    Pos n = 0;
    while (n < limit && a[-1 - n] == b[-1 - n])
        ++n;
    return n;
}

} // namespace

MiddleSnakeSearch::MiddleSnakeSearch(std::size_t n, std::size_t m)
    : forward_(n + m + 3), backward_(n + m + 3) {
    // Diagonal k = x - y runs from -m to n; one slot of margin on each side for the sentinels.
    fd_ = forward_.Data() + m + 1;
    bd_ = backward_.Data() + m + 1;
}

// One step of the forward wave. Returns the diagonal where it overlaps the backward wave (checked
// only with `meet`), else kNone.
Pos MiddleSnakeSearch::Forward(const std::uint32_t* a, const std::uint32_t* b, const Box& box,
                               bool meet, std::uint64_t& work) {
    Widen(fmin_, fmax_, box.xl - box.yh, box.xh - box.yl, fd_, -kFar);
    // Locals, so that the stores into the wave need not be read back.
    Pos* fd = fd_;
    const Pos* bd = bd_;
    const Pos xh = box.xh, yh = box.yh, kmin = fmin_, kmax = fmax_;
    const Pos mlo = meet ? std::max(kmin, bmin_) : 1, mhi = meet ? std::min(kmax, bmax_) : 0;
    std::uint64_t slid = 0;
    for (Pos k = kmax; k >= kmin; k -= 2) {
        Pos lo = fd[k - 1], hi = fd[k + 1];
        // A path can run along the far edges only, so a step past them stops there.
        Pos x = std::min(std::min(lo >= hi ? lo + 1 : hi, xh), yh + k);
        Pos y = x - k, run = SnakeForward(a + x, b + y, std::min(xh - x, yh - y));
        fd[k] = x += run;
        slid += static_cast<std::uint64_t>(run);
        if (k >= mlo && k <= mhi && bd[k] <= x) return k;
    }
    work += slid + static_cast<std::uint64_t>(kmax - kmin) / 2 + 1;
    return kNone;
}

Pos MiddleSnakeSearch::Backward(const std::uint32_t* a, const std::uint32_t* b, const Box& box,
                                bool meet, std::uint64_t& work) {
    Widen(bmin_, bmax_, box.xl - box.yh, box.xh - box.yl, bd_, kFar);
    Pos* bd = bd_;
    const Pos* fd = fd_;
    const Pos xl = box.xl, yl = box.yl, kmin = bmin_, kmax = bmax_;
    const Pos mlo = meet ? std::max(kmin, fmin_) : 1, mhi = meet ? std::min(kmax, fmax_) : 0;
    std::uint64_t slid = 0;
    for (Pos k = kmax; k >= kmin; k -= 2) {
        Pos lo = bd[k - 1], hi = bd[k + 1];
        Pos x = std::max(std::max(lo < hi ? lo : hi - 1, xl), yl + k);
        Pos y = x - k, run = SnakeBackward(a + x, b + y, std::min(x - xl, y - yl));
        bd[k] = x -= run;
        slid += static_cast<std::uint64_t>(run);
        if (k >= mlo && k <= mhi && x <= fd[k]) return k;
    }
    work += slid + static_cast<std::uint64_t>(kmax - kmin) / 2 + 1;
    return kNone;
}

SearchResult MiddleSnakeSearch::Run(const std::uint32_t* a, const std::uint32_t* b, Box box,
                                    SearchLimits limits) {
    const Pos fmid = box.xl - box.yl, bmid = box.xh - box.yh;
    // With an odd distance between the corner diagonals the waves can meet after a forward step
    // only, with an even one after a backward step only.
    const bool odd = ((fmid - bmid) & 1) != 0;
    fmin_ = fmax_ = fmid;
    bmin_ = bmax_ = bmid;
    fd_[fmid] = box.xl;
    bd_[bmid] = box.xh;
    std::uint64_t work = 0;
    for (Pos d = 1;; ++d) {
        if (Pos k = Forward(a, b, box, odd, work); k != kNone)
            return {SearchOutcome::Found, Split::At(fd_[k], fd_[k] - k)};
        if (Pos k = Backward(a, b, box, !odd, work); k != kNone)
            return {SearchOutcome::Found, Split::At(bd_[k], bd_[k] - k)};
        if (work > limits.maxWork) return {SearchOutcome::TooCostly, {}};
        if (d >= limits.maxCost) return {SearchOutcome::TooLong, Furthest(box)};
    }
}

// The forward point with the most progress from the top left corner, or the backward point
// with the most towards it from the bottom right, whichever went further.
Split MiddleSnakeSearch::Furthest(const Box& box) const {
    Pos bestF = -1, fx = box.xl, fk = 0;
    for (Pos k = fmax_; k >= fmin_; k -= 2) {
        Pos x = fd_[k], progress = 2 * x - k - box.xl - box.yl;
        if (progress > bestF) bestF = progress, fx = x, fk = k;
    }
    Pos bestB = -1, bx = box.xh, bk = 0;
    for (Pos k = bmax_; k >= bmin_; k -= 2) {
        Pos x = bd_[k], progress = box.xh + box.yh - (2 * x - k);
        if (progress > bestB) bestB = progress, bx = x, bk = k;
    }
    return bestF >= bestB ? Split::At(fx, fx - fk) : Split::At(bx, bx - bk);
}

} // namespace linediff
