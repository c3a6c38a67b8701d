#pragma once
// The textbook table: every cell filled, walked back from the far corner. It costs M * N cells,
// so the program uses the exact bit-parallel form (ExactLcs.h); this one stays as the reference
// the fast form is held to.
#include "compare/lcs/Marks.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orvane::lcs {

// How a cell was reached, which is also the way back.
enum LcsDirection : std::int32_t { DirBorder = 0, DirUp = 1, DirLeft = 2, DirDiagonal = 3 };

struct LcsCell {
    std::int32_t Length = 0;
    std::int32_t Direction = DirBorder;
};

// Subscripts (0..M, 0..N); the first runs along the first sequence and varies fastest.
class LcsMatrix {
  public:
    LcsMatrix(std::size_t M, std::size_t N) : rows_(M + 1), cells_((M + 1) * (N + 1)) {}
    LcsCell& operator()(std::size_t i, std::size_t j) { return cells_[j * rows_ + i]; }
    const LcsCell& operator()(std::size_t i, std::size_t j) const { return cells_[j * rows_ + i]; }

  private:
    std::size_t rows_;
    std::vector<LcsCell> cells_;
};

// Fills a matrix of (A.size() + 1) * (B.size() + 1) cells; returns the length of the longest
// common subsequence.
template <class T>
std::int32_t FillLCSMatrix(std::span<const T> A, std::span<const T> B, LcsMatrix& Matrix) {
    const std::size_t M = A.size(), N = B.size();
    for (std::size_t i = 0; i <= M; ++i)
        Matrix(i, 0).Length = 0;
    for (std::size_t j = 0; j <= N; ++j)
        Matrix(0, j).Length = 0;
    for (std::size_t i = 1; i <= M; ++i) {
        for (std::size_t j = 1; j <= N; ++j) {
            LcsCell& cell = Matrix(i, j);
            const std::int32_t up = Matrix(i - 1, j).Length;
            const std::int32_t left = Matrix(i, j - 1).Length;
            if (A[i - 1] == B[j - 1]) {
                cell = {Matrix(i - 1, j - 1).Length + 1, DirDiagonal};
            } else if (up < left) { // strict: on a tie the walk goes up
                cell = {left, DirLeft};
            } else {
                cell = {up, DirUp};
            }
        }
    }
    return Matrix(M, N).Length;
}

// Walks back from cell (I, J) and sets the marks of the elements met on a diagonal step. The
// other marks are left as they are. A loop visits the same cells as the recursive walk would.
inline void GetLocationOfDiffs(const LcsMatrix& Matrix, Marks& MarksA, Marks& MarksB, std::size_t I,
                               std::size_t J) {
    while (I > 0 && J > 0) {
        switch (Matrix(I, J).Direction) {
        case DirDiagonal:
            MarksA[I - 1] = true;
            MarksB[J - 1] = true;
            --I;
            --J;
            break;
        case DirUp:
            --I;
            break;
        default:
            --J;
            break;
        }
    }
}

} // namespace orvane::lcs
