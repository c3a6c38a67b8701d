#pragma once
// The marks of the textbook LCS table walk (diagonal on equal elements, else left when
// L(i-1, j) < L(i, j-1), else up), exactly, without the table: bit-parallel columns in a band
// of diagonals that is widened until it proves itself, and a walk back that recomputes columns
// from stored checkpoints.
#include "compare/lcs/Marks.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace orvane::lcs {

struct ExactLcsOptions {
    // Columns kept for the walk back: 8 M words (64 MB). Past it, checkpoints nest.
    std::size_t columnBudgetWords = std::size_t{1} << 23;
    // Full match rows: 4 M words (32 MB); rarer symbols keep positions instead.
    std::size_t maskBudgetWords = std::size_t{1} << 22;
    // First guess of how far an optimal path strays from the diagonals of the two ends; each
    // failing pass, which stops as soon as it cannot succeed, doubles it.
    std::size_t firstExtra = 128;
    // Called between blocks of columns of a long run, e.g. to let pending events run.
    std::function<void()> yield;
};

// a and b are symbol ids; an id at or above alphabet occurs nowhere in a. The marks must be
// sized to a and b and all false; the routine sets the common elements true. Returns the length
// of the longest common subsequence.
std::size_t ExactLcsMarks(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
                          std::uint32_t alphabet, Marks& marksA, Marks& marksB,
                          const ExactLcsOptions& options = {});

} // namespace orvane::lcs
