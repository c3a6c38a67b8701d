#pragma once
// Shared values of the sequence comparison: a box of the edit graph and a way to cut it in two.
#include <cstddef>
#include <cstdint>

namespace linediff {

using Pos = std::ptrdiff_t;

// Original items [xl, xh) against Revised items [yl, yh).
struct Box {
    Pos xl, xh, yl, yh;
    Pos Width() const { return xh - xl; }
    Pos Height() const { return yh - yl; }
};

// Cuts a box into [xl, x1) x [yl, y1) and [x2, xh) x [y2, yh); the run between (x1, y1) and
// (x2, y2), if any, is a diagonal of equal items.
struct Split {
    Pos x1, y1, x2, y2;
    static Split At(Pos x, Pos y) { return {x, y, x, y}; }
};

} // namespace linediff
